#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QString>
#include <QVector>

class QIODevice;

/// Archives from outside: listed and judged, with the library that unpacks them, before anything of them is written.
namespace palx {

/// More than a project ever has, and less than fills a panel's disk.
struct ArchiveLimits
{
    int entries = 10000;
    qint64 bytes = 512LL * 1024 * 1024; ///< of all files, unpacked
    int nameBytes = 255;                ///< of a whole name in UTF-8; the library cuts off longer ones
};

struct ArchiveEntry
{
    QString name; ///< relative, parts separated by "/", without one at the end
    bool isFolder = false;
    qint64 size = 0; ///< [bytes], unpacked
};

struct ArchiveContent
{
    QVector<ArchiveEntry> entries;
    qint64 bytes = 0; ///< of all files, unpacked
};

/// Lists an archive and reads all of it. False, with the reason and the entry's name in `why`, for whatever cannot be
/// unpacked to plain files and folders below one folder, exactly as listed: names that lead elsewhere, links, devices, equal
/// names (also when they differ in case only, or a file stands where a folder is needed), encryption, foreign ways of packing, wrong
/// checksums, sizes that are not true, more than the limits allow, an end that is missing. Also false, with an empty `why`,
/// when it was cancelled. Leaves the device open or closed as the library does; give it a fresh one.
PALX_API bool checkArchive(QIODevice *device, ArchiveContent *content, QString *why, Progress *progress,
                           const ArchiveLimits &limits = ArchiveLimits());
PALX_API bool checkArchive(const QString &file, ArchiveContent *content, QString *why, Progress *progress,
                           const ArchiveLimits &limits = ArchiveLimits());

/// Whether the file ends as an archive does that was written to its end; cheap, says nothing of its entries.
PALX_API bool isWholeArchive(const QString &file);

/// What is wrong with the name of an entry; empty for nothing. A folder's name may end with "/".
PALX_API QString entryNameProblem(const QString &name, const ArchiveLimits &limits = ArchiveLimits());

} // namespace palx

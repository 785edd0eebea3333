#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QByteArray>
#include <QHash>
#include <QString>

/// Making archives.
namespace palx {

/// What goes into an archive.
struct PackedFolder
{
    QString path; ///< may be a resource
    QHash<QString, QByteArray>
        instead; ///< contents for files right in the folder, by name, there already or not
};

/// Packs a folder into an archive, recursively and with hidden files; nothing is written but the archive, and that is not
/// flushed to the disk. False, and no archive is left, with the reason when something in the folder is neither a file
/// nor a folder, cannot be read, or would make an archive that `checkArchive` refuses, or when the archive cannot be
/// written; with an empty reason when it was cancelled.
PALX_API bool packFolder(const PackedFolder &folder, const QString &archive, QString *why,
                         Progress *progress);

} // namespace palx

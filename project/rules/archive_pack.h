#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QString>

/// Making archives.
namespace palx {

/// Makes a folder that looks like another one and can be packed, hidden files included, and counts the bytes of its files; they
/// share their contents with it where the disk allows it, so nothing but the names in the mirror may be written. `source`
/// may be a resource; its copies can be written to. False with the reason, and what was made until then is left for the
/// caller to remove, when something in it is neither a file nor a folder, cannot be read, or would make an archive that
/// `checkArchive` refuses. Also false, with an empty reason, when it was cancelled.
PALX_API bool mirrorForArchive(const QString &source, const QString &mirror, qint64 *bytes, QString *why,
                               Progress *progress);

/// Packs a folder of about so many bytes into an archive, recursively and with hidden files. The folder is such a mirror: when the
/// work is cancelled, it is removed, so that packing ends soon. The archive is not flushed to the disk. False, and no archive is
/// left, with the reason, or with an empty one when it was cancelled.
PALX_API bool packFolder(const QString &folder, qint64 bytes, const QString &archive, QString *why,
                         Progress *progress);

} // namespace palx

#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QString>

/// Making archives.
namespace palx {

/// Makes a copy of a folder for an archive, and counts the bytes of its files, hidden files included; files share their contents with the copy where the disk
/// allows it, so nothing but the copy's names may be written. `source` may be a resource. False with the reason, and what was copied until
/// then is left for the caller to remove, when something in it is neither a file nor a folder, cannot be read, or would
/// make an archive that `checkArchive` refuses. Also false, with an empty reason, when it was cancelled.
PALX_API bool copyForArchive(const QString &source, const QString &copy, qint64 *bytes, QString *why,
                             Progress *progress);

/// Packs a folder of about so many bytes into an archive, recursively and with hidden files, and reads the archive's list back. The folder is such a copy:
/// when the work is cancelled, it is removed, so that packing ends soon. False, and no archive is left, with the reason, or
/// with an empty one when it was cancelled.
PALX_API bool packFolder(const QString &folder, qint64 bytes, const QString &archive, QString *why,
                         Progress *progress);

} // namespace palx

#pragma once

#include "orba/export.h"
#include "project/rules/archive_check.h"
#include "workstation/progress.h"

#include <QStringList>

/// Unpacking archives.
namespace palx {

/// Judges an archive (see `checkArchive`), unpacks it into a folder that is there and empty, and compares what came of it with the
/// list, which `content` gets unless it is null. False with the reason, or with an empty one when it was cancelled; what was
/// unpacked until then is left for the caller to remove.
PALX_API bool unpackArchive(const QString &archive, const QString &folder, QString *why, Progress *progress,
                            ArchiveContent *content = nullptr);

/// Everything below a folder, folders and hidden files included, each folder before what is in it. Links are left out.
PALX_API QStringList recursiveAllFiles(const QString &folder);

/// Gives read, write and execute permission to owner, group and others; false when one did not take it.
PALX_API bool chmodFiles(const QStringList &files);

} // namespace palx

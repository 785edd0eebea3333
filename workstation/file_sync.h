#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// Writes everything that the file system holding `path` still keeps in memory to its device, and waits for it: seconds on
/// a slow disk, so it may be called on any thread. `path` is a file or a folder that is there.
/// False with `error` (what, where, why) when the path cannot be opened or the device did not take everything.
PALX_API bool syncFileSystem(const QString &path, QString *error = nullptr);

} // namespace palx

#pragma once

#include "orba/export.h"

#include <QString>

/// What follows an import or export of recipes, whoever asked for it. GUI thread.
namespace palx {

/// Records that it succeeded and sends all recipes to the controller.
PALX_API void finishImport();
/// The same for recipes that were written to that file; `isSynced` says whether the disk took everything.
PALX_API void finishExport(const QString &file, bool isSynced);
/// Sends all recipes after an import was taken back, and records it.
PALX_API void finishTakingBack();

} // namespace palx

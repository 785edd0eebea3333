#pragma once

#include "orba/module_object.h"

#include <QVector>

/// Tools and work objects that recipes share: the plugin node's "global_tool" (in this order "PalletTool1", "PalletTool2",
/// "IncomingData", "WayPointData") and "global_wobj" ("PalletWobj1", "PalletWobj2").
namespace palx {

/// Whether the recipe's points depend on them.
PALX_API bool usesSharedLists(const orba::Node &stack);

/// The entries of the lists in their order, zeroed, points not taught.
PALX_API QVector<orba::Node> sharedToolEntries();
PALX_API QVector<orba::Node> sharedWobjEntries();

/// Adds the entries and keys that the lists of the recipe's plugin node lack, zeroed, when the recipe uses them; what is there
/// stays. Returns whether something was added.
PALX_API bool ensureSharedLists(orba::ModuleObject *stack);

} // namespace palx

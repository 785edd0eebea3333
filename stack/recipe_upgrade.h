#pragma once

#include "orba/node.h"

#include <QStringList>

#include <vector>

namespace palx {

/// Brings a recipe that was read from an exchange file up to the layout of the template stack: every subtree
/// of the template that the recipe lacks altogether is copied into it, behind what it has. Files of older
/// versions lack "get", "bollard", "pallet_position" and others; a subtree that is there is left as it is, a
/// null one included. Returns the names of what was added, in the template's order.
PALX_API QStringList upgradeRecipe(orba::Node &stack, const orba::Node &templateStack);
/// The same for these subtrees only, in this order; one that the template lacks is left out.
PALX_API QStringList upgradeRecipe(orba::Node &stack, const orba::Node &templateStack,
                                   const std::vector<orba::Name> &keys);

} // namespace palx

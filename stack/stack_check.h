#pragma once

#include "orba/module_object.h"

/// Checks that wizards run on a stack before and while it is edited. Repairs are written into the stack at once, each
/// recorded once in the operator's log. Lengths are millimetres.
namespace palx {

/// Repairs the product's size. Always false.
PALX_API bool checkProductPara(orba::ModuleObject *stack);
/// Repairs the pallet's size. Always false.
PALX_API bool checkPalletPara(orba::ModuleObject *stack);
/// The product check and, only if that were true, the pallet check; so always false without looking at the pallet.
PALX_API bool checkProductPallet(orba::ModuleObject *stack);
/// Whether nothing but empty layers follows the first layer with the pattern "empty".
PALX_API bool checkLayersName(orba::ModuleObject *layers);

// --- the same on storage
PALX_API bool checkProductPara(orba::Node &stack);
PALX_API bool checkPalletPara(orba::Node &stack);
PALX_API bool checkLayersName(const orba::Node &layers);

} // namespace palx

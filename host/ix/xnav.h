#pragma once

#include "orba/module_object.h"

namespace bwaf {
class BModule;
}

namespace ix {
namespace xnav {

/// Adds an entry to the panel's navigator and returns its node, with the children "title", "category",
/// "icon", "order", "nav" and "key". The navigator groups entries by "category" and sorts them by "order"
/// (-1: behind the others, in the order of registering). Choosing an entry opens the page whose key stands in
/// "nav" in the centre widget; "key" holds further search words. Both are empty at first and are followed
/// when they change. The entry ends with `module`.
PALX_API orba::ModuleObject *registerPage(bwaf::BModule *module, const QString &title,
                                          const QString &category, const QString &icon, int order = -1);

} // namespace xnav
} // namespace ix

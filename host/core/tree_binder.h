#pragma once

#include "orba/module_object.h"

namespace host {

/// Builds the tree of a module below the registry's root from a JSON template (UTF-8, a byte-order mark is fine; may be
/// a resource) and gives it the child "version", null when nothing else is known.
///
/// With `persistent` and an open Store, what was stored wins: in maps, stored children keep their values and the template
/// adds the keys that they lack, in the template's order, with what the template does not know behind them; a stored
/// list stands for the template's. A stored value gives way where the template has a list or map instead.
/// Binding a module again merges the template into the tree that is there.
///
/// Returns the module's handle in any case. A template that is missing or damaged, or a stored value that gave way,
/// makes an error text; the tree then holds what there is.
PALX_API orba::ModuleObject *bindTree(const QString &module, const QString &templateFile, bool persistent,
                                      QString *error = nullptr);

} // namespace host

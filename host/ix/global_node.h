#pragma once

#include "orba/module_object.h"

namespace ix {

/// A node of the panel for whatever several modules share under a key. Made when missing, lives as long as
/// the panel. The key is one name, dots included. Objects that belong to a key hang on its handle as dynamic
/// properties.
PALX_API orba::ModuleObject *globalNode(const QString &key);

} // namespace ix

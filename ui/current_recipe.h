#pragma once

#include "workstation/string_watcher.h"

namespace bwaf {
class BModule;
}

/// The name of the recipe that the pages of a plug-in work on; empty when none is open. One per module, made
/// when missing, owned by the module.
PALX_API StringWatcher *currentRecipe(bwaf::BModule *module);

#pragma once

#include "core/store.h"
#include "core/store_file.h"

namespace host {

/// What a save is going to do.
struct Store::Plan
{
    StoreChanges changes;
    Rows rows; ///< as they are afterwards
    QStringList refused;
    bool all = false; ///< into a new file
};

} // namespace host

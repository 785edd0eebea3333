#pragma once

#include "orba/node.h"

namespace controller {

/// Whether a tree from outside has few enough levels: with its path far below what a message may have.
inline bool isShallow(const orba::Node &node, int levels = 100)
{
    if (levels == 0)
        return false;
    for (int i = 0; !node.isPacked() && i < node.size(); ++i)
        if (!isShallow(*node.at(i), levels - 1))
            return false;
    return true;
}

} // namespace controller

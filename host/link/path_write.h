#pragma once

#include "orba/node.h"

namespace host {

/// Puts a value or subtree at a path below `root`, making nodes on the way that are missing. `payload` is
/// left null. False, with nothing changed, when the path cannot be made: a scalar stands in the way, or an
/// index leaves a gap in a list. The same on both sides of the link, so that both trees stay alike.
PALX_API bool applyWrite(orba::Node &root, QStringView path, orba::Node &payload);

} // namespace host

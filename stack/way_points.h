#pragma once

#include "orba/module_object.h"

namespace palx {

/// Regenerates every point of a stack: the pick side under "get", then all put points under "points.put".
///
/// Reads the stack and, for global tools and work objects, the plugin node that holds it. Records in metres and
/// radians. Removes layers of the pattern "empty" from "layers"; stops at the first layer with a blank pattern.
/// "points.put" is a list with one list per layer, which holds one map of six point records per product: "enter_p",
/// "ready_p", "approach_p", "put_p", "retract_p", "exit_p".
PALX_API void genStackWayPoints(orba::ModuleObject *stack);
/// The same on storage; `plugin` is the node that holds "global_tool" and "global_wobj".
PALX_API void genStackWayPoints(orba::Node &stack, const orba::Node &plugin);

enum class PointsState {
    None,     ///< never generated
    Current,  ///< generating again would give the same
    Outdated, ///< the recipe or the global settings were changed since
};
/// Generates on a copy and compares.
PALX_API PointsState pointsState(const orba::Node &stack);

} // namespace palx

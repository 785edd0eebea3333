#pragma once

#include "orba/node.h"

#include <QString>

/// Whether data from outside has the layout of the plug-in's records. The rules read defaults where a value
/// is missing or of another type, which is right for data of our own and would hide damage in somebody else's
/// file.
///
/// Each returns the first fault as "path: what is there, what is expected", or an empty text. A missing or
/// null value is no fault. Generated points are not looked at.
namespace palx {

/// A recipe, against the template stack.
PALX_API QString recipeFault(const orba::Node &stack, const orba::Node &templateStack);
/// The plugin node's "global_tool" list.
PALX_API QString globalToolFault(const orba::Node &tools);
/// The plugin node's "global_wobj" list.
PALX_API QString globalWobjFault(const orba::Node &wobjs);

} // namespace palx

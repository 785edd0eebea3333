#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// The folder of the controller workspace that holds the connected robot's projects: workspace / robot id. Empty while one
/// of them is unknown, or when the id is no folder's name.
PALX_API QString robotFolder();

} // namespace palx

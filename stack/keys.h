#pragma once

#include "orba/name.h"

/// Interned names of the keys that point generation reads for every product.
namespace palx::key {

extern const orba::Name trans, rot;
extern const orba::Name enterP, readyP, approachP, putP, getP, retractP, exitP;
extern const orba::Name x, y, r, direction, dx, dy, dz;
extern const orba::Name pattern, hOffset;

} // namespace palx::key

#pragma once

#include "controller/cell/bodies.h"

#include <vector>

/// Whether blocks reach into each other, at rest or on a way, and what carries a block that is put down. No state.
namespace controller::cell {

/// How deep two blocks reach into each other [m]: the shortest way that would part them. Negative: at least so far apart
/// along one axis.
double penetration(const Block &a, const Block &b);

/// Whether `moving`, shifted evenly by `way` without turning, reaches into `fixed` by more than `tolerance` [m] at any time.
/// Exact.
bool hitsOnWay(const Block &moving, const Vector &way, const Block &fixed, double tolerance);

/// The same from one pose to another: the way is straight and the turn even. The turn is taken in steps of at most
/// kTurnStep.
bool hitsOnWay(const Block &from, const Pose &to, const Block &fixed, double tolerance);
constexpr double kTurnStep = radians(0.25);

/// What lies under a block.
struct Support
{
    double fall = 0;  ///< [m] down to the highest of what lies below; the block itself is let down by it
    double share = 0; ///< of the bottom, that is carried then
    bool holdsCentre = false; ///< the block's centre lies over what carries it, so that it does not tip
};
/// Tops within this of the highest carry, too [m].
constexpr double kLevel = 0.002;
/// Looks down from an upright block. Without anything below down to `floor` [m], it falls there. Blocks must be upright:
/// their turns are about z.
Support supportOf(const Block &block, const std::vector<const Block *> &others, double floor);

} // namespace controller::cell

#pragma once

#include "orba/node.h"
#include "stack/point_frame.h"

#include <QStringList>

namespace palx {

/// Whether a point record was taught or typed in: it holds some number other than 0.
PALX_API bool isTaught(const orba::Node *point);

/// The point where the robot stands, in the frame of the record that it is for, from the robot's mirrored state: "pose" of the
/// flange in the base, and "joints" as "near". False, with `point` as it was, when the state has no whole pose.
PALX_API bool teachPoint(orba::Node &point, const orba::Node &robot, const PointFrame &frame = PointFrame());

/// Taught points that generation will need and that are not there, one sentence each. `plugin` holds the
/// global lists.
PALX_API QStringList untaughtPoints(const orba::Node &stack, const orba::Node &plugin);
/// Heights at which what is carried could hit what lies beside its place, one sentence each: a product that comes straight from
/// above crosses its neighbours, which are as high as it is, on its way to the ready point. Others come from their free side.
/// Not for one-point calibration, which adds the product's height.
PALX_API QStringList lowWaypoints(const orba::Node &stack, const orba::Node &plugin);

/// Which pallet's offsets and origin the recipe uses: "pallet_position" 0 is left, 1 right.
enum class PalletPlace { Left, Right, Unknown };
PALX_API PalletPlace palletPlace(const orba::Node &stack);

} // namespace palx

#pragma once

#include "ix/calc.h"
#include "orba/module_object.h"

/// In which frame the numbers of a point record hold, and of which point of the robot.
///
/// Robot programs run with the recipe's tool in the recipe's work object; the robot tells where its flange stands in its base.
/// A point that is taught, or driven to by hand, goes from the one to the other.
namespace palx {

/// `reference` is seen from the robot's base, `tool` from the flange [m].
struct PALX_API PointFrame
{
    ix::calc::Pose reference = ix::calc::Pose::Identity();
    ix::calc::Pose tool = ix::calc::Pose::Identity();
    bool isOnPallet = false; ///< `reference` is the recipe's pallet frame, else the robot's base
    bool isOfTool = false;   ///< the tool was measured
    QString problem;         ///< operator's text: why the reference is not known; empty when it is

    /// Numbers are then those of the flange in the base, to the last digit.
    bool isPlain() const { return reference.matrix().isIdentity(0) && tool.matrix().isIdentity(0); }
    /// Of the flange in the base, for a pose of the tool's point in this frame, and back.
    ix::calc::Pose flange(const ix::calc::Pose &point) const;
    ix::calc::Pose point(const ix::calc::Pose &flange) const;
};

/// Whether a recipe has a pallet frame of its own, good or not, other than the robot's base.
PALX_API bool hasPalletFrame(const orba::Node &stack);

/// The pallet's frame of a recipe with a work object of its own, seen from the robot's base [m], or why its calibration points
/// give none. Without calibration points it is the reference frame of the recipe's toolset; `frame` is the base for recipes on
/// the shared work objects, whose points are reckoned in the base.
PALX_API ix::calc::Calibration palletFrame(const orba::Node &stack);

/// The frame of a point record by its place in the tree: place points of a recipe are those of its tool in its pallet frame,
/// pick and calibration points those of its tool in the base, points of the shared lists those of the shared tool, and points
/// for measuring a tool (children of a "tool") those of the flange. A record anywhere else is of the flange in the base.
PALX_API PointFrame pointFrame(const orba::Node &point);

/// The same for a child of `holder`, which need not be there yet.
PALX_API PointFrame pointFrame(const orba::Node &holder, QStringView key);

} // namespace palx

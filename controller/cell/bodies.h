#pragma once

#include "controller/pose.h"

#include <string>

namespace controller::cell {

/// A block: where its centre is and how it is turned, in the cell's frame (the robot's base while the lift column is down),
/// and half of its edges. Metres.
struct Block
{
    Pose pose = Pose::Identity();
    Vector half = Vector::Zero();

    /// Distance from the centre to a corner.
    double reach() const { return half.norm(); }
    /// Height of the highest and of the lowest corner.
    double top() const { return pose.translation().z() + extent(Vector::UnitZ()); }
    double bottom() const { return pose.translation().z() - extent(Vector::UnitZ()); }
    /// Half of the length of its shadow on a direction of length 1.
    double extent(const Vector &direction) const
    {
        return (pose.linear().transpose() * direction).cwiseAbs().dot(half);
    }
};

/// What stands in the cell.
struct Body
{
    enum class Kind { Box, WaitingBox, Pallet, Sheet, Column, Floor } kind = Kind::Box;
    int side = 0;  ///< of Box, Pallet, Sheet: 0 left, 1 right
    int layer = 0; ///< of Box, Sheet; from 1
    int piece = 0; ///< of Box; from 1
    Block block;
};

/// "box 3 of layer 2 on the left pallet", "left pallet", "floor"; in English, as in traces and reports for integrators.
std::string nameOf(const Body &body);

} // namespace controller::cell

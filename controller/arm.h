#pragma once

#include "controller/pose.h"

#include <array>

/// The simulated robot's arm: six joints of palletizing size, the last three meeting in one point. Joints in radians.
/// All zero: upper arm upright, forearm straight ahead, flange looking ahead.
namespace controller {

using Joints = std::array<double, 6>;

namespace arm {

// Lengths in metres. Straight out, the wrist stands 0.30 + 1.05 + 1.05 m from the axis of the first joint.
constexpr double kShoulderAhead = 0.30;
constexpr double kShoulderHeight = 0.70;
constexpr double kUpperArm = 1.05;
constexpr double kForearm = 1.05;
constexpr double kFlange = 0.20; ///< from the wrist to the flange

struct Axis
{
    double min;             ///< [rad]
    double max;             ///< [rad]
    double maxSpeed;        ///< [rad/s]
    double maxAcceleration; ///< [rad/s^2]
};

/// The first joint reaches a pallet on either side of a conveyor behind the robot without turning back. The third joint stops before the elbow is straight, so that there is one way to reach each place in front.
constexpr std::array<Axis, 6> kAxes{{
    {radians(-275), radians(275), radians(130), radians(450)},
    {radians(-60), radians(120), radians(115), radians(400)},
    {radians(-85), radians(75), radians(125), radians(450)},
    {radians(-350), radians(350), radians(190), radians(900)},
    {radians(-125), radians(125), radians(180), radians(900)},
    {radians(-450), radians(450), radians(260), radians(1200)},
}};

/// Where the robot waits: flange looking down at 1.35 m ahead, 1.55 m high.
constexpr Joints kHome{0, 0, 0, 0, kPi / 2, 0};

/// The pose of the flange in the robot's base; z looks away from the arm.
Pose forward(const Joints &joints);

/// Joints that bring the flange to `flange`, within the limits and as near as can be to `near`. False with a reason and
/// its figure when the place is out of reach or a joint would stand outside its limits.
bool inverse(const Pose &flange, const Joints &near, Joints *joints, QString *why);

/// Why these joints are no posture of the arm; empty when they are.
QString limitFault(const Joints &joints);

} // namespace arm
} // namespace controller

#pragma once

#include "orba/node.h"

#include <Eigen/Geometry>

/// Poses as the controller reckons with them. Metres and radians; the angles A, B, C are rotations about the fixed axes
/// x, y, z, applied as Rz(C) * Ry(B) * Rx(A).
namespace controller {

using Pose = Eigen::Isometry3d;
using Vector = Eigen::Vector3d;

constexpr double kPi = 3.14159265358979323846;
constexpr double radians(double degrees)
{
    return degrees * (kPi / 180);
}
constexpr double degrees(double radians)
{
    return radians * (180 / kPi);
}

Eigen::Matrix3d rotationOf(const Vector &abc);
/// B lies in [-90, 90] degrees; where B is +-90 degrees, A is 0.
Vector anglesOf(const Eigen::Matrix3d &rotation);
Pose poseOf(const Vector &trans, const Vector &abc);

/// Angle between two orientations, 0 to pi.
double angleBetween(const Eigen::Matrix3d &a, const Eigen::Matrix3d &b);

/// The pose of a record with "trans" and "rot". False with a reason, which names what is wrong below `record`, when one
/// of them is not three finite numbers.
bool readPose(const orba::Node &record, Pose *pose, QString *why);
/// Makes or overwrites "trans" and "rot".
void writePose(const Pose &pose, orba::Node *record);

/// Why the child `key` of `record` is no list of `count` finite numbers; empty when it is one.
QString numbersFault(const orba::Node &record, QStringView key, int count);

} // namespace controller

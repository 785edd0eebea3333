#pragma once

#include "orba/node.h"

#include <Eigen/Geometry>

/// Frames and rotations. A pose is an isometry with its translation in metres. The angles A, B, C are radians
/// about the fixed axes x, y, z, applied as Rz(C) * Ry(B) * Rx(A). No function keeps state; any thread.
namespace ix {
namespace calc {

using Pose = Eigen::Isometry3d;
using Vector = Eigen::Vector3d; ///< a position [m] or the angles A, B, C [rad]

/// The outcome of a calibration: a frame, or why the points do not give one.
struct PALX_API Calibration
{
    Pose frame = Pose::Identity();
    QString error; ///< operator's text with the measured distance or angle; empty when the frame is good
    bool ok() const { return error.isEmpty(); }
};

/// Calibration points nearer than this cannot give a direction: a taught point is good to about a millimetre.
constexpr double kMinDistanceM = 0.010;
/// Directions closer than this to each other (or to opposite) cannot give a plane.
constexpr double kMinAngleDeg = 5.0;

PALX_API Eigen::Matrix3d rotation(const Vector &abc);
/// The angles of a rotation, B in [-90, 90] degrees. At B = +-90 degrees only C - A or C + A is known; A is
/// then 0.
PALX_API Vector angles(const Eigen::Matrix3d &rotation);

/// The pose of a point record ("trans" in metres, "rot" in radians); what is missing counts as 0.
PALX_API Pose toPose(const orba::Node &point);
PALX_API Pose toPose(const Vector &trans, const Vector &abc);
/// Writes "trans" and "rot" of a point record, which must hold them; what is missing is not made. "near" and
/// "conf" stay. Returns whether something changed; handles are not told.
PALX_API bool writePose(const Pose &pose, orba::Node &point);

/// Frame from its origin, a point on its positive x axis and a point on the side of positive y in its xy
/// plane.
PALX_API Calibration calibrateOXY(const Vector &origin, const Vector &onX, const Vector &onXY);
/// Frame with its origin at a point and axes parallel to those of a given frame.
PALX_API Pose calibrateOXYParallel(const Vector &origin, const Pose &parallelTo);

/// A pose given in `frame`, seen from the system in which `frame` is given.
PALX_API Pose transformFrame(const Pose &frame, const Pose &pose);
PALX_API Pose inverseFrame(const Pose &frame);

/// The angles A, B, C of a quaternion (need not be of length 1; zero length gives zero angles), and back (w
/// >= 0).
PALX_API Vector quaternion2Rot(const Eigen::Quaterniond &quaternion);
PALX_API Eigen::Quaterniond rot2Quaternion(const Vector &abc);

} // namespace calc
} // namespace ix

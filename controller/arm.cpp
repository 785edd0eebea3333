#include "controller/arm.h"

#include "controller/texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace controller::arm {

namespace {

using Eigen::AngleAxisd;
using Eigen::Matrix3d;
using Eigen::Translation3d;

/// Below this sine of the fifth joint the fourth and sixth turn about one axis.
constexpr double kStraightWrist = 1e-9;
/// Joints are compared with their limits to this [rad], so that a posture on a limit stays one after reckoning.
constexpr double kOnLimit = 1e-9;

AngleAxisd aboutX(double angle)
{
    return AngleAxisd(angle, Vector::UnitX());
}
AngleAxisd aboutY(double angle)
{
    return AngleAxisd(angle, Vector::UnitY());
}
AngleAxisd aboutZ(double angle)
{
    return AngleAxisd(angle, Vector::UnitZ());
}

double overshoot(double angle, const Axis &axis)
{
    return std::max({0.0, angle - axis.max, axis.min - angle});
}

/// The same angle, whole turns away, that lies within the limits and nearest to `near`; nearest to the limits when none
/// lies within.
double turnedNear(double angle, double near, const Axis &axis)
{
    const double base = angle + 2 * kPi * std::round((near - angle) / (2 * kPi));
    double best = base;
    double bestCost = std::numeric_limits<double>::infinity();
    for (int turn = -2; turn <= 2; ++turn) {
        const double candidate = base + 2 * kPi * turn;
        const double out = overshoot(candidate, axis);
        const double cost = std::abs(candidate - near) + (out > kOnLimit ? 1e3 * (1 + out) : 0);
        if (cost < bestCost) {
            bestCost = cost;
            best = candidate;
        }
    }
    return best;
}

/// The wrist seen from the shoulder, in the plane of the arm: ahead and up [m].
struct WristPlace
{
    double ahead;
    double up;
    double distance() const { return std::hypot(ahead, up); }
};

WristPlace wristPlace(const Vector &wrist, bool backwards)
{
    const double out = std::hypot(wrist.x(), wrist.y());
    return {(backwards ? -out : out) - kShoulderAhead, wrist.z() - kShoulderHeight};
}

/// The first three joints: 0 to 2 filled. False when the wrist is too far.
bool placeWrist(const Vector &wrist, bool backwards, bool elbowDown, const Joints &near, Joints *joints)
{
    const WristPlace place = wristPlace(wrist, backwards);
    const double sine = (kUpperArm * kUpperArm + kForearm * kForearm - place.distance() * place.distance()) /
                        (2 * kUpperArm * kForearm);
    if (std::abs(sine) > 1)
        return false;
    const bool isOnAxis = wrist.head<2>().norm() < 1e-9; // any turn of the first joint will do
    const double turn = isOnAxis ? near[0] : std::atan2(wrist.y(), wrist.x()) + (backwards ? kPi : 0);
    const double elbow = elbowDown ? kPi - std::asin(sine) : std::asin(sine);
    (*joints)[0] = turn;
    (*joints)[1] = std::atan2(place.ahead, place.up) -
                   std::atan2(kForearm * std::cos(elbow), kUpperArm - kForearm * std::sin(elbow));
    (*joints)[2] = elbow;
    return true;
}

Matrix3d forearmRotation(const Joints &joints)
{
    return (aboutZ(joints[0]) * aboutY(joints[1] + joints[2])).toRotationMatrix();
}

/// The last three joints from the orientation of the flange against the forearm.
void turnWrist(const Matrix3d &flange, bool flipped, const Joints &near, Joints *joints)
{
    const Matrix3d r = forearmRotation(*joints).transpose() * flange * aboutY(-kPi / 2).toRotationMatrix();
    const double sine = std::hypot(r(1, 0), r(2, 0));
    const double sign = flipped ? -1 : 1;
    (*joints)[4] = sign * std::atan2(sine, r(0, 0));
    if (sine < kStraightWrist) {
        (*joints)[3] = near[3];
        (*joints)[5] = std::atan2(r(2, 1), r(1, 1)) - near[3];
        return;
    }
    (*joints)[3] = std::atan2(sign * r(1, 0), -sign * r(2, 0));
    (*joints)[5] = std::atan2(sign * r(0, 1), sign * r(0, 2));
}

/// How far outside the limits, then how far from `near`.
double costOf(const Joints &joints, const Joints &near)
{
    double out = 0;
    double way = 0;
    for (std::size_t i = 0; i < joints.size(); ++i) {
        out = std::max(out, overshoot(joints[i], kAxes[i]));
        way += std::abs(joints[i] - near[i]);
    }
    return way + (out > kOnLimit ? 1e3 * (1 + out) : 0);
}

QString reachFault(const Vector &wrist)
{
    return Texts::tr("out of reach: the wrist would stand %1 mm from the shoulder, the arm reaches %2 mm")
        .arg(1000 * wristPlace(wrist, false).distance(), 0, 'f', 0)
        .arg(1000 * (kUpperArm + kForearm), 0, 'f', 0);
}

} // namespace

Pose forward(const Joints &q)
{
    Pose pose = Pose::Identity();
    pose.rotate(aboutZ(q[0]));
    pose.translate(Vector(kShoulderAhead, 0, kShoulderHeight));
    pose.rotate(aboutY(q[1])).translate(Vector(0, 0, kUpperArm));
    pose.rotate(aboutY(q[2])).translate(Vector(kForearm, 0, 0));
    pose.rotate(aboutX(q[3])).rotate(aboutY(q[4])).rotate(aboutX(q[5]));
    pose.translate(Vector(kFlange, 0, 0)).rotate(aboutY(kPi / 2)); // z leaves the flange
    return pose;
}

bool inverse(const Pose &flange, const Joints &near, Joints *joints, QString *why)
{
    const Vector wrist = flange * Vector(0, 0, -kFlange);
    double bestCost = std::numeric_limits<double>::infinity();
    Joints best{};
    for (int branch = 0; branch < 8; ++branch) {
        Joints candidate{};
        if (!placeWrist(wrist, branch & 1, branch & 2, near, &candidate))
            continue;
        turnWrist(flange.linear(), branch & 4, near, &candidate);
        for (std::size_t i = 0; i < candidate.size(); ++i)
            candidate[i] = turnedNear(candidate[i], near[i], kAxes[i]);
        const double cost = costOf(candidate, near);
        if (cost < bestCost) {
            bestCost = cost;
            best = candidate;
        }
    }
    const bool isReached = std::isfinite(bestCost);
    *why = isReached ? limitFault(best) : reachFault(wrist);
    if (!why->isEmpty())
        return false;
    *joints = best;
    return true;
}

QString limitFault(const Joints &joints)
{
    for (std::size_t i = 0; i < joints.size(); ++i) {
        const Axis &axis = kAxes[i];
        if (overshoot(joints[i], axis) <= kOnLimit)
            continue;
        return Texts::tr("joint %1 would stand at %2°, its limits are %3° and %4°")
            .arg(i + 1)
            .arg(degrees(joints[i]), 0, 'f', 1)
            .arg(degrees(axis.min), 0, 'f', 0)
            .arg(degrees(axis.max), 0, 'f', 0);
    }
    return {};
}

} // namespace controller::arm

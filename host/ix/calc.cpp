#include "ix/calc.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace ix {
namespace calc {

namespace {

constexpr double kDegree = M_PI / 180.0;
// Below this cosine of B, A and C turn about the same axis within rounding (the root of a double's) and are
// not told apart.
constexpr double kGimbalCosine = 1e-8;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ix::calc)
};

Vector readVector(const orba::Node &point, QStringView key)
{
    Vector vector = Vector::Zero();
    if (const orba::Node *list = point.child(key))
        for (int i = 0; i < 3; ++i)
            vector[i] = list->number(i);
    return vector;
}

bool writeVector(const Vector &vector, orba::Node &point, QStringView key)
{
    orba::Node *list = point.child(key);
    bool changed = false;
    for (int i = 0; list && i < 3; ++i)
        changed = list->setNumber(i, vector[i]) || changed;
    return changed;
}

Calibration refuse(const QString &reason)
{
    Calibration refused;
    refused.error = reason;
    return refused;
}

QString tooNear(const QString &names, double distanceM)
{
    return Text::tr("%1 are only %2 mm apart; at least %3 mm are needed.")
        .arg(names)
        .arg(distanceM * 1000.0, 0, 'f', 2)
        .arg(kMinDistanceM * 1000.0, 0, 'f', 0);
}

} // namespace

Eigen::Matrix3d rotation(const Vector &abc)
{
    return (Eigen::AngleAxisd(abc[2], Vector::UnitZ()) * Eigen::AngleAxisd(abc[1], Vector::UnitY()) *
            Eigen::AngleAxisd(abc[0], Vector::UnitX()))
        .toRotationMatrix();
}

Vector angles(const Eigen::Matrix3d &r)
{
    const double cosB = std::hypot(r(0, 0), r(1, 0));
    const double a = cosB < kGimbalCosine ? 0.0 : std::atan2(r(2, 1), r(2, 2));
    // C is read after A is turned back, so that the two together stay exact however A was chosen.
    const double sinA = std::sin(a);
    const double cosA = std::cos(a);
    const double c = std::atan2(sinA * r(0, 2) - cosA * r(0, 1), cosA * r(1, 1) - sinA * r(1, 2));
    return {a, std::atan2(-r(2, 0), cosB), c};
}

Pose toPose(const Vector &trans, const Vector &abc)
{
    Pose pose = Pose::Identity();
    pose.linear() = rotation(abc);
    pose.translation() = trans;
    return pose;
}

Pose toPose(const orba::Node &point)
{
    return toPose(readVector(point, u"trans"), readVector(point, u"rot"));
}

bool writePose(const Pose &pose, orba::Node &point)
{
    const bool moved = writeVector(pose.translation(), point, u"trans");
    return writeVector(angles(pose.linear()), point, u"rot") || moved;
}

Calibration calibrateOXY(const Vector &origin, const Vector &onX, const Vector &onXY)
{
    const Vector alongX = onX - origin;
    const Vector inPlane = onXY - origin;
    if (!alongX.allFinite() || !inPlane.allFinite())
        return refuse(Text::tr("A calibration point holds no number."));
    if (alongX.norm() < kMinDistanceM)
        return refuse(tooNear(Text::tr("The origin and the point on X"), alongX.norm()));
    if (inPlane.norm() < kMinDistanceM)
        return refuse(tooNear(Text::tr("The origin and the point on the XY plane"), inPlane.norm()));
    const Vector normal = alongX.cross(inPlane);
    const double angle = std::atan2(normal.norm(), std::abs(alongX.dot(inPlane))) / kDegree;
    if (angle < kMinAngleDeg)
        return refuse(
            Text::tr("The directions to the two points differ by only %1 degrees; at least %2 are needed.")
                .arg(angle, 0, 'f', 2)
                .arg(kMinAngleDeg, 0, 'f', 0));
    const Vector x = alongX.normalized();
    const Vector z = normal.normalized();
    Calibration good;
    good.frame.linear() << x, z.cross(x), z;
    good.frame.translation() = origin;
    return good;
}

Pose calibrateOXYParallel(const Vector &origin, const Pose &parallelTo)
{
    Pose frame = parallelTo;
    frame.translation() = origin;
    return frame;
}

Pose transformFrame(const Pose &frame, const Pose &pose)
{
    return frame * pose;
}

Pose inverseFrame(const Pose &frame)
{
    return frame.inverse(Eigen::Isometry);
}

Vector quaternion2Rot(const Eigen::Quaterniond &quaternion)
{
    const double length = quaternion.norm();
    if (!(length > 0.0) || !std::isfinite(length))
        return Vector::Zero();
    return angles(quaternion.normalized().toRotationMatrix());
}

Eigen::Quaterniond rot2Quaternion(const Vector &abc)
{
    Eigen::Quaterniond quaternion(rotation(abc));
    if (quaternion.w() < 0.0)
        quaternion.coeffs() *= -1.0;
    return quaternion;
}

} // namespace calc
} // namespace ix

#include "controller/pose.h"

#include "controller/texts.h"

#include <cmath>

namespace controller {

using orba::Node;

namespace {

/// Nearer to 1 the sine of B cannot tell A from C.
constexpr double kUprightSine = 1 - 1e-12;

Vector vectorOf(const Node &list)
{
    return {list.number(0), list.number(1), list.number(2)};
}

void writeVector(const Vector &vector, Node *record, const char16_t *key)
{
    record->ensureChild(orba::Name(key))->setDoubles(vector.data(), 3);
}

bool isNumber(const Node &list, int i)
{
    if (list.isPacked())
        return true;
    const Node::Kind kind = list.at(i)->kind();
    return kind == Node::Kind::Int || kind == Node::Kind::Double;
}

} // namespace

Eigen::Matrix3d rotationOf(const Vector &abc)
{
    using Eigen::AngleAxisd;
    return (AngleAxisd(abc.z(), Vector::UnitZ()) * AngleAxisd(abc.y(), Vector::UnitY()) *
            AngleAxisd(abc.x(), Vector::UnitX()))
        .toRotationMatrix();
}

Vector anglesOf(const Eigen::Matrix3d &r)
{
    const double sine = -r(2, 0);
    if (std::abs(sine) >= kUprightSine)
        return {0, std::copysign(kPi / 2, sine), std::atan2(-r(0, 1), r(1, 1))};
    return {std::atan2(r(2, 1), r(2, 2)), std::asin(sine), std::atan2(r(1, 0), r(0, 0))};
}

Pose poseOf(const Vector &trans, const Vector &abc)
{
    Pose pose = Pose::Identity();
    pose.translation() = trans;
    pose.linear() = rotationOf(abc);
    return pose;
}

double angleBetween(const Eigen::Matrix3d &a, const Eigen::Matrix3d &b)
{
    return Eigen::Quaterniond(a).angularDistance(Eigen::Quaterniond(b));
}

QString numbersFault(const Node &record, QStringView key, int count)
{
    const QString name = key.toString();
    const Node *list = record.child(key);
    if (!list)
        return Texts::tr("\"%1\" is missing").arg(name);
    if (!list->isContainer() || list->size() != count)
        return Texts::tr("\"%1\" is no list of %2 numbers").arg(name).arg(count);
    for (int i = 0; i < count; ++i)
        if (!isNumber(*list, i) || !std::isfinite(list->number(i)))
            return Texts::tr("\"%1.#%2\" is no number").arg(name).arg(i);
    return {};
}

bool readPose(const Node &record, Pose *pose, QString *why)
{
    for (const QStringView key : {QStringView(u"trans"), QStringView(u"rot")}) {
        *why = numbersFault(record, key, 3);
        if (!why->isEmpty())
            return false;
    }
    *pose =
        poseOf(vectorOf(*record.child(QStringView(u"trans"))), vectorOf(*record.child(QStringView(u"rot"))));
    return true;
}

void writePose(const Pose &pose, Node *record)
{
    writeVector(pose.translation(), record, u"trans");
    writeVector(anglesOf(pose.linear()), record, u"rot");
}

} // namespace controller

#include "controller/motion_plan.h"

#include "controller/texts.h"

#include <algorithm>
#include <cmath>

namespace controller {

namespace {

constexpr int kMaxSamples = 1000;      // a way of 5 m
constexpr double kSampleMargin = 0.95; // limits may be touched between two samples
constexpr double kHalfTurn = radians(179.99);
constexpr double kNothing = 1e-12;

int stepsFor(double way, double angle, const MotionSampling &sampling)
{
    const double steps = std::ceil(std::max(way / sampling.way, angle / sampling.angle));
    return std::clamp(static_cast<int>(steps), sampling.least, kMaxSamples);
}

double largestTurn(const Joints &a, const Joints &b)
{
    double turn = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        turn = std::max(turn, std::abs(a[i] - b[i]));
    return turn;
}

QString jumpFault(const Joints &a, const Joints &b, double share, double maxJump)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::abs(a[i] - b[i]) > maxJump)
            return Texts::tr("after %1 % of the straight way joint %2 would turn by %3° at one place")
                .arg(100 * share, 0, 'f', 0)
                .arg(i + 1)
                .arg(degrees(std::abs(a[i] - b[i])), 0, 'f', 0);
    return {};
}

Joints mix(const Joints &a, const Joints &b, double share)
{
    Joints joints;
    for (std::size_t i = 0; i < a.size(); ++i)
        joints[i] = a[i] + share * (b[i] - a[i]);
    return joints;
}

/// How fast a joint turns and bends over the way: first and second derivative, their largest amounts.
struct Shape
{
    double slope = 0;
    double bend = 0;
};

Shape shapeOf(const std::vector<Joints> &samples, std::size_t joint)
{
    const auto n = static_cast<double>(samples.size() - 1);
    Shape shape;
    for (std::size_t k = 1; k < samples.size(); ++k) {
        const double slope = (samples[k][joint] - samples[k - 1][joint]) * n;
        shape.slope = std::max(shape.slope, std::abs(slope));
        if (k + 1 == samples.size())
            continue;
        const double next = (samples[k + 1][joint] - samples[k][joint]) * n;
        shape.bend = std::max(shape.bend, std::abs(next - slope) * n);
    }
    return shape;
}

double toolWay(const std::vector<Joints> &samples, const Pose &tool)
{
    Vector last = (arm::forward(samples.front()) * tool).translation();
    double longest = 0;
    for (const Joints &joints : samples) {
        const Vector now = (arm::forward(joints) * tool).translation();
        longest = std::max(longest, (now - last).norm());
        last = now;
    }
    return longest * static_cast<double>(samples.size() - 1);
}

} // namespace

bool MotionPlan::make(const MotionWish &wish, const Joints &from, MotionPlan *plan, QString *why,
                      const MotionSampling &sampling)
{
    MotionPlan made;
    made.wish_ = wish;
    made.start_ = arm::forward(from) * wish.tool;
    made.turn_ = Eigen::Quaterniond(made.start_.linear().transpose() * wish.target.linear());
    if (!(wish.straight ? made.sampleEitherWay(from, sampling, why) : made.sampleJoints(from, sampling, why)))
        return false;
    made.limit();
    *plan = std::move(made);
    return true;
}

/// The shorter turn, or the longer one. Of a half turn, where both are as long, the one that winds the hand up less.
bool MotionPlan::sampleEitherWay(const Joints &from, const MotionSampling &sampling, QString *why)
{
    QString whyLonger;
    const bool isShort = sampleStraight(from, sampling, why);
    const bool isHalf = turn_.angle() >= kHalfTurn;
    if (isShort ? !isHalf : turn_.angle() < kLongTurn)
        return isShort;
    MotionPlan longer = *this;
    longer.turn_.angle() -= 2 * kPi;
    const bool isLong = longer.sampleStraight(from, sampling, &whyLonger);
    if (isLong && (!isShort || std::abs(longer.goal()[5]) < std::abs(goal()[5])))
        *this = std::move(longer);
    return isShort || isLong;
}

bool MotionPlan::sampleStraight(const Joints &from, const MotionSampling &sampling, QString *why)
{
    const int steps = stepsFor((wish_.target.translation() - start_.translation()).norm(),
                               std::abs(turn_.angle()), sampling);
    samples_.assign(1, from);
    for (int k = 1; k <= steps; ++k) {
        const double share = static_cast<double>(k) / steps;
        Joints joints;
        if (!arm::inverse(flangeAt(share), samples_.back(), &joints, why)) {
            if (k < steps)
                *why = Texts::tr("after %1 % of the straight way: %2").arg(100 * share, 0, 'f', 0).arg(*why);
            return false;
        }
        *why = jumpFault(joints, samples_.back(), share, sampling.maxJump);
        if (!why->isEmpty())
            return false;
        samples_.push_back(joints);
    }
    return true;
}

bool MotionPlan::sampleJoints(const Joints &from, const MotionSampling &sampling, QString *why)
{
    Joints goal;
    if (!arm::inverse(wish_.target * wish_.tool.inverse(), from, &goal, why))
        return false;
    const int steps = stepsFor(0, largestTurn(from, goal), sampling);
    for (int k = 0; k <= steps; ++k)
        samples_.push_back(mix(from, goal, static_cast<double>(k) / steps));
    return true;
}

/// The trapezoid over shares of the way that keeps the tool's speed and every joint's speed and acceleration. A joint's
/// acceleration is slope * a + bend * v^2: half of what it may is kept for the bend.
void MotionPlan::limit()
{
    const double way = toolWay(samples_, wish_.tool);
    double speed = 1e6;
    double acceleration = 1e6;
    if (way > kNothing) {
        const double asked = std::min(wish_.speed, kMaxSpeed);
        speed = wish_.straight ? asked / way : kSampleMargin * asked / way;
        acceleration = wish_.straight ? kMaxAcceleration / way : acceleration;
    }
    std::array<Shape, 6> shapes;
    double turn = 0;
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const arm::Axis &axis = arm::kAxes[i];
        shapes[i] = shapeOf(samples_, i);
        turn = std::max(turn, shapes[i].slope);
        speed = std::min(speed, kSampleMargin * axis.maxSpeed / std::max(shapes[i].slope, kNothing));
        speed = std::min(speed, std::sqrt(axis.maxAcceleration / 2 / std::max(shapes[i].bend, kNothing)));
    }
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const double left = kSampleMargin * arm::kAxes[i].maxAcceleration - shapes[i].bend * speed * speed;
        acceleration = std::min(acceleration, left / std::max(shapes[i].slope, kNothing));
    }
    if (way > kNothing || turn > kNothing)
        profile_ = Trapezoid(1, speed, acceleration);
}

Pose MotionPlan::toolAt(double share) const
{
    Pose tool = Pose::Identity();
    tool.translation() = start_.translation() + share * (wish_.target.translation() - start_.translation());
    tool.linear() = start_.linear() * Eigen::AngleAxisd(share * turn_.angle(), turn_.axis());
    return tool;
}

Pose MotionPlan::flangeAt(double share) const
{
    return toolAt(share) * wish_.tool.inverse();
}

Joints MotionPlan::sampleAt(double share) const
{
    const double place = std::clamp(share, 0.0, 1.0) * static_cast<double>(samples_.size() - 1);
    const auto k = std::min(static_cast<std::size_t>(place), samples_.size() - 2);
    return mix(samples_[k], samples_[k + 1], place - static_cast<double>(k));
}

Joints MotionPlan::jointsAt(double share) const
{
    const Joints near = sampleAt(share);
    Joints exact;
    QString why;
    // Between two samples a posture on a limit may seem just outside; the mixture is then near enough.
    return wish_.straight && share < 1 && arm::inverse(flangeAt(share), near, &exact, &why) ? exact : near;
}

} // namespace controller

#include "controller/cell/way.h"

#include <algorithm>
#include <cmath>

namespace controller::cell {

namespace {

/// Shorter moves only turn the tool; there is no corner to round.
constexpr double kNoWay = 1e-6;
constexpr double kSameRate = 1e-9;

/// Seconds that a profile needs for its last `part`.
double secondsFromEnd(const Trapezoid &profile, double part)
{
    const double ramp = profile.topSpeed() / profile.acceleration();
    const double braking = profile.topSpeed() * ramp / 2;
    return part <= braking ? std::sqrt(2 * part / profile.acceleration())
                           : (part - braking) / profile.topSpeed() + ramp;
}

} // namespace

// ---------------------------------------------------------------- one move

double Way::Leg::share(double time) const
{
    const Trapezoid &profile = plan.profile();
    if (begun < 0)
        return 0;
    return profile.length() > 0 ? profile.position(time - begun) : 1;
}

double Way::Leg::reachedAt() const
{
    return zone > 0 ? end() - secondsFromEnd(plan.profile(), zone / length) : end();
}

bool Way::makeLeg(const LegWish &wish, const Joints &from, Leg *leg, QString *why) const
{
    leg->wish = wish;
    const MotionWish motion{true, wish.target, wish.tool, wish.speed};
    if (!MotionPlan::make(motion, from, &leg->plan, why, kCoarseSampling))
        return false;
    leg->length = (wish.target.translation() - leg->plan.start().translation()).norm();
    leg->zone = leg->length > kNoWay ? std::min(wish.zone, leg->length / 2) : 0;
    return true;
}

bool Way::add(const LegWish &wish, QString *why)
{
    Leg leg;
    if (!makeLeg(wish, legs_.empty() ? joints_ : legs_.back().plan.goal(), &leg, why))
        return false;
    leg.added = time_;
    legs_.push_back(std::move(leg));
    beginWhatMay();
    return true;
}

// ---------------------------------------------------------------- pausing

bool Way::resume(QString *why)
{
    if (wasMoved_ && !legs_.empty()) {
        std::deque<Leg> legs;
        for (std::size_t i = begun_ > 1 ? begun_ - 1 : 0; i < legs_.size(); ++i) {
            Leg leg;
            if (!makeLeg(legs_[i].wish, legs.empty() ? joints_ : legs.back().plan.goal(), &leg, why))
                return false;
            leg.added = time_;
            legs.push_back(std::move(leg));
        }
        legs_ = std::move(legs);
        begun_ = 0;
    }
    wasMoved_ = false;
    isPaused_ = false;
    beginWhatMay();
    return true;
}

void Way::drop()
{
    isDropping_ = true;
    if (rate_ == 0 || legs_.empty())
        standAt(joints());
}

void Way::standAt(const Joints &joints)
{
    joints_ = joints;
    if (isDropping_) {
        legs_.clear();
        begun_ = 0;
        isDropping_ = false;
        isPaused_ = false;
    }
    wasMoved_ = !legs_.empty();
}

// ---------------------------------------------------------------- time

/// How far the time of the way goes on.
double Way::rateStep(double seconds)
{
    const double before = rate_;
    const double change = seconds / kStopTime;
    const double wished = isPaused_ || isDropping_ ? 0 : 1;
    rate_ = legs_.empty() ? wished : std::clamp(wished, rate_ - change, rate_ + change);
    if (std::abs(rate_ - wished) < kSameRate)
        rate_ = wished;
    return (before + rate_) / 2 * seconds;
}

void Way::advance(double seconds)
{
    time_ += rateStep(seconds);
    beginWhatMay();
    retire();
    if (isDropping_ && rate_ == 0)
        standAt(joints());
}

double Way::beginOf(const Leg &before, const Leg &next) const
{
    const Trapezoid &profile = before.plan.profile();
    const double zone = std::min(before.zone, next.length / 2);
    const bool isRounded = zone > kNoWay && before.wish.tool.isApprox(next.wish.tool, 1e-12);
    if (!isRounded)
        return before.end();
    const double braking = profile.topSpeed() / profile.acceleration();
    return before.end() - std::min(secondsFromEnd(profile, zone / before.length), braking);
}

void Way::beginWhatMay()
{
    while (begun_ < legs_.size()) {
        Leg &next = legs_[begun_];
        double begin = next.added;
        if (begun_ > 0)
            begin = std::max(begin, beginOf(legs_[begun_ - 1], next));
        if (begun_ > 1)
            begin = std::max(begin, legs_[begun_ - 2].end());
        if (begin > time_ || (wasMoved_ && isPaused_))
            return;
        next.begun = begin;
        ++begun_;
        last_ = next.wish.where;
        tool_ = next.wish.tool;
    }
}

void Way::retire()
{
    while (begun_ > 0 && legs_.front().end() <= time_) {
        joints_ = legs_.front().plan.goal();
        legs_.pop_front();
        --begun_;
        beginWhatMay();
    }
}

bool Way::isReached() const
{
    return legs_.empty() || (begun_ == legs_.size() && legs_.back().reachedAt() <= time_);
}

bool Way::isMoving() const
{
    return !legs_.empty() && rate_ > 0;
}

// ---------------------------------------------------------------- where it is

Pose Way::toolPose() const
{
    if (begun_ == 0 || wasMoved_)
        return arm::forward(joints_) * tool_;
    Pose pose = legs_.front().plan.toolAt(legs_.front().share(time_));
    for (std::size_t i = 1; i < begun_; ++i) {
        const Pose &start = legs_[i].plan.start();
        const Pose now = legs_[i].plan.toolAt(legs_[i].share(time_));
        pose.translation() += now.translation() - start.translation();
        pose.linear() = pose.linear() * start.linear().transpose() * now.linear();
    }
    return pose;
}

const script::Location &Way::where() const
{
    return last_;
}

Joints Way::joints() const
{
    if (begun_ == 0 || wasMoved_)
        return joints_;
    const Leg &front = legs_.front();
    const Joints near = front.plan.jointsAt(front.share(time_));
    Joints now;
    QString why;
    const bool isRounding = begun_ > 1;
    return isRounding && arm::inverse(toolPose() * front.wish.tool.inverse(), near, &now, &why) ? now : near;
}

double Way::progress() const
{
    return begun_ == 0 ? 1 : legs_[begun_ - 1].share(time_);
}

} // namespace controller::cell

#include "controller/robot.h"

#include "controller/texts.h"

#include <cmath>

namespace controller {

using orba::Node;

namespace {

constexpr double kMmPerM = 1000;

/// Reads a move. Returns why it is none; empty when `wish` is filled.
QString readWish(const Node &request, const Toolsets &tools, MotionWish *wish)
{
    const QString type = request.getString(u"type");
    if (type != QLatin1String("l") && type != QLatin1String("j"))
        return Texts::tr("\"type\" is \"%1\", neither \"l\" nor \"j\"").arg(type);
    const Node *speed = request.find(u"motion.speed");
    const double mmPerSecond = speed ? speed->toDouble() : 0;
    if (!(mmPerSecond > 0) || !std::isfinite(mmPerSecond))
        return Texts::tr("\"motion.speed\" is no speed: %1").arg(speed ? speed->toString() : QString());
    const Node *point = request.child(QStringView(u"point"));
    Pose target;
    QString why;
    if (!point)
        return Texts::tr("\"point\" is missing");
    if (!readPose(*point, &target, &why))
        return Texts::tr("in \"point\": %1").arg(why);
    Toolsets::Frames frames;
    if (!tools.frames(request.getString(u"motion.toolset"), &frames, &why))
        return why;
    *wish = {type == QLatin1String("l"), frames.reference * target, frames.tool, mmPerSecond / kMmPerM};
    return {};
}

} // namespace

// ---------------------------------------------------------------- one run of a move

double Robot::Run::share() const
{
    if (!isBraking())
        return plan.profile().length() > 0 ? plan.profile().position(seconds) : 1;
    if (seconds >= brakingSeconds())
        return shareAtRest();
    return std::min(brakeFrom + brakeSpeed * seconds - plan.profile().acceleration() * seconds * seconds / 2,
                    1.0);
}

double Robot::Run::shareAtRest() const
{
    return isBraking() ? std::min(brakeFrom + brakeSpeed * brakingSeconds() / 2, 1.0) : 1;
}

bool Robot::Run::isOver() const
{
    return seconds >= (isBraking() ? brakingSeconds() : plan.profile().duration());
}

// ---------------------------------------------------------------- the robot

QString Robot::reckon(const Node &request, const Toolsets &tools, MotionPlan *plan) const
{
    MotionWish wish;
    QString why = readWish(request, tools, &wish);
    const bool brakes = run_ && run_->isBraking();
    if (why.isEmpty())
        MotionPlan::make(wish, brakes ? run_->plan.jointsAt(run_->shareAtRest()) : joints_, plan, &why);
    return why;
}

QString Robot::start(const Node &request, const Toolsets &tools)
{
    if (run_ && (!run_->isBraking() || next_)) {
        stop(Texts::tr("stopped: another move was asked for"));
        return Texts::tr("the robot is moving already");
    }
    Run run;
    QString why = reckon(request, tools, &run.plan);
    if (!why.isEmpty())
        return why;
    sinceHold_ = 0;
    run.move = ++lastMove_;
    if (run_)
        next_ = std::move(run);
    else
        begin(std::move(run));
    return {};
}

QString Robot::check(const Node &request, const Toolsets &tools, Node *result) const
{
    MotionPlan plan;
    QString why = reckon(request, tools, &plan);
    if (!why.isEmpty())
        return why;
    const Joints joints = plan.jointsAt(1);
    result->ensure(u"joints")->setDoubles(joints.data(), static_cast<int>(joints.size()));
    result->ensure(u"seconds")->setDouble(plan.profile().duration());
    return {};
}

void Robot::begin(Run run)
{
    move_ = run.move;
    run_ = std::move(run);
    progress_ = 0;
    arrived_ = false;
    fault_.clear();
}

void Robot::stop(const QString &why)
{
    next_.reset();
    if (!run_ || run_->isBraking())
        return;
    fault_ = why;
    brake();
}

void Robot::brake()
{
    const double share = run_->share();
    run_->brakeSpeed = run_->plan.profile().speed(run_->seconds);
    run_->brakeFrom = share;
    run_->seconds = 0;
}

void Robot::advance(double seconds, double factor)
{
    if (!run_)
        return;
    sinceHold_ += seconds;
    if (sinceHold_ > kHoldTime)
        stop(Texts::tr("stopped: no sign from the held button for %1 ms").arg(1000 * kHoldTime, 0, 'f', 0));
    run_->seconds += seconds * factor;
    progress_ = run_->share();
    joints_ = run_->plan.jointsAt(progress_);
    if (run_->isOver())
        finish();
}

void Robot::finish()
{
    arrived_ = isAtTarget(run_->plan.wish());
    run_.reset();
    if (!next_)
        return;
    begin(std::move(*next_));
    next_.reset();
}

bool Robot::isAtTarget(const MotionWish &wish) const
{
    const Pose now = pose() * wish.tool;
    return (now.translation() - wish.target.translation()).norm() <= kArrivedM &&
           angleBetween(now.linear(), wish.target.linear()) <= kArrivedRad;
}

void Robot::publish(Node *node) const
{
    writePose(pose(), node->ensure(u"pose"));
    node->ensure(u"joints")->setDoubles(joints_.data(), static_cast<int>(joints_.size()));
    node->ensure(u"moving")->setBool(isMoving());
    node->ensure(u"progress")->setDouble(progress_);
    node->ensure(u"arrived")->setBool(arrived_);
    node->ensure(u"fault")->setString(fault_);
    node->ensure(u"move")->setInt(move_);
}

} // namespace controller

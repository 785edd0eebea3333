#include "workstation/held_move.h"

#include "nexo/controller_manager.h"
#include "stack/recipe_points.h"
#include "xservice.h"

#include <QAbstractEventDispatcher>

#include <utility>

namespace palx {

using orba::ModuleObject;
using orba::Node;

namespace {

const QString kStart = QStringLiteral("motion.start");
const QString kHold = QStringLiteral("motion.hold");
const QString kStop = QStringLiteral("motion.stop");
const QString kCheck = QStringLiteral("motion.check");

const Node &robotNode()
{
    return m("nexo.robot")->node();
}

} // namespace

HeldMove::HeldMove(ModuleObject *motion, ModuleObject *point, QObject *parent)
    : QObject(parent), motion_(motion), point_(point)
{
    auto *controller = nexo::ControllerManager::instance();
    connect(controller, &nexo::ControllerManager::rcConnectedChanged, this, &HeldMove::takeLink);
    for (const char *path :
         {"nexo.robot.moving", "nexo.robot.arrived", "nexo.robot.fault", "nexo.robot.move"})
        connect(m(path), &ModuleObject::changed, this, &HeldMove::follow);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &HeldMove::look);
    connect(&signs_, &QTimer::timeout, this, &HeldMove::giveSign);
    signs_.setTimerType(Qt::PreciseTimer);
    signs_.setInterval(kSignMs);
    wasMoving_ = robotNode().getBool(u"moving");
    wish_ = wish();
    takeLink(controller->rcConnected());
}

HeldMove::~HeldMove()
{
    letGo();
}

bool HeldMove::isUnderWay() const
{
    return state_ == State::Starting || state_ == State::Moving || state_ == State::Stopping;
}

double HeldMove::progress() const
{
    const Node &robot = robotNode();
    return move_ != 0 && robot.getInt(u"move") == move_ ? robot.getDouble(u"progress") : 0;
}

void HeldMove::enter(State state, const QString &reason)
{
    state_ = state;
    reason_ = reason;
    Q_EMIT changed();
}

PointFrame HeldMove::frame() const
{
    return point_ ? pointFrame(point_->node()) : PointFrame();
}

/// What the controller is asked for: the flange in the base, whatever frame the point is in.
Node HeldMove::wish() const
{
    Node wish = motion_ ? motion_->node() : Node();
    Node *point = wish.ensure(u"point");
    if (!point_)
        return wish;
    point->assign(point_->node());
    const PointFrame frame = this->frame();
    if (!frame.isPlain())
        ix::calc::writePose(frame.flange(ix::calc::toPose(*point)), *point);
    return wish;
}

bool HeldMove::canMove() const
{
    return motion_ && point_ && isTaught(&point_->node()) && frame().problem.isEmpty();
}

// ---------------------------------------------------------------- the button

void HeldMove::press()
{
    if (held_ || state_ == State::NoLink)
        return;
    look();
    if (!canMove())
        return;
    held_ = true;
    move_ = 0;
    enter(State::Starting);
    ModuleObject request;
    request.copyFrom(wish_);
    const int press = ++presses_;
    const auto answered = [this, press](const XReply &reply) { takeStart(press, reply); };
    if (xservice()->command(this, kStart, &request, answered))
        signs_.start();
    else
        breakOff();
}

void HeldMove::release()
{
    if (!held_)
        return;
    letGo();
    enter(State::Stopping);
    follow();
}

/// The start did not even leave: the way has just broken, or the point has no form that could be sent.
void HeldMove::breakOff()
{
    letGo();
    enter(State::Stopped, tr("The move could not be sent to the controller."));
}

/// No sign leaves any more, and the stop follows the last one on the same way.
void HeldMove::letGo()
{
    signs_.stop();
    if (std::exchange(held_, false))
        xservice()->command(this, kStop, nullptr);
}

void HeldMove::giveSign()
{
    if (held_)
        xservice()->command(this, kHold, nullptr);
}

// ---------------------------------------------------------------- the controller

void HeldMove::takeLink(bool connected)
{
    letGo();
    move_ = 0;
    ++presses_;
    joints_ = Node();
    seconds_ = 0;
    enter(connected ? State::Ready : State::NoLink);
    check();
}

void HeldMove::takeStart(int press, const XReply &reply)
{
    if (press != presses_ || reply.status == XReply::Status::NotConnected)
        return;
    if (!reply.isOk()) {
        letGo();
        enter(reply.status == XReply::Status::Refused ? State::Refused : State::Stopped, reply.error);
        return;
    }
    move_ = reply.value.toInt();
    enter(held_ ? State::Moving : State::Stopping);
    follow();
}

/// Asks whether the robot could go there from where it stands.
void HeldMove::check()
{
    if (state_ == State::NoLink)
        return;
    if (!canMove())
        return enter(State::Untaught, frame().problem);
    ModuleObject request;
    request.copyFrom(wish_);
    const int check = ++checks_;
    xservice()->command(this, kCheck, &request,
                        [this, check](const XReply &reply) { takeCheck(check, reply); });
}

void HeldMove::takeCheck(int check, const XReply &reply)
{
    if (check != checks_ || state_ == State::NoLink)
        return;
    const Node *joints = reply.value.child(u"joints");
    joints_ = joints ? *joints : Node();
    seconds_ = reply.value.getDouble(u"seconds");
    const bool isOpen = state_ == State::Ready || state_ == State::Refused;
    if (isOpen)
        enter(reply.isOk() ? State::Ready : State::Refused, reply.error);
    else
        Q_EMIT changed(); // how the last move ended stays on show
}

void HeldMove::look()
{
    Node now = wish();
    if (now == wish_)
        return;
    wish_ = std::move(now);
    letGo();
    joints_ = Node();
    seconds_ = 0;
    if (state_ == State::NoLink)
        return;
    ++presses_; // an answer to the old wish is no longer of interest
    enter(State::Ready);
    check();
}

/// The robot's state is told before the answer to what changed it.
void HeldMove::follow()
{
    const Node &robot = robotNode();
    const bool isMoving = robot.getBool(u"moving");
    const bool hasStopped = std::exchange(wasMoving_, isMoving) && !isMoving;
    const bool isOwn = move_ != 0 && (state_ == State::Moving || state_ == State::Stopping);
    if (isOwn && (!isMoving || robot.getInt(u"move") > move_))
        end(robot);
    else if (hasStopped && !isUnderWay())
        check(); // from another place another way leads to the point
}

void HeldMove::end(const Node &robot)
{
    const bool isThis = robot.getInt(u"move") == move_;
    letGo();
    if (isThis && robot.getBool(u"arrived"))
        enter(State::Arrived);
    else
        enter(State::Stopped, isThis ? robot.getString(u"fault") : QString());
    check();
}

} // namespace palx

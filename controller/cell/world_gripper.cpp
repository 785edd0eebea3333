// The gripper's part of the world: what it takes, lets go and loses, and where that comes to rest.

#include "controller/cell/world.h"

#include <algorithm>

namespace controller::cell {

namespace {

constexpr double kLoseAfter = 0.5; // [s] carried for so long, a product may fall off
constexpr double kUpright = radians(0.5);
constexpr double kOntoPallet = 0.1; // [m] what falls further lands on the floor

std::string millimetres(double metres)
{
    return std::to_string(std::llround(metres * 1000)) + " mm";
}

} // namespace

void World::moveGripper()
{
    const bool falls =
        hasFault(Fault::LostBox) && gripper_.carries() && liftedOff_ && carriedFor_ >= kLoseAfter;
    if (falls) {
        setFault(Fault::LostBox, false);
        lose("falls off the gripper");
    }
    const bool canHold = !hasFault(Fault::NoVacuum);
    switch (gripper_.advance(kTick, signals_.output(out::kSuction), canHold)) {
    case Gripper::Event::None:
        break;
    case Gripper::Event::Grip:
        grip();
        break;
    case Gripper::Event::LetGo:
        letGo();
        break;
    }
}

void World::grip()
{
    Body box;
    if (way_.isMoving() || !waitingBox(&box) || !Gripper::reaches(tool_, box.block))
        return;
    box = {Body::Kind::Box, plan_->side(), layer_, piece_, box.block};
    waiting_ = box.block;
    gripper_.grip(box, tool_);
    carriedPlan_ = plan_;
    carriedFor_ = 0;
    liftedOff_ = false;
    hitNow_.clear();
}

void World::letGo()
{
    if (!liftedOff_) {
        gripper_.letGo(); // it stays where it was
        liftedOff_ = true;
        return;
    }
    if (way_.isMoving() && !signals_.output(out::kSuction)) {
        violate(way_.where(), "the box is let go while the robot moves");
        return lose("is dropped");
    }
    if (signals_.output(out::kSuction))
        return lose("falls off the gripper");
    Body box = gripper_.carriedAt(tool_);
    settle(std::move(box));
    gripper_.letGo();
}

void World::lose(const char *how)
{
    const Body box = gripper_.letGo();
    ++lost_;
    ++keptVersion_;
    listener_->happened(nameOf(box) + " " + how);
}

bool World::clearGripper()
{
    signals_.setOutput(out::kSuction, false);
    if (!gripper_.carries())
        return false;
    const Body box = gripper_.letGo();
    if (liftedOff_)
        listener_->happened(nameOf(box) + " is taken off the gripper by hand");
    liftedOff_ = true;
    showSensors();
    touch();
    return true;
}

/// What was let go sinks onto what is below it and stays there.
void World::settle(Body box)
{
    std::vector<const Block *> others;
    const Vector at = box.block.pose.translation();
    const double reach = box.block.reach();
    pallet(box.side).visit([&](const Body &body) {
        if ((body.block.pose.translation() - at).head<2>().norm() < reach + body.block.reach())
            others.push_back(&body.block);
    });
    const double tilt = std::acos(std::min(1.0, box.block.pose.linear()(2, 2)));
    if (tilt > kUpright)
        violate(way_.where(),
                "the box is put down tilted by " + std::to_string(std::lround(degrees(tilt))) + " degrees");
    const Support support = supportOf(box.block, others, floor());
    if (support.fall > kMaxFall)
        violate(way_.where(), "the box falls " + millimetres(support.fall));
    else if (support.share < kMinSupport || !support.holdsCentre)
        violate(way_.where(), "the box tips: " + std::to_string(std::lround(100 * support.share)) +
                                  " % of its bottom is carried");
    if (support.fall > kOntoPallet) {
        ++lost_;
        listener_->happened(nameOf(box) + " falls to the floor");
        return;
    }
    box.block.pose.translation().z() -= support.fall;
    Pose point;
    QString why;
    if (!carriedPlan_->point(script::PalletPoint::Wobj, box.layer, box.piece, &point, &why))
        return;
    listener_->happened(nameOf(box) + " rests");
    ++keptVersion_;
    pallet(box.side).put(box, point);
}

} // namespace controller::cell

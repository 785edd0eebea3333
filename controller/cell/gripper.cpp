#include "controller/cell/gripper.h"

#include <cmath>
#include <utility>

namespace controller::cell {

Gripper::Event Gripper::advance(double seconds, bool isSuctionOn, bool canHold)
{
    if (!canHold && carries())
        return Event::LetGo;
    if (isSuctionOn != wasOn_) {
        wasOn_ = isSuctionOn;
        seconds_ = 0;
        isChanging_ = true;
    }
    seconds_ += seconds;
    if (seconds_ < (isSuctionOn ? kBuildTime : kReleaseTime))
        return Event::None;
    const bool hasChanged = std::exchange(isChanging_, false);
    if (isSuctionOn)
        return carries() || !canHold ? Event::None : Event::Grip;
    return carries() && hasChanged ? Event::LetGo : Event::None;
}

void Gripper::grip(const Body &body, const Pose &tool)
{
    carried_ = body;
    carried_->block.pose = tool.inverse() * body.block.pose;
}

Body Gripper::letGo()
{
    Body body = *carried_;
    carried_.reset();
    return body;
}

Body Gripper::carriedAt(const Pose &tool) const
{
    Body body = *carried_;
    body.block.pose = tool * body.block.pose;
    return body;
}

bool Gripper::reaches(const Pose &tool, const Block &block)
{
    const Vector up = block.pose.linear().col(2);
    const Vector top = block.pose.translation() + up * block.half.z();
    const Vector away = tool.translation() - top;
    const double along = away.dot(up);
    return std::abs(along) <= kReachAlong && (away - along * up).norm() <= kReachAcross;
}

} // namespace controller::cell

#include "pattern/frame_tool.h"

#include "pattern/edit_overlay.h"
#include "pattern/rules/edit_pick.h"

namespace palx {

void FrameTool::press(const QPointF &at, double, bool adding)
{
    pressed_ = at_ = at;
    active_ = true;
    before_ = adding ? editing_->selection() : Selection();
    if (!adding)
        editing_->select({});
}

void FrameTool::move(const QPointF &at)
{
    if (!active_)
        return;
    at_ = at;
    editing_->select(before_ + itemsInFrame(editing_->items(), frame()));
}

void FrameTool::release(const QPointF &)
{
    active_ = false;
}

void FrameTool::cancel()
{
    if (active_)
        editing_->select(before_);
    active_ = false;
}

void FrameTool::paint(QPainter *painter) const
{
    if (active_)
        paintFrame(painter, frame());
}

} // namespace palx

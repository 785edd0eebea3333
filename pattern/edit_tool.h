#pragma once

#include <QPointF>

class QPainter;

namespace palx {

/// What a finger or the mouse does on the plan, in the plan's millimetres. One press is followed by any number of
/// moves and by one release or cancel.
class EditTool
{
public:
    virtual ~EditTool() = default;

    /// `pixelMm`: how many millimetres a pixel of the view is, for what depends on the finger and not on the
    /// plan. `adding`: the selection is added to.
    virtual void press(const QPointF &at, double pixelMm, bool adding) = 0;
    virtual void move(const QPointF &at) = 0;
    virtual void release(const QPointF &at) = 0;
    /// The press did not happen.
    virtual void cancel() = 0;
    /// What stands over the plan meanwhile; the painter is set to the plan.
    virtual void paint(QPainter *) const {}
};

} // namespace palx

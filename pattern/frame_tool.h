#pragma once

#include "pattern/edit_tool.h"
#include "pattern/pattern_editing.h"

#include <QRectF>

namespace palx {

/// Chooses the products inside a frame that is drawn on the plan; a tap beside all products chooses none.
class PALX_API FrameTool : public EditTool
{
public:
    explicit FrameTool(PatternEditing *editing) : editing_(editing) {}

    void press(const QPointF &at, double pixelMm, bool adding) override;
    void move(const QPointF &at) override;
    void release(const QPointF &at) override;
    void cancel() override;
    void paint(QPainter *painter) const override;

private:
    QRectF frame() const { return QRectF(pressed_, at_).normalized(); }

    PatternEditing *editing_;
    QPointF pressed_, at_;
    Selection before_; ///< what the frame adds to
    bool active_ = false;
};

} // namespace palx

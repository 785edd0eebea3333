#pragma once

#include "pattern/edit_tool.h"
#include "pattern/pattern_editing.h"
#include "pattern/rules/edit_snap.h"

namespace palx {

/// Chooses and drags products. A press on a product chooses it; a press on one of several chosen ones keeps
/// them, so that they can be dragged together. A tap on a product that is the only chosen one goes to the
/// next below it. While adding, a tap puts a product to the chosen ones or takes it out.
class PALX_API DragTool : public EditTool
{
public:
    explicit DragTool(PatternEditing *editing) : editing_(editing) {}

    /// Whether dragged products snap; they do at first.
    void setSnapping(bool on) { snapping_ = on; }
    bool isSnapping() const { return snapping_; }
    /// Whether a press there would be on a product.
    bool isOver(const QPointF &at, double pixelMm) const;

    void press(const QPointF &at, double pixelMm, bool adding) override;
    void move(const QPointF &at) override;
    void release(const QPointF &at) override;
    void cancel() override;
    void paint(QPainter *painter) const override;

    bool isDragging() const { return dragging_; }
    /// How far the products are from where they were, and what they have snapped to.
    const Snap &snap() const { return snap_; }

private:
    void begin();
    void tap();

    PatternEditing *editing_;
    bool snapping_ = true;
    QVector<int> under_; ///< products under the press, uppermost first
    QPointF pressed_;
    double pixelMm_ = 1;
    bool adding_ = false;
    bool wasOnly_ = false; ///< the pressed product was the only chosen one before
    bool dragging_ = false;
    QVector<PatternItem> before_;
    SnapField field_;
    Snap snap_;
};

} // namespace palx

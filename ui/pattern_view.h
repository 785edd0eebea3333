#pragma once

#include "pattern/drag_tool.h"
#include "pattern/frame_tool.h"
#include "pattern/order_tool.h"
#include "ui/plan_zoom.h"

#include <QGraphicsView>

class QTouchEvent;

/// The plan of a pattern to edit by hand, with finger, mouse and keys.
///
/// One finger or the left button: chooses and drags products, draws a frame beside them; moves the plan while
/// `setPanning` is on. Two fingers: enlarge and move the plan. Wheel: enlarges at the pointer; middle button:
/// moves the plan. Keys: arrows move the chosen products by 1 mm, with Shift by 10 mm; R turns them by 90
/// degrees; Del, Ctrl+A, Ctrl+C, Ctrl+V; Esc drops what goes on, else the choice; + and - enlarge, 0 shows all.
class PALX_API PatternView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit PatternView(QWidget *parent = nullptr);
    ~PatternView() override;

    /// The scene is not owned. Once, before the view is used.
    void showPlan(PatternScene *scene);
    palx::PatternEditing *editing() const { return editing_; }
    palx::DragTool *dragTool() const { return drag_.get(); }
    palx::OrderTool *orderTool() const { return order_; }

    /// A finger moves the plan and not products.
    void setPanning(bool on) { panning_ = on; }
    /// Products keep their places: fingers and keys only choose them.
    void setLocked(bool on) { locked_ = on; }
    /// Taps add to the choice.
    void setAdding(bool on) { adding_ = on; }
    /// Draws the ways that hit something: of chosen products always, of all when on.
    void setWaysShown(bool on);

    /// Shows the plan as it is while the product at that place comes: its way, the later ones veiled; -1: all.
    void setStep(int place);
    int step() const { return step_; }

    void zoomBy(double factor);
    void fitPlan();
    const PlanZoom &zoom() const { return zoom_; }

    /// As large as there is room, whatever it shows.
    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override { mousePressEvent(event); }
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    void showWhole();
    void showZoom();
    QPointF toPlan(const QPointF &pixel) const;
    void press(const QPointF &pixel, bool adding, bool panning);
    void moveTo(const QPointF &pixel);
    void release(const QPointF &pixel);
    void cancelPress();
    void touch(QTouchEvent *event);
    void pinch(const QTouchEvent *event);
    bool pressed() const { return tool_ || pans_; }
    bool editKey(const QKeyEvent *event);
    bool viewKey(int key);
    void nudge(const QPointF &shiftMm, bool repeated);

    PatternScene *plan_ = nullptr;
    palx::PatternEditing *editing_ = nullptr;
    std::unique_ptr<palx::DragTool> drag_;
    std::unique_ptr<palx::FrameTool> frame_;
    palx::OrderTool *order_ = nullptr;
    palx::EditTool *tool_ = nullptr; ///< that the present press belongs to
    PlanZoom zoom_;
    bool panning_ = false;
    bool adding_ = false;
    bool locked_ = false;
    bool waysShown_ = true;
    int step_ = -1;
    bool pans_ = false; ///< the present press moves the plan
    bool panned_ = false;
    bool pressAdds_ = false;
    QPointF pressPixel_, lastPixel_;
    bool pinching_ = false;
    double pinchPixels_ = 1; ///< between the fingers when the pinch began
    double pinchScale_ = 1;
    QPointF pinchPlace_; ///< on the plan, between the fingers
};

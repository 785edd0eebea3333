#include "ui/pattern_view.h"

#include "pattern/edit_overlay.h"
#include "pattern/rules/edit_pick.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include <cmath>
#include <utility>

using palx::PatternEditing;

namespace {

constexpr double kTapPixels = 8; // a tap may tremble by so much
constexpr double kWheelStep = 1.2;
constexpr double kFineMm = 1;
constexpr double kCoarseMm = 10;

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

PatternView::PatternView(QWidget *parent) : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setInteractive(false);
    setTransformationAnchor(NoAnchor);
    viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    // Dimensions are drawn at pixel size over the whole plan, so a part of the view is never up to date
    // alone.
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
}

PatternView::~PatternView()
{
    setScene(nullptr);
}

void PatternView::showPlan(PatternScene *scene)
{
    plan_ = scene;
    editing_ = new PatternEditing(scene, this);
    drag_ = std::make_unique<palx::DragTool>(editing_);
    frame_ = std::make_unique<palx::FrameTool>(editing_);
    order_ = new palx::OrderTool(editing_);
    setScene(scene);
    const auto repaint = [this] { viewport()->update(); };
    connect(editing_, &PatternEditing::selectionChanged, this, repaint);
    connect(editing_, &PatternEditing::previewDropped, this, &PatternView::cancelPress);
    connect(scene, &PatternScene::planChanged, this, [this] {
        if (!plan_->hasPreview()) // the plan stays where it is under a finger
            showWhole();
    });
    showWhole();
}

void PatternView::setWaysShown(bool on)
{
    waysShown_ = on;
    viewport()->update();
}

void PatternView::setStep(int place)
{
    step_ = place;
    viewport()->update();
}

// ---------------------------------------------------------------- what is shown

void PatternView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    showWhole();
}

void PatternView::showWhole()
{
    if (!plan_ || viewport()->width() < 2 || viewport()->height() < 2)
        return;
    zoom_.setWhole(viewport()->size(), plan_->viewRect(viewport()->size()));
    showZoom();
}

void PatternView::showZoom()
{
    setSceneRect(zoom_.shown());
    setTransform(QTransform::fromScale(zoom_.pixelsPerMm(), zoom_.pixelsPerMm()));
    centerOn(zoom_.shown().center());
    viewport()->update();
}

void PatternView::zoomBy(double factor)
{
    zoom_.zoomAt(QPointF(viewport()->rect().center()), factor);
    showZoom();
}

void PatternView::fitPlan()
{
    zoom_.fit();
    showZoom();
}

void PatternView::drawForeground(QPainter *painter, const QRectF &rect)
{
    QGraphicsView::drawForeground(painter, rect);
    if (!plan_)
        return;
    const auto &items = plan_->shownItems();
    const palx::Selection &chosen = editing_->selection();
    if (step_ >= 0)
        palx::paintStep(painter, items, step_, plan_->rules().frame);
    if (waysShown_ || !chosen.isEmpty())
        palx::paintBlockedWays(painter, items, plan_->checks(), plan_->rules().frame,
                               waysShown_ ? palx::Selection() : chosen);
    palx::paintNarrowGaps(painter, items, plan_->checks().narrow);
    palx::paintSelection(painter, items, chosen);
    if (tool_)
        tool_->paint(painter);
}

// ---------------------------------------------------------------- one finger or the mouse

/// As the plan is drawn, which may lie a part of a pixel beside what the zoom asks for.
QPointF PatternView::toPlan(const QPointF &pixel) const
{
    return viewportTransform().inverted().map(pixel);
}

void PatternView::press(const QPointF &pixel, bool adding, bool panning)
{
    if (!plan_ || pressed())
        return;
    pressPixel_ = lastPixel_ = pixel;
    pans_ = panning;
    panned_ = false;
    pressAdds_ = adding || adding_;
    if (panning)
        return;
    const QPointF at = toPlan(pixel);
    const double pixelMm = 1 / zoom_.pixelsPerMm();
    if (order_->isActive())
        tool_ = order_;
    else if (drag_->isOver(at, pixelMm))
        tool_ = drag_.get();
    else
        tool_ = frame_.get();
    tool_->press(at, pixelMm, pressAdds_);
    viewport()->update();
}

void PatternView::moveTo(const QPointF &pixel)
{
    if (tool_ == drag_.get() && locked_)
        return;
    if (tool_) {
        tool_->move(toPlan(pixel));
        viewport()->update();
    } else if (pans_) {
        panned_ = panned_ || lengthOf(pixel - pressPixel_) > kTapPixels;
        if (panned_) {
            zoom_.panBy(pixel - lastPixel_);
            showZoom();
        }
    }
    lastPixel_ = pixel;
}

void PatternView::release(const QPointF &pixel)
{
    if (palx::EditTool *tool = std::exchange(tool_, nullptr))
        tool->release(toPlan(pixel));
    else if (std::exchange(pans_, false) && !panned_) { // a tap chooses whatever a drag would do
        press(pixel, pressAdds_, false);
        release(pixel);
    }
    viewport()->update();
}

void PatternView::cancelPress()
{
    pans_ = false;
    if (palx::EditTool *tool = std::exchange(tool_, nullptr))
        tool->cancel();
    viewport()->update();
}

void PatternView::mousePressEvent(QMouseEvent *event)
{
    const bool middle = event->button() == Qt::MiddleButton;
    if (event->button() == Qt::LeftButton || middle)
        press(event->localPos(), event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier),
              middle || panning_);
}

void PatternView::mouseMoveEvent(QMouseEvent *event)
{
    moveTo(event->localPos());
}

void PatternView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton)
        release(event->localPos());
}

void PatternView::wheelEvent(QWheelEvent *event)
{
    constexpr double kNotch = 120; // what a wheel reports for one notch
    zoom_.zoomAt(event->position(), std::pow(kWheelStep, event->angleDelta().y() / kNotch));
    showZoom();
    event->accept();
}

// ---------------------------------------------------------------- fingers

bool PatternView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        touch(static_cast<QTouchEvent *>(event));
        return true;
    case QEvent::TouchCancel:
        cancelPress();
        pinching_ = false;
        return true;
    default:
        return QGraphicsView::viewportEvent(event);
    }
}

/// A second finger takes the first one's press back and enlarges instead; what is left of a pinch is no press.
void PatternView::touch(QTouchEvent *event)
{
    event->accept();
    const auto &points = event->touchPoints();
    if (event->type() == QEvent::TouchBegin) {
        pinching_ = false;
        setFocus(Qt::MouseFocusReason);
    }
    if (points.size() >= 2)
        pinch(event);
    else if (pinching_ || points.isEmpty())
        pinching_ = pinching_ && event->type() != QEvent::TouchEnd;
    else if (points.first().state() == Qt::TouchPointPressed)
        press(points.first().pos(), false, panning_);
    else if (points.first().state() == Qt::TouchPointReleased)
        release(points.first().pos());
    else
        moveTo(points.first().pos());
}

void PatternView::pinch(const QTouchEvent *event)
{
    const QPointF a = event->touchPoints().at(0).pos();
    const QPointF b = event->touchPoints().at(1).pos();
    const QPointF between = (a + b) / 2;
    const double apart = std::max(lengthOf(b - a), 1.0);
    if (!pinching_) {
        cancelPress();
        pinching_ = true;
        pinchPixels_ = apart;
        pinchScale_ = zoom_.pixelsPerMm();
        pinchPlace_ = zoom_.toPlan(between);
    }
    zoom_.place(pinchPlace_, between, pinchScale_ * apart / pinchPixels_);
    showZoom();
    if (event->type() == QEvent::TouchEnd)
        pinching_ = false;
}

// ---------------------------------------------------------------- keys

void PatternView::keyPressEvent(QKeyEvent *event)
{
    if (!plan_ || (!editKey(event) && !viewKey(event->key())))
        QGraphicsView::keyPressEvent(event);
}

bool PatternView::editKey(const QKeyEvent *event)
{
    const bool coarse = event->modifiers() & Qt::ShiftModifier;
    const double step = coarse ? kCoarseMm : kFineMm;
    if (event->matches(QKeySequence::SelectAll))
        editing_->selectAll();
    else if (locked_)
        return false;
    else if (event->matches(QKeySequence::Copy))
        editing_->copy();
    else if (event->matches(QKeySequence::Paste))
        editing_->paste();
    else if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    else if (event->key() == Qt::Key_Left)
        nudge(QPointF(-step, 0), event->isAutoRepeat());
    else if (event->key() == Qt::Key_Right)
        nudge(QPointF(step, 0), event->isAutoRepeat());
    else if (event->key() == Qt::Key_Up)
        nudge(QPointF(0, -step), event->isAutoRepeat());
    else if (event->key() == Qt::Key_Down)
        nudge(QPointF(0, step), event->isAutoRepeat());
    else if (event->key() == Qt::Key_R)
        editing_->turn(90);
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        editing_->remove();
    else
        return false;
    return true;
}

bool PatternView::viewKey(int key)
{
    switch (key) {
    case Qt::Key_Plus:
        zoomBy(kWheelStep);
        return true;
    case Qt::Key_Minus:
        zoomBy(1 / kWheelStep);
        return true;
    case Qt::Key_0:
        fitPlan();
        return true;
    case Qt::Key_Escape:
        if (order_->isActive())
            order_->drop();
        else if (tool_)
            cancelPress();
        else
            editing_->select({});
        return true;
    default:
        return false;
    }
}

/// A key that is held down makes one step more, however long: its moves are shown and written when it is let go.
void PatternView::nudge(const QPointF &shiftMm, bool repeated)
{
    if (tool_ || order_->isActive())
        return;
    if (!repeated) {
        editing_->move(shiftMm);
        return;
    }
    auto items = editing_->items();
    palx::moveItems(&items, editing_->selection(), shiftMm);
    editing_->preview(items);
}

void PatternView::keyReleaseEvent(QKeyEvent *event)
{
    if (plan_ && !event->isAutoRepeat() && !tool_ && !order_->isActive())
        editing_->commitPreview();
    QGraphicsView::keyReleaseEvent(event);
}

void PatternView::focusOutEvent(QFocusEvent *event)
{
    if (plan_ && !tool_ && !order_->isActive())
        editing_->commitPreview();
    QGraphicsView::focusOutEvent(event);
}

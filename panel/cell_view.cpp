#include "panel/cell_view.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QWheelEvent>

#include <cmath>

namespace panel {

namespace {

constexpr double kZoomPerNotch = 1.2;
constexpr double kFirstTurn = -25; // the left pallet is on the left, the conveyor behind

} // namespace

CellView::CellView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    grabGesture(Qt::PinchGesture);
    drawing_.setScene(CellScene());
    resetView();
}

bool CellView::showScene(const CellScene &scene)
{
    if (scene == drawing_.scene())
        return false;
    drawing_.setScene(scene);
    fit();
    update();
    return true;
}

void CellView::fit()
{
    camera_.setScene(drawing_.bounds(), size());
}

void CellView::turnBy(double degrees)
{
    camera_.turnBy(degrees);
    drawing_.setTurn(camera_.turn());
    fit();
    update();
}

void CellView::zoomBy(double factor)
{
    camera_.zoomBy(factor);
    update();
}

void CellView::resetView()
{
    camera_.reset(kFirstTurn);
    drawing_.setTurn(kFirstTurn);
    fit();
    update();
}

void CellView::paintEvent(QPaintEvent *)
{
    ++paints_;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = camera_.pixelsPerMm();
    painter.translate(camera_.origin());
    painter.scale(scale, scale);
    drawing_.paint(&painter, scale);
}

void CellView::resizeEvent(QResizeEvent *)
{
    fit();
}

void CellView::mousePressEvent(QMouseEvent *event)
{
    last_ = event->pos();
}

void CellView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint by = event->pos() - last_;
    last_ = event->pos();
    camera_.moveBy(by.y());
    turnBy(-by.x() * palx::IsoCamera::kDegreesPerPixel); // the near side follows the finger
}

void CellView::wheelEvent(QWheelEvent *event)
{
    constexpr double kNotch = 120; // eighths of a degree
    zoomBy(std::pow(kZoomPerNotch, event->angleDelta().y() / kNotch));
    event->accept();
}

bool CellView::event(QEvent *event)
{
    if (event->type() != QEvent::Gesture)
        return QWidget::event(event);
    auto *gestures = static_cast<QGestureEvent *>(event);
    if (auto *pinch = static_cast<QPinchGesture *>(gestures->gesture(Qt::PinchGesture))) {
        zoomBy(pinch->scaleFactor());
        gestures->accept(pinch);
    }
    return true;
}

} // namespace panel

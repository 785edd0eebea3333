#include "ui/stack_view.h"

#include <QApplication>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFill = 0.95;           // of the widget, at zoom 1
constexpr double kDegreesPerPixel = 0.5; // half a turn takes the width of a small view
constexpr double kZoomPerNotch = 1.2;

} // namespace

StackView::StackView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    grabGesture(Qt::PinchGesture);
}

void StackView::showStack(const orba::Node *stack)
{
    shown_ = stack != nullptr;
    drawing_.setStack(stack ? *stack : orba::Node());
    moveBy(0);
    update();
}

void StackView::setPieces(int pieces)
{
    drawing_.setPieces(pieces);
    update();
}

void StackView::markPiece(const palx::Piece &piece)
{
    drawing_.setMarked(piece);
    update();
}

void StackView::turnBy(double degrees)
{
    drawing_.setTurn(drawing_.turn() + degrees);
    update();
}

void StackView::zoomBy(double factor)
{
    zoom_ = std::clamp(zoom_ * factor, 1.0, kMostZoom);
    moveBy(0);
    update();
}

void StackView::resetView()
{
    drawing_.setTurn(0);
    zoom_ = 1;
    moveBy(0);
    update();
}

double StackView::scale() const
{
    const QRectF bounds = drawing_.turningBounds();
    return std::min(width() / bounds.width(), height() / bounds.height()) * kFill * zoom_;
}

QPointF StackView::origin() const
{
    const double middle = drawing_.turningBounds().center().y() + heightShift_;
    return QPointF(width() / 2.0, height() / 2.0 - middle * scale());
}

/// Never so far that the stack leaves the view.
void StackView::moveBy(double pixels)
{
    const double pixelsPerMm = scale();
    if (pixelsPerMm <= 0)
        return;
    const double hidden = std::max(0.0, drawing_.turningBounds().height() - height() * kFill / pixelsPerMm);
    heightShift_ = std::clamp(heightShift_ - pixels / pixelsPerMm, -hidden / 2, hidden / 2);
}

void StackView::paintEvent(QPaintEvent *)
{
    if (!shown_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, !moving_); // smooth lines would hold up a large stack that turns
    painter.translate(origin());
    painter.scale(scale(), scale());
    drawing_.paint(&painter, scale());
}

void StackView::mousePressEvent(QMouseEvent *event)
{
    pressed_ = last_ = event->pos();
    dragged_ = false;
}

void StackView::mouseMoveEvent(QMouseEvent *event)
{
    dragged_ = dragged_ || (event->pos() - pressed_).manhattanLength() >= QApplication::startDragDistance();
    if (!dragged_)
        return;
    moving_ = true;
    const QPoint by = event->pos() - last_;
    last_ = event->pos();
    moveBy(by.y());
    turnBy(-by.x() * kDegreesPerPixel); // the near side follows the finger
}

void StackView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!dragged_ && shown_)
        Q_EMIT pieceTouched(drawing_.pieceAt((event->pos() - origin()) / scale()));
    moving_ = false;
    update();
}

void StackView::wheelEvent(QWheelEvent *event)
{
    constexpr double kNotch = 120; // eighths of a degree
    zoomBy(std::pow(kZoomPerNotch, event->angleDelta().y() / kNotch));
    event->accept();
}

bool StackView::event(QEvent *event)
{
    if (event->type() == QEvent::Gesture)
        return pinch(static_cast<QGestureEvent *>(event));
    return QWidget::event(event);
}

bool StackView::pinch(QGestureEvent *event)
{
    auto *gesture = static_cast<QPinchGesture *>(event->gesture(Qt::PinchGesture));
    if (!gesture)
        return false;
    dragged_ = true; // two fingers are no touch of a piece
    moving_ = gesture->state() != Qt::GestureFinished && gesture->state() != Qt::GestureCanceled;
    zoomBy(gesture->scaleFactor());
    event->accept(gesture);
    return true;
}

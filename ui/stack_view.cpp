#include "ui/stack_view.h"

#include <QApplication>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QWheelEvent>

#include <cmath>

namespace {

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
    fit();
    update();
}

void StackView::fit()
{
    camera_.setScene(drawing_.turningBounds(), size());
}

void StackView::resizeEvent(QResizeEvent *)
{
    fit();
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
    camera_.turnBy(degrees);
    drawing_.setTurn(camera_.turn());
    update();
}

void StackView::zoomBy(double factor)
{
    camera_.zoomBy(factor);
    update();
}

void StackView::resetView()
{
    camera_.reset();
    drawing_.setTurn(0);
    update();
}

void StackView::paintEvent(QPaintEvent *)
{
    if (!shown_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing,
                          !moving_); // smooth lines would hold up a large stack that turns
    painter.translate(camera_.origin());
    painter.scale(camera_.pixelsPerMm(), camera_.pixelsPerMm());
    drawing_.paint(&painter, camera_.pixelsPerMm());
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
    camera_.moveBy(by.y());
    turnBy(-by.x() * palx::IsoCamera::kDegreesPerPixel); // the near side follows the finger
}

void StackView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!dragged_ && shown_)
        Q_EMIT pieceTouched(drawing_.pieceAt((event->pos() - camera_.origin()) / camera_.pixelsPerMm()));
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

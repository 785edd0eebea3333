#pragma once

#include "pattern/iso_camera.h"
#include "pattern/stack_drawing.h"

#include <QPoint>
#include <QWidget>

class QGestureEvent;
class QPinchGesture;

/// A stack to be looked at from all sides: dragging sideways turns it, dragging up and down moves along its
/// height once it is enlarged, wheel and pinch enlarge. A touch tells which piece it met.
class PALX_API StackView : public QWidget
{
    Q_OBJECT

public:
    static constexpr double kTurnStep = 15; ///< degrees per press of a button

    explicit StackView(QWidget *parent = nullptr);

    /// Also after an edit; keeps turn and zoom. Null shows nothing.
    void showStack(const orba::Node *stack);
    void setPieces(int pieces);
    void markPiece(const palx::Piece &piece);
    const palx::StackDrawing &drawing() const { return drawing_; }

    double zoom() const { return camera_.zoom(); }
    QSize minimumSizeHint() const override { return QSize(160, 160); }
    QSize sizeHint() const override { return minimumSizeHint(); }

public Q_SLOTS:
    /// Clockwise as seen from above, degrees.
    void turnBy(double degrees);
    void zoomBy(double factor);
    /// From the front and as large as it fits.
    void resetView();

Q_SIGNALS:
    /// Nothing when it was touched beside the stack.
    void pieceTouched(const palx::Piece &piece);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void fit();
    bool pinch(QGestureEvent *event);

    palx::StackDrawing drawing_;
    bool shown_ = false;
    palx::IsoCamera camera_;
    QPoint pressed_, last_;
    bool dragged_ = false; ///< the present press is no touch of a piece
    bool moving_ = false;  ///< a finger is turning or enlarging the stack
};

#pragma once

#include "panel/cell_drawing.h"
#include "pattern/iso_camera.h"

#include <QWidget>

class QPinchGesture;

namespace panel {

/// The cell to be looked at from all sides: dragging sideways turns it, dragging up and down moves along its height once it
/// is enlarged, wheel and pinch enlarge. Painted only when what is shown is another picture.
class CellView : public QWidget
{
    Q_OBJECT

public:
    static constexpr double kTurnStep = 15; ///< degrees per press of a button

    explicit CellView(QWidget *parent = nullptr);

    /// Returns whether anything is other than it was shown.
    bool showScene(const CellScene &scene);
    const CellDrawing &drawing() const { return drawing_; }
    const palx::IsoCamera &camera() const { return camera_; }
    int paintCount() const { return paints_; }
    QSize minimumSizeHint() const override { return QSize(240, 200); }

    void turnBy(double degrees);
    void zoomBy(double factor);
    void resetView();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void fit();

    CellDrawing drawing_;
    palx::IsoCamera camera_;
    QPoint last_;
    int paints_ = 0;
};

} // namespace panel

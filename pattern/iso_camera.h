#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace palx {

/// From where a view looks at an isometric picture: turn, zoom, and how far along the height. Pictures are in millimetres
/// with the axis of the turn in the origin; views in pixels.
class IsoCamera
{
public:
    static constexpr double kMostZoom = 8;
    static constexpr double kDegreesPerPixel = 0.5; ///< half a turn takes the width of a small view

    /// What fits the view at zoom 1, and the view's size.
    void setScene(const QRectF &bounds, const QSizeF &view);
    double turn() const { return turnDeg_; }
    void turnBy(double degrees);
    double zoom() const { return zoom_; }
    void zoomBy(double factor);
    /// Pixels; never so far that the picture leaves the view.
    void moveBy(double pixels);
    void reset(double turnDeg = 0);

    double pixelsPerMm() const;
    /// Where the picture's origin lies on the view.
    QPointF origin() const;

private:
    QRectF scene_{0, 0, 1, 1};
    QSizeF view_{1, 1};
    double turnDeg_ = 0;
    double zoom_ = 1;
    double heightShift_ = 0; ///< of the middle that is shown [mm on the picture]
};

} // namespace palx

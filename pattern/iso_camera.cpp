#include "pattern/iso_camera.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

constexpr double kFill = 0.95; // of the view, at zoom 1

} // namespace

void IsoCamera::setScene(const QRectF &bounds, const QSizeF &view)
{
    scene_ = bounds;
    view_ = view;
    moveBy(0);
}

void IsoCamera::turnBy(double degrees)
{
    turnDeg_ = std::remainder(turnDeg_ + degrees, 360);
}

void IsoCamera::zoomBy(double factor)
{
    zoom_ = std::clamp(zoom_ * factor, 1.0, kMostZoom);
    moveBy(0);
}

void IsoCamera::moveBy(double pixels)
{
    const double scale = pixelsPerMm();
    if (scale <= 0)
        return;
    const double hidden = std::max(0.0, scene_.height() - view_.height() * kFill / scale);
    heightShift_ = std::clamp(heightShift_ - pixels / scale, -hidden / 2, hidden / 2);
}

void IsoCamera::reset(double turnDeg)
{
    turnDeg_ = turnDeg;
    zoom_ = 1;
    moveBy(0);
}

double IsoCamera::pixelsPerMm() const
{
    return std::min(view_.width() / scene_.width(), view_.height() / scene_.height()) * kFill * zoom_;
}

QPointF IsoCamera::origin() const
{
    const QPointF middle = scene_.center() + QPointF(0, heightShift_);
    return QPointF(view_.width() / 2, view_.height() / 2) - middle * pixelsPerMm();
}

} // namespace palx

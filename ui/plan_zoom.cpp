#include "ui/plan_zoom.h"

#include <algorithm>

namespace {

QPointF halfOf(const QSizeF &size)
{
    return QPointF(size.width() / 2, size.height() / 2);
}

} // namespace

void PlanZoom::setWhole(const QSizeF &pixels, const QRectF &whole)
{
    pixels_ = pixels;
    whole_ = whole;
    if (fitted_)
        fit();
    else
        bound();
}

double PlanZoom::fitScale() const
{
    return std::min(pixels_.width() / whole_.width(), pixels_.height() / whole_.height());
}

void PlanZoom::fit()
{
    fitted_ = true;
    scale_ = fitScale();
    middle_ = whole_.center();
}

void PlanZoom::zoomAt(const QPointF &pixel, double factor)
{
    place(toPlan(pixel), pixel, scale_ * factor);
}

void PlanZoom::panBy(const QPointF &pixels)
{
    place(toPlan(QPointF()), pixels, scale_);
}

void PlanZoom::place(const QPointF &mm, const QPointF &pixel, double pixelsPerMm)
{
    scale_ = std::clamp(pixelsPerMm, fitScale(), fitScale() * kMostZoom);
    middle_ = mm + (halfOf(pixels_) - pixel) / scale_;
    fitted_ = scale_ <= fitScale();
    bound();
}

/// The middle of the view stays on the plan, and a plan that is not enlarged stays in the middle.
void PlanZoom::bound()
{
    if (fitted_) {
        fit();
        return;
    }
    middle_.setX(std::clamp(middle_.x(), whole_.left(), whole_.right()));
    middle_.setY(std::clamp(middle_.y(), whole_.top(), whole_.bottom()));
}

QPointF PlanZoom::toPlan(const QPointF &pixel) const
{
    return middle_ + (pixel - halfOf(pixels_)) / scale_;
}

QPointF PlanZoom::toPixels(const QPointF &mm) const
{
    return (mm - middle_) * scale_ + halfOf(pixels_);
}

QRectF PlanZoom::shown() const
{
    const QSizeF size = pixels_ / scale_;
    return QRectF(middle_ - halfOf(size), size);
}

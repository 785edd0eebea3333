#pragma once

#include "orba/export.h"

#include <QRectF>

/// Which part of a plan a view shows: millimetres of the plan and pixels of the view. The plan can be enlarged
/// up to kMostZoom times; what is shown keeps touching what there is to see.
class PALX_API PlanZoom
{
public:
    static constexpr double kMostZoom = 20;

    /// The view's size in pixels and the part of the plan that fills it when it is not enlarged. While it is
    /// enlarged, the middle and the scale stay.
    void setWhole(const QSizeF &pixels, const QRectF &whole);
    void fit();
    /// Enlarges by a factor; the place under that pixel stays there.
    void zoomAt(const QPointF &pixel, double factor);
    /// The plan follows a finger.
    void panBy(const QPointF &pixels);
    /// The place on the plan comes to that pixel, at that scale.
    void place(const QPointF &mm, const QPointF &pixel, double pixelsPerMm);

    bool isFitted() const { return fitted_; }
    double pixelsPerMm() const { return scale_; }
    QPointF toPlan(const QPointF &pixel) const;
    QPointF toPixels(const QPointF &mm) const;
    /// What the view shows now.
    QRectF shown() const;

private:
    double fitScale() const;
    void bound();

    QSizeF pixels_{1, 1};
    QRectF whole_{0, 0, 1, 1};
    QPointF middle_{0.5, 0.5};
    double scale_ = 1;
    bool fitted_ = true;
};

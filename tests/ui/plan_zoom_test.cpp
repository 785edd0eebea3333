#include "ui/plan_zoom.h"

#include <gtest/gtest.h>

namespace {

/// 400 x 300 pixels for a plan of 800 x 1200 mm that lies around (400, 600).
PlanZoom fitted()
{
    PlanZoom zoom;
    zoom.setWhole(QSizeF(400, 300), QRectF(0, 0, 800, 1200));
    return zoom;
}

} // namespace

TEST(PlanZoom, EnlargesAtAPlace)
{
    PlanZoom zoom = fitted();
    const QPointF pixel(150, 75);
    const QPointF place = zoom.toPlan(pixel);
    zoom.zoomAt(pixel, 2);
    EXPECT_EQ(zoom.pixelsPerMm(), 0.5);
    EXPECT_EQ(zoom.toPlan(pixel), place);
    EXPECT_FALSE(zoom.isFitted());
    zoom.zoomAt(pixel, 1000);
    EXPECT_EQ(zoom.pixelsPerMm(), 0.25 * PlanZoom::kMostZoom);
    zoom.zoomAt(pixel, 1e-6);
    EXPECT_EQ(zoom.shown(), fitted().shown());
    EXPECT_TRUE(zoom.isFitted());
}

TEST(PlanZoom, MovesWithAFingerAndKeepsThePlanInSight)
{
    PlanZoom zoom = fitted();
    zoom.panBy(QPointF(50, 50)); // a whole plan stays in the middle
    EXPECT_EQ(zoom.shown(), fitted().shown());
    zoom.zoomAt(QPointF(200, 150), 4);
    zoom.panBy(QPointF(20, -10));
    EXPECT_EQ(zoom.toPixels(QPointF(400, 600)), QPointF(220, 140));
    zoom.panBy(QPointF(-5000, 5000));
    EXPECT_EQ(zoom.toPlan(QPointF(200, 150)), QPointF(800, 0));
    zoom.fit();
    EXPECT_EQ(zoom.shown(), fitted().shown());
}

TEST(PlanZoom, KeepsPlaceAndScaleInAnotherSize)
{
    PlanZoom zoom = fitted();
    zoom.zoomAt(QPointF(200, 150), 4);
    zoom.setWhole(QSizeF(600, 300), QRectF(0, 0, 800, 1300));
    EXPECT_EQ(zoom.pixelsPerMm(), 1);
    EXPECT_EQ(zoom.toPlan(QPointF(300, 150)), QPointF(400, 600));
    zoom.fit();
    zoom.setWhole(QSizeF(400, 600), QRectF(0, 0, 800, 1200));
    EXPECT_EQ(zoom.pixelsPerMm(), 0.5);
}

#include "pattern/rules/item_geometry.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>

using palx::PatternItem;

namespace {

const QSizeF kPallet(800, 1200);

double depth(const PatternItem &a, const PatternItem &b)
{
    return palx::overlapMm(palx::itemCorners(a), palx::itemCorners(b));
}

} // namespace

TEST(ItemGeometry, QuarterTurnsAreExactAndClockwise)
{
    // The corner that is upper left at first goes to the upper right, as seen on the plan.
    const palx::Corners quarter = palx::itemCorners(planItem(500, 700, 300, 400, 90));
    EXPECT_EQ(quarter[0], QPointF(700, 550));
    EXPECT_EQ(quarter[1], QPointF(700, 850));
    EXPECT_EQ(palx::itemCorners(planItem(500, 700, 300, 400, 0))[0], QPointF(350, 500));
    EXPECT_EQ(palx::itemCorners(planItem(500, 700, 300, 400, 180))[0], QPointF(650, 900));
    EXPECT_EQ(palx::itemCorners(planItem(500, 700, 300, 400, -90))[0], QPointF(300, 850));
    EXPECT_EQ(palx::itemBounds(planItem(500, 700, 300, 400, 90)), QRectF(300, 550, 400, 300));
    const QRectF slanting = palx::itemBounds(planItem(500, 700, 300, 400, 30));
    EXPECT_NEAR(slanting.left(), 500 - 150 * std::sqrt(0.75) - 100, 1e-9);
    EXPECT_NEAR(slanting.bottom(), 700 + 75 + 200 * std::sqrt(0.75), 1e-9);
}

TEST(ItemGeometry, OverlapIsTheShortestWayApart)
{
    struct
    {
        const char *what;
        PatternItem a, b;
        double depth;
    } const cases[] = {
        {"apart", planItem(0, 0, 100, 100), planItem(200, 0, 100, 100), 0},
        {"rounding", planItem(0, 0, 100, 100), planItem(99.995, 0, 100, 100), 0},
        {"just over", planItem(0, 0, 100, 100), planItem(99.98, 0, 100, 100), 0.02},
        {"across", planItem(0, 0, 100, 100), planItem(90, 50, 100, 100), 10},
        {"same place", planItem(0, 0, 100, 60), planItem(0, 0, 100, 60), 60},
        {"inside", planItem(0, 0, 100, 100), planItem(0, 0, 20, 20), 60},
        {"crossed", planItem(0, 0, 300, 20), planItem(0, 0, 300, 20, 90), 160},
        // A square on its corner reaches 70.71 mm to the left.
        {"turned, over", planItem(0, 0, 100, 100), planItem(120, 0, 100, 100, 45), 50 * std::sqrt(2.0) - 70},
        // Bounds meet, the boxes do not.
        {"turned past a corner", planItem(0, 0, 100, 100), planItem(95, 95, 100, 100, 45), 0},
    };
    for (const auto &one : cases) {
        EXPECT_NEAR(depth(one.a, one.b), one.depth, 1e-9) << one.what;
        EXPECT_NEAR(depth(one.b, one.a), one.depth, 1e-9) << one.what;
    }
}

TEST(ItemGeometry, OverhangNamesTheEdge)
{
    struct
    {
        PatternItem item;
        double left, top, right, bottom;
    } const cases[] = {
        {planItem(150, 200, 300, 400), 0, 0, 0, 0}, // flush with two edges
        {planItem(149.995, 200, 300, 400), 0, 0, 0, 0},   {planItem(140, 200, 300, 400), 10, 0, 0, 0},
        {planItem(150, 180, 300, 400), 0, 20, 0, 0},      {planItem(670, 1030, 300, 400), 0, 0, 20, 30},
        {planItem(400, 150, 300, 900, 90), 50, 0, 50, 0},
    };
    for (const auto &one : cases) {
        const palx::Overhang over = palx::overhangOf(palx::itemBounds(one.item), kPallet);
        EXPECT_DOUBLE_EQ(over.left, one.left) << one.item.x << one.item.y;
        EXPECT_DOUBLE_EQ(over.top, one.top) << one.item.x << one.item.y;
        EXPECT_DOUBLE_EQ(over.right, one.right) << one.item.x << one.item.y;
        EXPECT_DOUBLE_EQ(over.bottom, one.bottom) << one.item.x << one.item.y;
    }
}

TEST(ItemGeometry, FindingsListEveryPairAndTheFarthestOverhang)
{
    QVector<PatternItem> items = planGrid(4, 3, 200, 400);
    EXPECT_TRUE(palx::judgeLayout(items, kPallet).overlaps.isEmpty());
    EXPECT_EQ(palx::judgeLayout(items, kPallet).overhangCount(), 0);

    items[11].x += 12; // over the right edge
    items[8].y += 7;   // over the lower edge
    items[5].x -= 30;  // into its left neighbour
    const palx::LayoutFindings findings = palx::judgeLayout(items, kPallet);
    ASSERT_EQ(findings.overlaps.size(), 1);
    EXPECT_EQ(findings.overlaps[0].first, 4);
    EXPECT_EQ(findings.overlaps[0].second, 5);
    EXPECT_DOUBLE_EQ(findings.overlaps[0].depthMm, 30);
    EXPECT_EQ(findings.overlapping.count(true), 2);
    EXPECT_EQ(findings.overhangCount(), 2);
    EXPECT_DOUBLE_EQ(findings.worst.right, 12);
    EXPECT_DOUBLE_EQ(findings.worst.bottom, 7);
    EXPECT_EQ(findings.worst.left, 0);
}

TEST(ItemGeometry, AHeapInOnePlaceIsJudgedWithoutListingMillionsOfPairs)
{
    const QVector<PatternItem> heap(palx::kMaxShownItems, planItem(400, 600, 100, 100));
    const palx::LayoutFindings findings = palx::judgeLayout(heap, kPallet);
    EXPECT_EQ(findings.overlapping.count(true), heap.size());
    EXPECT_LE(findings.overlaps.size(), palx::kMaxListedOverlaps + heap.size());
}

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
        {"across", planItem(0, 0, 100, 100), planItem(90, 50, 100, 100), 10},
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

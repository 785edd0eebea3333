#include "pattern/rules/edit_order.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::PatternItem;
using palx::PlanAxis;
using palx::PlanCorner;

namespace {

using Order = QVector<int>;

/// The example pattern of interlocked boxes: three upright ones, then three rows of two turned ones.
QVector<PatternItem> interlocked()
{
    return {planItem(135, 202, 260, 400),     planItem(400, 202, 260, 400),
            planItem(665, 202, 260, 400),     planItem(202, 532, 260, 400, 90),
            planItem(597, 532, 260, 400, 90), planItem(202, 797, 260, 400, 90),
            planItem(597, 797, 260, 400, 90)};
}

} // namespace

TEST(EditOrder, ByTaps)
{
    struct
    {
        Order taps, order;
    } const cases[] = {
        {{}, {0, 1, 2, 3}},
        {{3, 1}, {3, 1, 0, 2}},
        {{1, 1, 9, -1, 0}, {1, 0, 2, 3}},
    };
    for (const auto &one : cases)
        EXPECT_EQ(palx::orderByTaps(4, one.taps), one.order);
}

TEST(EditOrder, ByRowsFromEachCorner)
{
    const QVector<PatternItem> grid = planGrid(3, 2, 100, 200); // 0 1 2 over 3 4 5
    struct
    {
        PlanCorner corner;
        PlanAxis run;
        Order order;
    } const cases[] = {
        {PlanCorner::TopLeft, PlanAxis::Across, {0, 1, 2, 3, 4, 5}},
        {PlanCorner::TopRight, PlanAxis::Across, {2, 1, 0, 5, 4, 3}},
        {PlanCorner::BottomLeft, PlanAxis::Across, {3, 4, 5, 0, 1, 2}},
        {PlanCorner::BottomRight, PlanAxis::Across, {5, 4, 3, 2, 1, 0}},
        {PlanCorner::TopLeft, PlanAxis::Along, {0, 3, 1, 4, 2, 5}},
        {PlanCorner::TopRight, PlanAxis::Along, {2, 5, 1, 4, 0, 3}},
        {PlanCorner::BottomLeft, PlanAxis::Along, {3, 0, 4, 1, 5, 2}},
        {PlanCorner::BottomRight, PlanAxis::Along, {5, 2, 4, 1, 3, 0}},
    };
    for (const auto &one : cases)
        EXPECT_EQ(palx::orderByRows(grid, one.corner, one.run), one.order);
}

TEST(EditOrder, RowsOfDifferentProducts)
{
    QVector<PatternItem> items = interlocked();
    EXPECT_EQ(palx::orderByRows(items, PlanCorner::BottomRight, PlanAxis::Across),
              (Order{6, 5, 4, 3, 2, 1, 0}));
    items[1].y += 60; // hangs back, its middle still beside the others of its row
    EXPECT_EQ(palx::orderByRows(items, PlanCorner::TopLeft, PlanAxis::Across), (Order{0, 1, 2, 3, 4, 5, 6}));
}

TEST(EditOrder, OutwardFromEachCorner)
{
    const QVector<PatternItem> grid = planGrid(3, 2, 100, 200);
    EXPECT_EQ(palx::orderFromCorner(grid, PlanCorner::BottomRight), (Order{5, 4, 3, 2, 1, 0}));
    const QVector<PatternItem> square = planGrid(3, 3, 100, 100);
    EXPECT_EQ(palx::orderFromCorner(square, PlanCorner::TopLeft), (Order{0, 1, 3, 4, 2, 6, 5, 7, 8}));
    EXPECT_EQ(palx::orderFromCorner(square, PlanCorner::TopRight), (Order{2, 1, 5, 4, 0, 8, 3, 7, 6}));
}

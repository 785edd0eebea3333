#include "pattern/rules/edit_order.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::PatternItem;
using palx::PlanAxis;
using palx::PlanCorner;

namespace {

using Order = QVector<int>;

} // namespace

TEST(EditOrder, ByTaps)
{
    struct
    {
        Order taps, order;
    } const cases[] = {
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
        {PlanCorner::BottomRight, PlanAxis::Across, {5, 4, 3, 2, 1, 0}},
        {PlanCorner::TopLeft, PlanAxis::Along, {0, 3, 1, 4, 2, 5}},
        {PlanCorner::BottomRight, PlanAxis::Along, {5, 2, 4, 1, 3, 0}},
    };
    for (const auto &one : cases)
        EXPECT_EQ(palx::orderByRows(grid, one.corner, one.run), one.order);
}

TEST(EditOrder, OutwardFromEachCorner)
{
    const QVector<PatternItem> grid = planGrid(3, 2, 100, 200);
    EXPECT_EQ(palx::orderFromCorner(grid, PlanCorner::BottomRight), (Order{5, 4, 3, 2, 1, 0}));
    const QVector<PatternItem> square = planGrid(3, 3, 100, 100);
    EXPECT_EQ(palx::orderFromCorner(square, PlanCorner::TopLeft), (Order{0, 1, 3, 4, 2, 6, 5, 7, 8}));
}

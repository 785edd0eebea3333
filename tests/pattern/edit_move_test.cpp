#include "pattern/rules/edit_move.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::Alignment;
using palx::PatternItem;
using palx::PlanAxis;
using palx::Selection;

namespace {

const QRectF kFrame(20, 10, 760, 1180);

/// Three items of different sizes, the second one turned: 100 x 200, 300 x 100 (turned: 100 x 300), 80 x 60.
QVector<PatternItem> three()
{
    return {planItem(100, 200, 100, 200), planItem(300.5, 450, 300, 100, 90), planItem(600, 900, 80, 60)};
}

} // namespace

TEST(EditMove, MovesTheSelectedAndRoundsToWhatRecipesKeep)
{
    struct
    {
        Selection selection;
        QPointF shift;
        const char *places;
    } const cases[] = {
        {{0, 2}, {-10, 0.5}, "90,200.5/0 300.5,450/90 590,900.5/0"},
        {{1}, {0.004, 10.006}, "100,200/0 300.5,460.01/90 600,900/0"},
    };
    for (const auto &one : cases) {
        QVector<PatternItem> items = three();
        palx::moveItems(&items, one.selection, one.shift);
        EXPECT_EQ(placesOf(items), one.places);
    }
}

TEST(EditMove, AlignsManyAmongThemselvesAndOneWithTheFrame)
{
    const Selection all{0, 1, 2};
    struct
    {
        const char *what;
        Selection selection;
        Alignment alignment;
        const char *places;
    } const cases[] = {
        {"left", all, Alignment::Left, "100,200/0 100,450/90 90,900/0"},
        {"right", all, Alignment::Right, "590,200/0 590,450/90 600,900/0"},
        {"centre along", all, Alignment::CentreAlong, "100,515/0 300.5,515/90 600,515/0"},
        {"bottom", all, Alignment::Bottom, "100,830/0 300.5,780/90 600,900/0"},
        {"one, left", {2}, Alignment::Left, "100,200/0 300.5,450/90 60,900/0"},
    };
    for (const auto &one : cases) {
        QVector<PatternItem> items = three();
        palx::alignItems(&items, one.selection, one.alignment, kFrame);
        EXPECT_EQ(placesOf(items), one.places) << one.what;
    }
}

TEST(EditMove, DistributesWithEqualGaps)
{
    QVector<PatternItem> items{three()[2], three()[0], three()[1]}; // whatever the order of placing
    EXPECT_TRUE(palx::distributeItems(&items, {0, 1, 2}, PlanAxis::Across));
    EXPECT_EQ(placesOf(items), "600,900/0 100,200/0 355,450/90");
    EXPECT_TRUE(palx::distributeItems(&items, {0, 1, 2}, PlanAxis::Along));
    EXPECT_EQ(placesOf(items), "600,900/0 100,200/0 355,585/90");
    EXPECT_FALSE(palx::distributeItems(&items, {0, 1}, PlanAxis::Across)) << "two have no gap to share";
    EXPECT_EQ(placesOf(items), "600,900/0 100,200/0 355,585/90");

    items = {planItem(0, 0, 10, 10), planItem(1, 0, 10, 10), planItem(2, 0, 10, 10),
             planItem(100, 0, 10, 10)};
    EXPECT_TRUE(palx::distributeItems(&items, {0, 1, 2, 3}, PlanAxis::Across));
    EXPECT_EQ(placesOf(items), "0,0/0 33.33,0/0 66.67,0/0 100,0/0") << "thirds are rounded";
}

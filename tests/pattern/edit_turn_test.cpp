#include "pattern/rules/edit_turn.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::PatternItem;
using palx::PlanAxis;

namespace {

const QSizeF kPallet(800, 1200);

PatternItem labelled(PatternItem item, int orient)
{
    item.orient = orient;
    return item;
}

} // namespace

TEST(EditTurn, TurnsAboutTheMiddleOfTheSelection)
{
    const QVector<PatternItem> pair{planItem(100, 100, 100, 200), planItem(200, 100, 100, 200)};
    struct
    {
        const char *what;
        palx::Selection selection;
        int degrees;
        const char *places;
    } const cases[] = {
        {"one", {0}, 90, "100,100/90 200,100/0"},
        {"two", {0, 1}, 90, "150,50/90 150,150/90"},
        {"more than round", {0}, 450, "100,100/90 200,100/0"},
    };
    for (const auto &one : cases) {
        QVector<PatternItem> items = pair;
        palx::turnItems(&items, one.selection, one.degrees);
        EXPECT_EQ(placesOf(items), one.places) << one.what;
    }
}

TEST(EditTurn, SidesTurnAlongWithSeveralProducts)
{
    const QVector<PatternItem> row{coming(planItem(50, 50, 10, 10), "Top", 30, 40),
                                   coming(planItem(60, 50, 10, 10), "Right", 30, 40),
                                   coming(planItem(70, 50, 10, 10), "BottomLeft", 30, 40),
                                   coming(planItem(80, 50, 10, 10), "Middle", 30, 40),
                                   coming(planItem(90, 50, 10, 10), "sideways", 30, 40)};
    struct
    {
        int degrees;
        const char *approaches;
    } const cases[] = {
        {90, "Right 40,30; Bottom 40,30; TopLeft 40,30; Middle 40,-30; sideways 40,-30"},
        {270, "Left 40,30; Top 40,30; BottomRight 40,30; Middle -40,30; sideways -40,30"},
        {45, "Top 30,40; Right 30,40; BottomLeft 30,40; Middle 30,40; sideways 30,40"},
    };
    for (const auto &one : cases) {
        QVector<PatternItem> items = row;
        palx::turnItems(&items, {0, 1, 2, 3, 4}, one.degrees);
        EXPECT_EQ(approachesOf(items), one.approaches) << one.degrees;
    }
}

TEST(EditTurn, MirrorsThePatternOnThePallet)
{
    const QVector<PatternItem> items{coming(planItem(100, 200, 100, 200), "TopLeft", 30, 40),
                                     coming(planItem(600, 1000, 100, 200, 90), "Middle", 30, 40),
                                     coming(planItem(300, 500, 100, 200, 30), "Right", 30, 40)};
    QVector<PatternItem> across = items;
    palx::mirrorPattern(&across, PlanAxis::Across, kPallet);
    EXPECT_EQ(placesOf(across), "700,200/0 200,1000/270 500,500/330");
    EXPECT_EQ(approachesOf(across), "TopRight 30,40; Middle 30,-40; Left 30,40");

    QVector<PatternItem> turned = items;
    palx::turnPattern(&turned, kPallet);
    EXPECT_EQ(placesOf(turned), "700,1000/180 200,200/270 500,700/210");
    EXPECT_EQ(approachesOf(turned), "BottomRight 30,40; Middle -30,-40; Left 30,40");
}

// The middle of the label's side, mirrored, is the middle of the mirrored product's label side.
TEST(EditTurn, LabelsAreMirroredToo)
{
    const auto labelSide = [](const PatternItem &item) {
        const palx::Corners corners = palx::itemCorners(item);
        return (corners[item.orient] + corners[(item.orient + 1) % 4]) / 2;
    };
    for (const int orient : {0, 1, 2, 3}) {
        for (const int turn : {0, 90, 180, 270}) {
            for (const PlanAxis axis : {PlanAxis::Across, PlanAxis::Along}) {
                QVector<PatternItem> items{labelled(planItem(100, 200, 100, 200, turn), orient)};
                QPointF expected = labelSide(items[0]);
                axis == PlanAxis::Across ? expected.setX(kPallet.width() - expected.x())
                                         : expected.setY(kPallet.height() - expected.y());
                palx::mirrorPattern(&items, axis, kPallet);
                EXPECT_EQ(labelSide(items[0]), expected) << orient << ' ' << turn;
            }
        }
    }
}

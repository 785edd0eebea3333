#include "pattern/rules/feeding_direction.h"

#include "pattern/plan_recipe.h"
#include "pattern/rules/order_check.h"
#include "stack/recipe_patterns.h"

#include <gtest/gtest.h>

using palx::Feeding;
using palx::PatternItem;

namespace {

QString words(const QVector<Feeding> &proposals)
{
    QStringList text;
    for (const Feeding &one : proposals)
        text << palx::directionNames().at(static_cast<int>(one.direction)) +
                    QLatin1String(one.hemmedIn ? "!" : "");
    return text.join(QLatin1Char(' '));
}

std::string proposed(const QVector<PatternItem> &items)
{
    return words(palx::proposeFeeding(items, namedSides())).toStdString();
}

QVector<PatternItem> inOrder(const QVector<PatternItem> &items, const QVector<int> &order)
{
    QVector<PatternItem> result;
    for (const int i : order)
        result.append(items.at(i));
    return result;
}

} // namespace

TEST(FeedingDirection, ComesFromTheOpenSide)
{
    const QVector<PatternItem> grid = planGrid(3, 3, 100, 200);
    struct
    {
        const char *what;
        QVector<PatternItem> items;
        const char *words;
    } const cases[] = {
        {"row by row", planGrid(3, 2, 100, 200), "Middle Right Right Bottom BottomRight BottomRight"},
        {"from the other end of the row", inOrder(grid, {2, 1, 0, 5, 4, 3}),
         "Middle Left Left Bottom BottomLeft BottomLeft"},
        {"from the far corner", inOrder(grid, {8, 7, 5, 4}), "Middle Left Top TopLeft"},
        {"the middle one last", inOrder(grid, {1, 3, 5, 7, 4}), "Middle Middle Middle Middle Middle!"},
        {"a gap shorter than the offset",
         {planItem(50, 50, 100, 100), planItem(220, 50, 100, 100)},
         "Middle Right"},
    };
    for (const auto &one : cases)
        EXPECT_EQ(proposed(one.items), std::string(one.words)) << one.what;
}

TEST(FeedingDirection, WhatIsProposedWorks)
{
    for (const palx::ApproachFrame &frame : {palx::ApproachFrame(), namedSides()}) {
        QVector<PatternItem> items = planGrid(10, 20, 80, 60);
        items[30].r = 90; // reaches into its neighbours
        const QVector<Feeding> proposals = palx::proposeFeeding(items, frame, {70, 50});
        for (int i = 0; i < items.size(); ++i)
            palx::applyFeeding(&items[i], proposals[i]);
        EXPECT_TRUE(palx::checkOrder(items, frame).hits.isEmpty());
        EXPECT_EQ(words(proposals).count(QStringLiteral("Middle")), 1);
    }
}

TEST(FeedingDirection, KeepsOwnOffsetsAndTurnsWithTheFrame)
{
    QVector<PatternItem> row = planGrid(2, 1, 100, 200);
    row[0].dx = row[0].dz = 25;
    row[1].dx = -40;
    const QVector<Feeding> named = palx::proposeFeeding(row, namedSides(), {60, 70});
    EXPECT_EQ(named, (QVector<Feeding>{{palx::Direction::Middle, 0, 0, false},
                                       {palx::Direction::Right, 40, 70, false}}));
    const QVector<Feeding> opposite = palx::proposeFeeding(row, palx::ApproachFrame(), {60, 70});
    EXPECT_EQ(opposite[1], (Feeding{palx::Direction::Left, 40, 70, false}));
}

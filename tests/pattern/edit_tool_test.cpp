#include "pattern/drag_tool.h"
#include "pattern/frame_tool.h"
#include "pattern/order_tool.h"
#include "pattern/plan_editor.h"
#include "pattern/plan_recipe.h"
#include "pattern/rules/edit_pick.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using palx::DragTool;
using palx::FrameTool;
using palx::OrderTool;
using palx::PatternItem;
using palx::Selection;

namespace {

constexpr double kPixelMm = 1;

/// Two rows of two, 110 mm from each other, on the free pallet.
QVector<PatternItem> square()
{
    QVector<PatternItem> items{planItem(300, 400, 100, 100), planItem(410, 400, 100, 100),
                               planItem(300, 510, 100, 100), planItem(410, 510, 100, 100)};
    palx::numberItems(&items);
    return items;
}

void drag(palx::EditTool &tool, const QPointF &from, const QPointF &to, bool adding = false)
{
    tool.press(from, kPixelMm, adding);
    tool.move(from + (to - from) / 2);
    tool.move(to);
    tool.release(to);
}

void tap(palx::EditTool &tool, const QPointF &at, bool adding = false)
{
    tool.press(at, kPixelMm, adding);
    tool.move(at + QPointF(3, 0)); // a finger trembles
    tool.release(at);
}

} // namespace

TEST(EditPick, WhatAFingerMeans)
{
    const QVector<PatternItem> items{planItem(100, 100, 100, 100), planItem(140, 100, 100, 100),
                                     planItem(400, 400, 20, 200, 45)};
    struct
    {
        QPointF at;
        double reach;
        QVector<int> found;
    } const cases[] = {
        {{60, 100}, 0, {0}},  {{120, 100}, 0, {1, 0}}, {{195, 100}, 4, {}},
        {{195, 100}, 6, {1}}, {{440, 440}, 0, {}},     {{335, 465}, 0, {2}},
    };
    for (const auto &one : cases)
        EXPECT_EQ(palx::itemsAt(items, one.at, one.reach), one.found) << one.at.x() << ',' << one.at.y();
    EXPECT_EQ(palx::fingerReachMm({items[0]}, 1), 0);
    EXPECT_EQ(palx::fingerReachMm({items[0]}, 3), 36); // 33 pixels wide
    EXPECT_EQ(palx::fingerReachMm(items, 1), 12);
}

TEST(DragTool, TapsGoThroughAHeap)
{
    PlanEditor editor(
        {planItem(300, 400, 100, 100), planItem(310, 400, 100, 100), planItem(320, 400, 100, 100)});
    DragTool tool(&editor.editing);
    for (const int expected : {2, 1, 0, 2}) {
        tap(tool, QPointF(310, 400));
        EXPECT_EQ(editor.editing.selection(), (Selection{expected}));
    }
    tap(tool, QPointF(310, 400));
    drag(tool, QPointF(310, 400), QPointF(310, 700)); // the one that was tapped through to
    EXPECT_EQ(editor.places(), "300,400/0 310,700/0 320,400/0");
}

TEST(DragTool, DragsWithSnapAsOneEdit)
{
    PlanEditor editor(square());
    DragTool tool(&editor.editing);
    drag(tool, QPointF(410, 510), QPointF(415, 650)); // 5 mm beside its column
    EXPECT_EQ(editor.places(), "300,400/0 410,400/0 300,510/0 410,650/0");
    EXPECT_EQ(editor.told(), "edited");
    drag(tool, QPointF(410, 650), QPointF(404, 506)); // beside its neighbours: 2 mm from each
    EXPECT_EQ(editor.places(), "300,400/0 410,400/0 300,510/0 402,502/0");
}

TEST(DragTool, DragsAllChosenProducts)
{
    PlanEditor editor(square());
    DragTool tool(&editor.editing);
    tool.setSnapping(false);
    editor.editing.select({0, 1});
    drag(tool, QPointF(300, 510), QPointF(333.4, 700), true); // puts one more to them
    EXPECT_EQ(editor.places(), "333,590/0 443,590/0 333,700/0 410,510/0");
    EXPECT_EQ(editor.editing.selection(), (Selection{0, 1, 2}));
}

TEST(FrameTool, ChoosesWhatLiesInside)
{
    PlanEditor editor(square());
    FrameTool tool(&editor.editing);
    tool.press(QPointF(500, 600), kPixelMm, false);
    tool.move(QPointF(350, 450)); // upwards to the left
    EXPECT_EQ(editor.editing.selection(), (Selection{3}));
    tool.move(QPointF(250, 450));
    tool.release(QPointF(250, 450));
    EXPECT_EQ(editor.editing.selection(), (Selection{2, 3}));
    drag(tool, QPointF(250, 350), QPointF(350, 450), true);
    EXPECT_EQ(editor.editing.selection(), (Selection{0, 2, 3}));
    tap(tool, QPointF(700, 700));
    EXPECT_EQ(editor.editing.selection(), Selection());
}

TEST(OrderTool, NumbersAsTapped)
{
    PlanEditor editor(square());
    OrderTool tool(&editor.editing);
    tool.start();
    tap(tool, QPointF(410, 510));
    EXPECT_EQ(placesOf(editor.scene.shownItems()), "410,510/0 300,400/0 410,400/0 300,510/0");
    EXPECT_EQ(editor.scene.shownItems()[0].index, 1);
    tap(tool, QPointF(410, 510)); // has its number
    tap(tool, QPointF(700, 700)); // bare pallet
    EXPECT_EQ(tool.tapped(), 1);
    EXPECT_EQ(editor.places(), placesOf(square()));
    tap(tool, QPointF(300, 510));
    EXPECT_EQ(editor.editing.selection(), (Selection{0, 1}));
    tool.finish();
    EXPECT_EQ(editor.places(), "410,510/0 300,510/0 300,400/0 410,400/0");
    EXPECT_EQ(editor.told(), "edited");
    EXPECT_FALSE(tool.isActive());
}

TEST(OrderTool, GivesUpWhenThePatternChanges)
{
    PlanEditor editor(square());
    OrderTool tool(&editor.editing);
    tool.start();
    tap(tool, QPointF(410, 400));
    editor.pattern()->cmobj(2)->remove();
    QCoreApplication::processEvents();
    EXPECT_FALSE(tool.isActive());
    EXPECT_EQ(editor.places(), "300,400/0 410,400/0 410,510/0");
    EXPECT_EQ(editor.told(), "");
}

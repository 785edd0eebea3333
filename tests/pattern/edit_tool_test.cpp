#include "pattern/drag_tool.h"
#include "pattern/order_tool.h"
#include "pattern/plan_editor.h"
#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::DragTool;
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

#include "pattern/stack_drawing.h"

#include "pattern/plan_recipe.h"
#include "pattern/plan_style.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using palx::Piece;
using palx::StackDrawing;

namespace {

constexpr double kScale = 0.25; // pixels per millimetre

struct Shown
{
    explicit Shown(const orba::Node &stack) { drawing.setStack(stack); }

    QImage paint()
    {
        const QRectF bounds = drawing.turningBounds();
        QImage image((bounds.size() * kScale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(kScale, kScale);
        painter.translate(-bounds.topLeft());
        drawing.paint(&painter, kScale);
        return image;
    }
    bool has(QRgb color)
    {
        const QImage image = paint();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) == color)
                    return true;
            }
        }
        return false;
    }
    /// The middle of an item's top on the picture.
    QPointF topOf(int item) const
    {
        const palx::Course &course = drawing.courses().last();
        const palx::IsoProjection view(drawing.turn(), QPointF(400, 600));
        return view.point((course.outlines[item][0] + course.outlines[item][2]) / 2, course.topMm);
    }

    StackDrawing drawing;
};

} // namespace

TEST(StackDrawing, ATouchFindsTheBoxOnTopAtAnyTurn)
{
    Shown shown(oneLayerRecipe(planGrid(4, 4, 200, 300)));
    for (int turn = 0; turn < 360; turn += 45) {
        shown.drawing.setTurn(turn);
        shown.paint();
        for (int item = 0; item < 16; ++item)
            EXPECT_EQ(shown.drawing.pieceAt(shown.topOf(item)), (Piece{0, item})) << turn;
        EXPECT_FALSE(shown.drawing.pieceAt(shown.drawing.turningBounds().topLeft()).isSet());
    }
}

TEST(StackDrawing, MarksOverhangAndOverlapInColour)
{
    Shown good(oneLayerRecipe({planItem(100, 100, 200, 200)}));
    EXPECT_FALSE(good.has(palx::plan_style::kAttentionFill));
    EXPECT_FALSE(good.has(palx::plan_style::kFaultFill));
    Shown over(oneLayerRecipe({planItem(50, 100, 200, 200)}));
    EXPECT_TRUE(over.has(palx::plan_style::kAttentionFill));
    Shown overlap(oneLayerRecipe({planItem(150, 200, 200, 200), planItem(250, 200, 200, 200)}));
    EXPECT_TRUE(overlap.has(palx::plan_style::kFaultFill));
}

TEST(StackDrawing, TheMarkedPieceShowsThroughTheStack)
{
    Shown shown(planRecipe());
    const QImage plain = shown.paint();
    shown.drawing.setMarked({0, 0}); // far below, behind others
    const QImage marked = shown.paint();
    EXPECT_NE(marked, plain);
    shown.drawing.setPieces(0); // and before it is laid
    const QImage ahead = shown.paint();
    shown.drawing.setMarked({});
    EXPECT_NE(ahead, shown.paint());
    shown.drawing.setPieces(6);
    EXPECT_EQ(shown.paint(), plain);
}

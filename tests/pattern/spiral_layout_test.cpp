#include "pattern/rules/auto_layout.h"

#include "pattern/layout_cases.h"
#include "pattern/rules/item_geometry.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using palx::AutoLayout;
using palx::LayoutInput;
using palx::Placement;

TEST(SpiralLayout, ARingOfFourGoesAroundTheGap)
{
    // Room for 500 x 500 inside a pallet of 620 x 560: one product per block and a gap of 100 x 100.
    LayoutInput input = layoutInput(300, 200, 620, 560, 0, 60, 30);
    const QStringList plain{"1: 130 210 0", "2: 380 160 90", "3: 180 460 90", "4: 430 410 0"};
    EXPECT_EQ(places(palx::generateSpiralPattern(input).items), plain);
    input.placement = Placement::Left;
    EXPECT_EQ(places(palx::generateSpiralPattern(input).items),
              QStringList({"1: 130 410 0", "2: 380 460 90", "3: 180 160 90", "4: 430 210 0"}));
    input.placement = Placement::Right;
    EXPECT_EQ(places(palx::generateSpiralPattern(input).items),
              QStringList({"1: 430 410 0", "2: 180 460 90", "3: 380 160 90", "4: 130 210 0"}));
    input.placement = Placement::Plain;
    input.topBottomMargin = 60.5; // a millimetre less and there is no ring
    EXPECT_EQ(palx::generateSpiralPattern(input).count, 0);
}

// The numbers and outlines were found by trying every number of columns and rows of every block.
TEST(SpiralLayout, NoRingHoldsMoreNorIsAnyTighter)
{
    const struct
    {
        LayoutInput input;
        int count;
        QSizeF outline; ///< across, along
    } cases[] = {
        {layoutInput(375, 245, 830, 680), 4, {620, 620}},
        {layoutInput(190, 335, 1040, 785, 25, 55, 20), 6, {550, 835}},
        {layoutInput(400, 210, 1235, 1210, 15, 15), 12, {1110, 1040}},
        {layoutInput(235, 360, 1030, 1280, 20), 13, {1255, 995}},
        {layoutInput(480, 110, 715, 1270, 20, 5, 40), 11, {1150, 610}},
        {layoutInput(455, 95, 880, 760, 5), 14, {755, 855}},
        {layoutInput(120, 270, 625, 1290), 20, {1290, 510}},
        {layoutInput(165, 205, 1005, 970, 0, 50, 50), 22, {865, 905}},
        {layoutInput(210, 185, 1215, 855), 24, {790, 1185}},
    };
    for (const auto &c : cases) {
        const AutoLayout layout = palx::generateSpiralPattern(c.input);
        EXPECT_EQ(layout.count, c.count) << layoutCase(c.input, 3);
        const QRectF outline = palx::itemsBounds(layout.items);
        EXPECT_EQ(outline.size(), c.outline) << layoutCase(c.input, 3);
        EXPECT_NEAR(outline.center().x(), c.input.palletWidth / 2, 1e-9) << layoutCase(c.input, 3);
        EXPECT_NEAR(outline.center().y(), c.input.palletLength / 2, 1e-9) << layoutCase(c.input, 3);
    }
}

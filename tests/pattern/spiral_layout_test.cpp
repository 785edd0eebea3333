#include "pattern/rules/auto_layout.h"

#include "pattern/layout_cases.h"
#include "pattern/rules/item_geometry.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using palx::AutoLayout;
using palx::LayoutInput;
using palx::Placement;

namespace {

struct BestRing
{
    int count = 0;
    double area = 0;
};

/// What rings there are at all, by trying every number of columns and rows of every block.
class RingTrial
{
public:
    explicit RingTrial(const LayoutInput &input)
        : s_(input.spacing), a_(input.width + s_), b_(input.length + s_),
          across_(roomOf(input).width() + s_ + 1e-6), along_(roomOf(input).height() + s_ + 1e-6)
    {
    }

    BestRing best()
    {
        for (int first = 1; first * a_ < across_; ++first)
            for (int second = 1; first * a_ + second * b_ <= across_; ++second)
                for (int third = 1; third * a_ < across_; ++third)
                    for (int fourth = 1; fourth * b_ + third * a_ <= across_; ++fourth)
                        tryRows(first, second, third, fourth);
        return best_;
    }

private:
    void tryRows(int c1, int c2, int c3, int c4)
    {
        for (int r1 = 1; r1 * b_ < along_; ++r1)
            for (int r4 = 1; r1 * b_ + r4 * a_ <= along_; ++r4)
                for (int r3 = 1; r3 * b_ < along_; ++r3)
                    for (int r2 = 1; r2 * a_ + r3 * b_ <= along_; ++r2) {
                        const int count = c1 * r1 + c2 * r2 + c3 * r3 + c4 * r4;
                        if (count < best_.count)
                            continue;
                        const double across = std::max(c1 * a_ + c2 * b_, c4 * b_ + c3 * a_);
                        const double along = std::max(r1 * b_ + r4 * a_, r2 * a_ + r3 * b_);
                        // facing blocks keep clear of each other beside or above
                        tryOutline(count, std::max({across, (c1 + c3) * a_, (c2 + c4) * b_}), along);
                        tryOutline(count, std::max(across, (c1 + c3) * a_), std::max(along, (r2 + r4) * a_));
                        tryOutline(count, std::max(across, (c2 + c4) * b_), std::max(along, (r1 + r3) * b_));
                        tryOutline(count, across, std::max({along, (r1 + r3) * b_, (r2 + r4) * a_}));
                    }
    }

    void tryOutline(int count, double across, double along)
    {
        if (across > across_ || along > along_)
            return;
        const double area = (across - s_) * (along - s_);
        if (count > best_.count || area < best_.area)
            best_ = {count, area};
    }

    double s_, a_, b_, across_, along_;
    BestRing best_;
};

} // namespace

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

TEST(SpiralLayout, ARingIsCentredInItsRoom)
{
    const LayoutInput input = layoutInput(300, 200, 570, 590, 10);
    const QRectF outline = palx::itemsBounds(palx::generateSpiralPattern(input).items);
    EXPECT_EQ(outline, QRectF(40, 30, 510, 510));
}

TEST(SpiralLayout, NoRingHoldsMoreNorIsAnyTighter)
{
    std::mt19937 random(20240611);
    int rings = 0;
    for (int i = 0; i < 600; ++i) {
        const LayoutInput input = randomInput(random);
        const QRectF room = roomOf(input);
        if (room.width() * room.height() > 28 * input.length * input.width)
            continue; // trying all of them takes too long
        const BestRing best = RingTrial(input).best();
        const AutoLayout layout = palx::generateSpiralPattern(input);
        EXPECT_EQ(layout.count, best.count) << layoutCase(input, 3);
        if (best.count == 0)
            continue;
        ++rings;
        const QRectF outline = palx::itemsBounds(layout.items);
        const double slack = outline.width() + outline.height() + 1; // items are cut to whole millimetres
        EXPECT_NEAR(outline.width() * outline.height(), best.area, slack) << layoutCase(input, 3);
    }
    EXPECT_GT(rings, 200);
}

#include "pattern/rules/auto_layout.h"

#include "pattern/layout_cases.h"
#include "pattern/rules/item_geometry.h"
#include "pattern/rules/order_check.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using palx::AutoLayout;
using palx::LayoutInput;
using palx::PatternItem;
using palx::Placement;

namespace {

constexpr int kJudged = 400; // all pairs of more take long
constexpr Placement kPlacements[] = {Placement::Plain, Placement::Left, Placement::Right};

bool isInside(const QRectF &inner, const QRectF &outer)
{
    const double slack = palx::kContactMm;
    return outer.adjusted(-slack, -slack, slack, slack).contains(inner);
}

/// Items are laid with whole millimetres, so whatever keeps its distance with those keeps it for real.
void expectFeasible(const AutoLayout &layout, const LayoutInput &input, int kind)
{
    const QString what = layoutCase(input, kind);
    ASSERT_EQ(layout.items.size(), qMin(layout.count, qint64(palx::kMaxShownItems))) << what;
    for (int i = 0; i < layout.items.size(); ++i)
        ASSERT_EQ(layout.items[i].index, i + 1) << what;
    const palx::LayoutFindings found =
        palx::judgeLayout(layout.items.mid(0, kJudged), QSizeF(input.palletWidth, input.palletLength));
    EXPECT_TRUE(found.overlaps.isEmpty()) << what;
    const bool mayReachOut = kind == 2 && layout.turnedRows > 0;
    if (!mayReachOut && !layout.items.isEmpty()) {
        EXPECT_TRUE(isInside(palx::itemsBounds(layout.items), roomOf(input))) << what;
    }
}

/// Where the robot comes from with the directions of that placement: the work object's axes run against the plan's.
palx::ApproachFrame frameOf(Placement placement)
{
    palx::ApproachFrame frame;
    frame.onePoint = true;
    frame.side.position = placement == Placement::Left ? 0 : 1;
    return frame;
}

} // namespace

TEST(LayoutProperties, EveryLayoutIsFeasible)
{
    std::mt19937 random(77);
    int laid = 0;
    for (int i = 0; i < 120; ++i) {
        LayoutInput input = randomInput(random);
        for (const Placement placement : kPlacements) {
            input.placement = placement;
            for (int kind = 0; kind < palx::kLayoutKinds; ++kind) {
                const AutoLayout layout = palx::generateLayout(input, palx::StackingPattern(kind));
                expectFeasible(layout, input, kind);
                laid += layout.count > 0 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(laid, 800);
}

TEST(LayoutProperties, NoProductIsBroughtPastOneThatLiesThere)
{
    std::mt19937 random(5);
    for (int i = 0; i < 60; ++i) {
        LayoutInput input = randomInput(random);
        for (const Placement placement : {Placement::Left, Placement::Right}) {
            input.placement = placement;
            for (int kind = 0; kind < palx::kLayoutKinds; ++kind) {
                const QVector<PatternItem> items =
                    palx::generateLayout(input, palx::StackingPattern(kind)).items;
                EXPECT_TRUE(palx::checkOrder(items, frameOf(placement)).hits.isEmpty())
                    << layoutCase(input, kind);
            }
        }
    }
}

TEST(LayoutProperties, ExtremesOfTheFieldsStayFeasible)
{
    const LayoutInput cases[] = {
        layoutInput(1, 1, 10000, 10000),          // a hundred million
        layoutInput(1, 5000, 10000, 10000, 0.1),  //
        layoutInput(10, 10, 10000, 20),           // a strip
        layoutInput(200, 150, 1000, 800, 2000),   // a spacing wider than the pallet
        layoutInput(200, 150, 1000, 800, 1, 600), // margins that leave no room
        layoutInput(2000, 150, 1000, 800, 1),
    };
    for (const LayoutInput &input : cases) {
        for (int kind = 0; kind < palx::kLayoutKinds; ++kind)
            expectFeasible(palx::generateLayout(input, palx::StackingPattern(kind)), input, kind);
    }
    EXPECT_EQ(palx::generateMatrixPattern(cases[0], true).count, 100000000);
    EXPECT_EQ(palx::generateMatrixPattern(cases[3], true).count, 1);
    EXPECT_EQ(palx::generateMatrixPattern(cases[5], true).count, 0);
    EXPECT_GT(palx::generateSpiralPattern(cases[2]).count, 200); // some sizes of blocks are tried even here
}

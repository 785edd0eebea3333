#include "pattern/rules/order_check.h"

#include "pattern/plan_recipe.h"
#include "stack/recipe_patterns.h"

#include <gtest/gtest.h>

using palx::OrderHit;
using palx::PatternItem;

namespace {

std::string shown(const QVector<OrderHit> &hits)
{
    QString text;
    for (const OrderHit &hit : hits)
        text += QStringLiteral("%1>%2:%3 ").arg(hit.item).arg(hit.placed).arg(hit.depthMm);
    return text.trimmed().toStdString();
}

} // namespace

// One box lies at the place (500, 500) and measures 100 x 200; another comes to a place beside it.
TEST(OrderCheck, PathOfOneProduct)
{
    const PatternItem placed = planItem(500, 500, 100, 200);
    struct
    {
        const char *what;
        PatternItem item;
        double depth;
    } const cases[] = {
        {"beside, over it", coming(planItem(600, 500, 100, 200), "Left"), 100},
        {"beside, a shorter way over it", coming(planItem(600, 500, 100, 200), "Left", 100, 30), 30},
        {"beside, with a gap that the way bridges", coming(planItem(620, 500, 100, 200), "Left", 0, 50), 30},
        {"from above", coming(planItem(600, 500, 100, 200), "Middle"), 0},
        {"without a shift", coming(planItem(600, 500, 100, 200), "Left", 0, 0), 0},
        {"below, from the open corner", coming(planItem(500, 700, 100, 200), "BottomRight"), 0},
        {"in it, through it", coming(planItem(590, 500, 100, 200), "Left"), 110},
    };
    for (const auto &one : cases) {
        const auto hits = palx::checkOrder({placed, one.item}, namedSides()).hits;
        EXPECT_NEAR(hits.isEmpty() ? 0 : hits[0].depthMm, one.depth, 1e-9) << one.what;
    }
}

// A path on the diagonal is a hexagon: its bounds meet the box that it passes.
TEST(OrderCheck, DiagonalPathPassesBesideItsBounds)
{
    const PatternItem item = coming(planItem(0, 0, 100, 100), "BottomRight", 300, 300);
    EXPECT_EQ(shown(palx::checkOrder({planItem(200, 0, 60, 60), item}, namedSides()).hits), std::string());
    EXPECT_EQ(palx::checkOrder({planItem(200, 200, 60, 60), item}, namedSides()).hits.size(), 1);
    EXPECT_EQ(palx::checkOrder({planItem(150, 0, 60, 120), item}, namedSides()).hits.size(), 1);
}

TEST(OrderCheck, NamesEveryPairInTheOrderOfPlacing)
{
    QVector<PatternItem> row;
    for (int i = 0; i < 4; ++i)
        row.append(coming(planItem(50 + 100 * i, 100, 100, 200), "Left", 0, 150));
    const palx::OrderFindings findings = palx::checkOrder(row, namedSides());
    EXPECT_EQ(shown(findings.hits), std::string("1>0:150 2>0:50 2>1:150 3>1:50 3>2:150"));
    EXPECT_EQ(findings.blocked, (QVector<bool>{false, true, true, true}));
}

TEST(OrderCheck, AHeapIsNotListedEndlessly)
{
    QVector<PatternItem> heap;
    for (int i = 0; i < palx::kMaxShownItems; ++i)
        heap.append(coming(planItem(400 + i * 0.05, 600, 100, 100), "Left"));
    const palx::OrderFindings findings = palx::checkOrder(heap, namedSides());
    EXPECT_EQ(findings.blocked.count(true), heap.size() - 1);
    EXPECT_LE(findings.hits.size(), palx::kMaxListedHits + heap.size());
}

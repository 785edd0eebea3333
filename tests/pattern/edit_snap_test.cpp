#include "pattern/rules/edit_snap.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::PatternItem;
using palx::PlanAxis;
using palx::Snap;
using palx::SnapField;
using palx::SnapGuide;
using palx::SnapKind;

namespace {

const QSizeF kPallet(800, 1200);
const QRectF kWhole(QPointF(), kPallet);

std::string text(const Snap &snap)
{
    static const char *const kinds[] = {"gap", "edge", "margin", "neighbour", "middle"};
    QStringList texts{QStringLiteral("%1,%2").arg(snap.shift.x()).arg(snap.shift.y())};
    for (const SnapGuide &guide : snap.guides)
        texts << QStringLiteral("%1%2@%3[%4..%5]:%6#%7")
                     .arg(QLatin1String(guide.axis == PlanAxis::Across ? "x-" : "y-"))
                     .arg(QLatin1String(kinds[static_cast<int>(guide.kind)]))
                     .arg(guide.at)
                     .arg(guide.from)
                     .arg(guide.to)
                     .arg(guide.distanceMm)
                     .arg(guide.neighbour);
    return texts.join(QLatin1Char(' ')).toStdString();
}

std::string text(const QVector<palx::SideGap> &gaps)
{
    QStringList texts;
    for (const palx::SideGap &gap : gaps)
        texts << QStringLiteral("%1#%2@%3").arg(gap.gapMm()).arg(gap.neighbour).arg(gap.beside);
    return texts.join(QLatin1Char(' ')).toStdString();
}

/// The first of the items is dragged from the middle of nowhere.
std::string dragged(const QVector<PatternItem> &others, const PatternItem &moved, const QPointF &to,
                    double spacing = 2, const QRectF &inside = kWhole)
{
    QVector<PatternItem> items{moved};
    items += others;
    const SnapField field = palx::snapField(items, {0}, kPallet, inside, spacing);
    return text(palx::snapMove(field, to - QPointF(moved.x, moved.y), 10));
}

} // namespace

// The moved product is 100 x 200 and starts at (1000, 2000), so a shift says where it went.
TEST(EditSnap, DrawsToWhatIsNear)
{
    const PatternItem moved = planItem(1000, 2000, 100, 200);
    const PatternItem other = planItem(400, 500, 120, 160); // 340..460, 420..580
    struct
    {
        const char *what;
        QPointF to;
        const char *snap;
    } const cases[] = {
        {"nothing near", {600, 900}, "-400,-1100"},
        {"beside the right of a neighbour", {517, 540}, "-488,-1460 x-gap@460[420..640]:2#1"},
        {"beside its left", {283, 540}, "-712,-1460 x-gap@340[420..640]:2#1"},
        {"below it", {430, 688}, "-570,-1318 y-gap@580[340..480]:2#1"},
        {"above it", {430, 325}, "-570,-1682 y-gap@420[340..480]:2#1"},
        {"beside it, its middle on the neighbour's",
         {517, 503},
         "-488,-1500 x-gap@460[400..600]:2#1 y-neighbour@500[340..562]:0#1"},
        {"too far from it", {523, 540}, "-477,-1460"},
        {"the upper edges in line", {600, 517}, "-400,-1480 y-neighbour@420[340..650]:0#1"},
        {"the pallet's lower right corner",
         {746, 1105},
         "-250,-900 x-edge@800[0..1200]:0#-1 y-edge@1200[0..800]:0#-1"},
        {"from outside the pallet", {42, 900}, "-950,-1100 x-edge@0[0..1200]:0#-1"},
        {"the pallet's middle", {600, 604}, "-400,-1400 y-middle@600[0..800]:0#-1"},
        {"not abreast any more: no gap", {517, 700}, "-483,-1300"},
    };
    for (const auto &one : cases)
        EXPECT_EQ(dragged({other}, moved, one.to), one.snap) << one.what;
}

TEST(EditSnap, TheNearestWins)
{
    const PatternItem moved = planItem(1000, 2000, 100, 200);
    EXPECT_EQ(dragged({planItem(50, 600, 100, 200), planItem(254, 600, 100, 200)}, moved, {252, 900}, 2),
              "-746,-1100 x-neighbour@204[500..1000]:0#2");
    EXPECT_EQ(dragged({planItem(50, 600, 100, 200), planItem(258, 600, 100, 200)}, moved, {153, 660}, 2),
              "-848,-1340 x-gap@100[500..760]:2#1");
    EXPECT_EQ(dragged({planItem(50, 600, 100, 200), planItem(258, 600, 100, 200)}, moved, {155, 660}, 2),
              "-844,-1340 x-gap@208[500..760]:2#2");
}

TEST(EditSnap, MarginsDrawLikeEdges)
{
    const PatternItem moved = planItem(1000, 2000, 100, 200);
    const QRectF inside(30, 0, 770, 1200);
    EXPECT_EQ(dragged({}, moved, {77, 900}, 2, inside), "-920,-1100 x-margin@30[0..1200]:0#-1");
    EXPECT_EQ(dragged({}, moved, {52, 900}, 2, inside), "-950,-1100 x-edge@0[0..1200]:0#-1");
}

TEST(EditSnap, SeveralProductsSnapAsOneArea)
{
    const QVector<PatternItem> items{planItem(1000, 2000, 100, 200), planItem(1100, 2000, 100, 200),
                                     planItem(400, 500, 120, 160), planItem(1000, 2200, 100, 100, 45)};
    const SnapField field = palx::snapField(items, {0, 1}, kPallet, kWhole, 2);
    EXPECT_EQ(field.moved, QRectF(950, 1900, 200, 200));
    EXPECT_EQ(field.places, (QVector<int>{2, 3}));
    EXPECT_EQ(text(palx::snapMove(field, QPointF(-484, -1450), 10)), "-488,-1450 x-gap@460[420..650]:2#2");
}

TEST(EditSnap, GapsAroundAreToNeighboursOrEdges)
{
    const QVector<PatternItem> items{planItem(400, 600, 100, 200), planItem(250, 650, 100, 200),
                                     planItem(150, 600, 90, 200), planItem(420, 300, 300, 100)};
    const SnapField field = palx::snapField(items, {0}, kPallet, kWhole, 2);
    EXPECT_EQ(text(palx::gapsAround(field, QPointF())), "50#1@625 350#-1@600 150#3@400 500#-1@400");
    // Moved into its neighbour the gap is negative; over the edge too.
    EXPECT_EQ(text(palx::gapsAround(field, QPointF(-60, 0))), "-10#1@625 410#-1@600 150#3@340 500#-1@340");
    EXPECT_EQ(text(palx::gapsAround(field, QPointF(370, 0))), "420#1@625 -20#-1@600 500#-1@760 500#-1@760");
}

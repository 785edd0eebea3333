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

/// The first of the items is dragged from the middle of nowhere.
std::string dragged(const QVector<PatternItem> &others, const PatternItem &moved, const QPointF &to)
{
    QVector<PatternItem> items{moved};
    items += others;
    const SnapField field = palx::snapField(items, {0}, kPallet, kWhole, 2);
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
        {"beside the right of a neighbour", {517, 540}, "-488,-1460 x-gap@460[420..640]:2#1"},
        {"above it", {430, 325}, "-570,-1682 y-gap@420[340..480]:2#1"},
        {"beside it, its middle on the neighbour's",
         {517, 503},
         "-488,-1500 x-gap@460[400..600]:2#1 y-neighbour@500[340..562]:0#1"},
        {"too far from it", {523, 540}, "-477,-1460"},
        {"the upper edges in line", {600, 517}, "-400,-1480 y-neighbour@420[340..650]:0#1"},
        {"the pallet's lower right corner",
         {746, 1105},
         "-250,-900 x-edge@800[0..1200]:0#-1 y-edge@1200[0..800]:0#-1"},
        {"the pallet's middle", {600, 604}, "-400,-1400 y-middle@600[0..800]:0#-1"},
    };
    for (const auto &one : cases)
        EXPECT_EQ(dragged({other}, moved, one.to), one.snap) << one.what;
}

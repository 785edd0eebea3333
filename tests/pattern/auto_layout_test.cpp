#include "pattern/rules/auto_layout.h"

#include "pattern/layout_cases.h"
#include "pattern/rules/item_geometry.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <limits>

using palx::AutoLayout;
using palx::LayoutInput;
using palx::PatternItem;
using palx::Placement;

namespace {

/// A whole grid as `places` gives it: columns at `across` + k * `pitchAcross`, rows likewise.
QStringList grid(int columns, double across, double pitchAcross, int rows, double along, double pitchAlong,
                 int turn, int before = 0)
{
    QStringList texts;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            texts << QStringLiteral("%1: %2 %3 %4")
                         .arg(++before)
                         .arg(across + column * pitchAcross)
                         .arg(along + row * pitchAlong)
                         .arg(turn);
    }
    return texts;
}

} // namespace

TEST(AutoLayout, MatrixAndRowsFollowTheirFormulas)
{
    // Five across and four along with margins of 23 and 98.5; three across and six along with 99 and 47.5.
    const LayoutInput base = layoutInput(200, 150, 1000, 800, 1);
    const struct
    {
        int kind;
        Placement placement;
        QStringList expected;
    } cases[] = {
        {0, Placement::Plain, grid(5, 98, 151, 4, 198.5, 201, 0)},
        {0, Placement::Left, grid(5, 98, 151, 4, 801.5, -201, 0)},
        {0, Placement::Right, grid(5, 702, -151, 4, 801.5, -201, 0)},
        {1, Placement::Plain, grid(3, 199, 201, 6, 122.5, 151, 90)},
        {1, Placement::Left, grid(3, 199, 201, 6, 877.5, -151, 90)},
        {1, Placement::Right, grid(3, 601, -201, 6, 877.5, -151, 90)},
        // four rows as they are, counted 804; a turned one makes 954, so they begin at 23
        {2, Placement::Plain, grid(5, 98, 151, 4, 123, 201, 0) + grid(3, 199, 201, 1, 902, 0, 90, 20)},
        {2, Placement::Left, grid(5, 98, 151, 4, 877, -201, 0) + grid(3, 199, 201, 1, 98, 0, 90, 20)},
        {2, Placement::Right, grid(5, 702, -151, 4, 877, -201, 0) + grid(3, 601, -201, 1, 98, 0, 90, 20)},
    };
    for (const auto &c : cases) {
        LayoutInput input = base;
        input.placement = c.placement;
        const AutoLayout layout = palx::generateLayout(input, palx::StackingPattern(c.kind));
        EXPECT_EQ(places(layout.items), c.expected) << layoutCase(input, c.kind);
        EXPECT_EQ(layout.count, c.expected.size());
    }
}

TEST(AutoLayout, ItemsCarryTheProductAndThePlacement)
{
    LayoutInput input = layoutInput(200.9, 150.4, 1000, 800);
    input.orient = 3;
    const struct
    {
        Placement placement;
        double shift;
        const char *direction;
    } cases[] = {{Placement::Plain, 0, "Middle"},
                 {Placement::Left, 100, "TopRight"},
                 {Placement::Right, 100, "TopLeft"}};
    for (const auto &c : cases) {
        input.placement = c.placement;
        for (int kind = 0; kind < palx::kLayoutKinds; ++kind) {
            const PatternItem item = palx::generateLayout(input, palx::StackingPattern(kind)).items.last();
            EXPECT_EQ(QSizeF(item.w, item.h), QSizeF(150, 200)); // whole millimetres
            EXPECT_EQ(item.orient, 3);
            EXPECT_EQ(item.directionText, QLatin1String(c.direction));
            EXPECT_EQ(QVector<double>({item.dx, item.dy, item.dz}), QVector<double>({c.shift, c.shift, 0}));
        }
    }
}

TEST(AutoLayout, RowsAreChosenGreedily)
{
    const struct
    {
        double length, width, palletLength, spacing, margin;
        const char *rows; ///< "U" as it is, "T" turned
        double first;     ///< along, of the first row's centres
    } cases[] = {
        {200, 150, 401, 1, 0, "UU", 100},         // ends exactly: no spacing behind the last row
        {200, 150, 400, 1, 0, "UT", 124.5},       // 201 + 150 = 351
        {200, 100, 200.5, 1, 0, "TT", 50.25},     // a turned row counts none
        {200, 150, 200, 1, 150, "", 0},           // ... or less than that
        {266.6, 200, 799.8, 0, 0, "UUT", 166.6},  // 3 x 266.6 is a little more than 799.8
        {600, 100, 1000, 50, 0, "UTTT", 25 + 300} // 650, 750, 850, 950
    };
    for (const auto &c : cases) {
        const LayoutInput input =
            layoutInput(c.length, c.width, c.palletLength, std::max(c.length, c.width), c.spacing, c.margin);
        const AutoLayout layout = palx::generateOneRowRotationPattern(input);
        QString rows;
        for (const PatternItem &item : layout.items) // one or more per row; the room takes one turned item
            if (item.r != 0 || layout.items.first().index == item.index ||
                item.y != layout.items[item.index - 2].y)
                rows += item.r == 0 ? QLatin1Char('U') : QLatin1Char('T');
        EXPECT_EQ(rows, QLatin1String(c.rows)) << layoutCase(input, 2);
        EXPECT_EQ(layout.turnedRows, rows.count(QLatin1Char('T')));
        if (!layout.items.isEmpty()) {
            EXPECT_DOUBLE_EQ(layout.items.first().y, c.first) << layoutCase(input, 2);
        }
    }
}

TEST(AutoLayout, NonsenseGivesNoItemsAndEnds)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const LayoutInput good = layoutInput(200, 150, 1000, 800, 1);
    const auto expectNothing = [&](double LayoutInput::*field, const QVector<double> &values) {
        for (const double value : values) {
            LayoutInput input = good;
            input.*field = value;
            for (int kind = 0; kind < palx::kLayoutKinds; ++kind)
                EXPECT_EQ(palx::generateLayout(input, palx::StackingPattern(kind)).count, 0)
                    << layoutCase(input, kind);
        }
    };
    for (double LayoutInput::*size :
         {&LayoutInput::length, &LayoutInput::width, &LayoutInput::palletLength, &LayoutInput::palletWidth})
        expectNothing(size, {0.0, -200.0, 1e-9, 1e300, nan, inf, -inf});
    for (double LayoutInput::*space :
         {&LayoutInput::topBottomMargin, &LayoutInput::leftRightMargin, &LayoutInput::spacing})
        expectNothing(space, {1e300, nan, inf, -inf});
    for (const int kind : {-1, 4, 5, 6})
        EXPECT_EQ(palx::generateLayout(good, palx::StackingPattern(kind)).count, 0);
}

TEST(AutoLayout, CalibrationAndPositionDecideThePlacement)
{
    const struct
    {
        int method; ///< of the second work object; the first one has one point
        const char *stack;
        Placement expected;
    } cases[] = {
        {1, R"({"use_global_wobj":true,"pallet_position":0})", Placement::Left},
        {1, R"({"use_global_wobj":true,"pallet_position":1})", Placement::Right},
        {1, R"({"use_global_wobj":false,"pallet_position":1})", Placement::Plain},
        {3, R"({"use_global_wobj":true,"pallet_position":1})", Placement::Plain},
    };
    for (const auto &c : cases) {
        const auto plugin = makePluginTree();
        orba::Node &objects = *plugin->node().find(u"global_wobj");
        objects.assign(nodeFromJson(R"([{"calibration_method":1},{"calibration_method":1}])"));
        objects.set(u"#1.calibration_method", c.method);
        EXPECT_EQ(palx::readLayoutInput(addTestStack(plugin.get(), c.stack)->node()).placement, c.expected)
            << c.method << c.stack;
    }
}

TEST(AutoLayout, OnlyWhatAPatternHoldsMayBecomeOne)
{
    AutoLayout layout;
    layout.count = 200;
    EXPECT_EQ(palx::layoutProblem(layout), QString());
    layout.count = 201;
    EXPECT_EQ(palx::layoutProblem(layout), QStringLiteral("Wobj number is greater than 200"));
    EXPECT_DOUBLE_EQ(palx::areaUsed(layoutInput(200, 150, 1000, 800), 20), 0.75);
}

#include "pattern/rules/pattern_template.h"

#include "pattern/layout_cases.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::Node;
using palx::PatternItem;
using palx::TemplateKind;

namespace {

/// A product of 200 x 150 on a pallet of 1000 x 800, with the template's keys in short: {"type": "cross"}.
Node templateRecipe(const char *values)
{
    Node stack = nodeFromJson(R"({"product_cfg": {"product": {"length": 200, "width": 150, "orient": 4},
                                                  "pallet": {"length": 1000, "width": 800}},
        "pattern_cfg": {"template": {"type": "overlap", "num_x": 0, "num_y": 0, "num_y1": 0, "num_y2": 0,
                                     "offset_x": 0, "offset_y": 0, "space_x": 0, "space_y": 0}}})");
    const Node wanted = nodeFromJson(values);
    for (int i = 0; i < wanted.size(); ++i)
        stack.ensure(palx::templatePath(wanted.at(i)->name().toString().toLatin1().constData()))
            ->assign(*wanted.at(i));
    return stack;
}

QVector<PatternItem> itemsOf(const Node &stack, int present)
{
    const int kind = palx::templateWords().indexOf(stack.getString(palx::templatePath("type")));
    return palx::templateItems(stack, static_cast<TemplateKind>(kind), palx::readTemplateNumbers(stack),
                               present);
}

const QString kX = QStringLiteral("Invalid X number");
const QString kY = QStringLiteral("Invalid Y number");
const QString kY12 = QStringLiteral("Invalid Y1 or Y2 number");
const QString kMany = QStringLiteral("Wobj number is greater than 200");
const QString kEdgeX = QStringLiteral("Wobj is beyond the pallet's x edge");
const QString kEdgeY = QStringLiteral("Wobj is beyond the pallet's y edge");

} // namespace

TEST(PatternTemplate, IsRefusedForTheFirstFailure)
{
    const struct
    {
        const char *values;
        int present;
        QString expected;
    } cases[] = {
        // counts
        {R"({"num_x": 0, "num_y": 0})", 0, kX},
        {R"({"type": "cross", "num_x": 0, "num_y1": 0})", 0, kX},
        {R"({"type": "cross", "num_x": 1, "num_y1": 1, "num_y2": 0})", 0, kY12},
        // the limit of a pattern comes before its edges
        {R"({"num_x": 10, "num_y": 21})", 0, kMany},
        {R"({"num_x": 1, "num_y": 1})", 200, kMany},
        {R"({"type": "clip"})", 197, kMany},
        {R"({"type": "cross", "num_x": 3, "num_y1": 1, "num_y2": 2})", 197, kMany},
        {R"({"num_x": 9000000000, "num_y": 9000000000})", 0, kMany},
        // edges: 5 x 5 fill 1000 x 750
        {R"({"num_x": 5, "num_y": 5, "offset_y": 51})", 0, kEdgeY},
        {R"({"num_x": 5, "num_y": 5, "offset_x": 1, "offset_y": 51})", 0, kEdgeX},
        {R"({"num_x": 4, "num_y": 5, "space_x": 66})", 0, QString()}, // 998
        {R"({"num_x": 4, "num_y": 5, "space_x": 67})", 0, kEdgeX},
        // cross: rows of 200 and 150 along X, of 150 and 200 along Y
        {R"({"type": "cross", "num_x": 5, "num_y1": 5, "num_y2": 4, "space_x": 25})", 0, QString()},
        {R"({"type": "cross", "num_x": 2, "num_y1": 5, "num_y2": 4, "space_y": 1})", 0, kEdgeY},
        {R"({"type": "cross", "num_x": 1, "num_y1": 5, "num_y2": 99})", 0, QString()}, // no second row
        // clip: 350 both ways
        {R"({"type": "clip", "offset_x": 650, "offset_y": 450})", 0, QString()},
        {R"({"type": "clip", "space_y": 451})", 0, kEdgeY},
        // a kind that is none
        {R"({"type": "spiral", "num_x": 0})", 0, kX},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::checkTemplate(templateRecipe(c.values), c.present), c.expected)
            << c.values << " with " << c.present;
}

TEST(PatternTemplate, RowsAlternateAndKeepTheirSpaces)
{
    const struct
    {
        const char *values;
        QStringList expected;
    } cases[] = {
        {R"({"num_x": 2, "num_y": 3, "offset_x": 10, "offset_y": 20, "space_x": 5, "space_y": 7})",
         {"8: 95 110 0", "9: 252 110 0", "10: 409 110 0", "11: 95 315 0", "12: 252 315 0", "13: 409 315 0"}},
        {R"({"type": "cross", "num_x": 3, "num_y1": 2, "num_y2": 1, "offset_x": 10, "offset_y": 20,
             "space_x": 5, "space_y": 7})",
         {"8: 95 110 0", "9: 252 110 0", "10: 120 290 90", "11: 95 470 0", "12: 252 470 0"}},
        {R"({"type": "clip", "num_x": 9, "offset_x": 10, "offset_y": 20, "space_x": 5, "space_y": 7})",
         {"8: 95 110 0", "9: 277 85 90", "10: 302 265 0", "11: 120 290 90"}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(places(itemsOf(templateRecipe(c.values), 7)), c.expected) << c.values;
}

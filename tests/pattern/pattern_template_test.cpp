#include "pattern/rules/pattern_template.h"

#include "pattern/layout_cases.h"
#include "pattern/rules/item_geometry.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::Node;
using palx::PatternItem;
using palx::TemplateKind;
using palx::TemplateNumbers;

namespace {

/// A product of 200 x 150 on a pallet of 1000 x 800, changed by paths.
Node recipe(const char *changes)
{
    Node stack = nodeFromJson(R"({"product_cfg": {"product": {"length": 200, "width": 150, "orient": 4},
                                                  "pallet": {"length": 1000, "width": 800}},
        "pattern_cfg": {"template": {"type": "overlap", "num_x": 0, "num_y": 0, "num_y1": 0, "num_y2": 0,
                                     "offset_x": 0, "offset_y": 0, "space_x": 0, "space_y": 0}}})");
    applyPaths(stack, changes);
    return stack;
}

/// The template's keys in short: {"type": "cross", "num_x": 2}.
Node templateRecipe(const char *values, const char *changes = "{}")
{
    Node stack = recipe(changes);
    const Node wanted = nodeFromJson(values);
    for (int i = 0; i < wanted.size(); ++i)
        stack.ensure(palx::templatePath(wanted.at(i)->name().toString().toLatin1().constData()))
            ->assign(*wanted.at(i));
    return stack;
}

QVector<PatternItem> itemsOf(const Node &stack, int present = 0)
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
        {R"({"num_x": 1, "num_y": 0})", 0, kY},
        {R"({"type": "cross", "num_x": 0, "num_y1": 0})", 0, kX},
        {R"({"type": "cross", "num_x": 2, "num_y1": 0, "num_y2": 1})", 0, kY12},
        {R"({"type": "cross", "num_x": 1, "num_y1": 1, "num_y2": 0})", 0, kY12},
        // the limit of a pattern comes before its edges
        {R"({"num_x": 10, "num_y": 21})", 0, kMany},
        {R"({"num_x": 1, "num_y": 1})", 199, QString()},
        {R"({"num_x": 1, "num_y": 1})", 200, kMany},
        {R"({"type": "clip"})", 196, QString()},
        {R"({"type": "clip"})", 197, kMany},
        {R"({"type": "cross", "num_x": 3, "num_y1": 1, "num_y2": 2})", 197, kMany},
        {R"({"type": "cross", "num_x": 3, "num_y1": 1, "num_y2": 2})", 196, QString()},
        {R"({"num_x": 9000000000, "num_y": 9000000000})", 0, kMany},
        // edges: 5 x 5 fill 1000 x 750
        {R"({"num_x": 5, "num_y": 5, "offset_y": 50})", 0, QString()},
        {R"({"num_x": 5, "num_y": 5, "offset_y": 51})", 0, kEdgeY},
        {R"({"num_x": 5, "num_y": 5, "offset_x": 1, "offset_y": 51})", 0, kEdgeX},
        {R"({"num_x": 4, "num_y": 5, "space_x": 66})", 0, QString()}, // 998
        {R"({"num_x": 4, "num_y": 5, "space_x": 67})", 0, kEdgeX},
        // cross: rows of 200 and 150 along X, of 150 and 200 along Y
        {R"({"type": "cross", "num_x": 5, "num_y1": 5, "num_y2": 4, "space_x": 25})", 0, QString()},
        {R"({"type": "cross", "num_x": 5, "num_y1": 5, "num_y2": 4, "space_x": 26})", 0, kEdgeX},
        {R"({"type": "cross", "num_x": 2, "num_y1": 5, "num_y2": 4, "space_y": 1})", 0, kEdgeY},
        {R"({"type": "cross", "num_x": 1, "num_y1": 5, "num_y2": 99})", 0, QString()}, // no second row
        // clip: 350 both ways
        {R"({"type": "clip", "offset_x": 650, "offset_y": 450})", 0, QString()},
        {R"({"type": "clip", "offset_x": 651})", 0, kEdgeX},
        {R"({"type": "clip", "space_y": 451})", 0, kEdgeY},
        // a kind that is none
        {R"({"type": "spiral", "num_x": 0})", 0, kX},
        {R"({"type": "spiral", "num_x": 1, "offset_x": 5000})", 0, QString()},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::checkTemplate(templateRecipe(c.values), c.present), c.expected)
            << c.values << " with " << c.present;
}

TEST(PatternTemplate, SizesThatCannotBeComparedAreRefused)
{
    Node stack = templateRecipe(R"({"num_x": 1, "num_y": 1})");
    stack.find(u"product_cfg.product.length")->setDouble(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(palx::checkTemplate(stack, 0), kEdgeX);
    stack = templateRecipe(R"({"num_x": 1, "num_y": 1})");
    stack.remove(u"product_cfg.pallet");
    EXPECT_EQ(palx::checkTemplate(stack, 0), kEdgeX);
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

TEST(PatternTemplate, ItemsCarryTheProductWithoutOffsets)
{
    const Node stack = templateRecipe(R"({"num_x": 1, "num_y": 1})",
                                      R"({"product_cfg.product.length": 201.9,
                                          "product_cfg.product.width": 151.5})");
    PatternItem expected;
    expected.x = 75.75;
    expected.y = 100.95;
    expected.w = 151;
    expected.h = 201;
    expected.index = 1;
    expected.orient = 4;
    expected.directionText = QStringLiteral("middle");
    EXPECT_TRUE(itemsOf(stack) == QVector<PatternItem>{expected});
}

TEST(PatternTemplate, WhatIsAcceptedLiesOnThePalletWithoutOverlaps)
{
    int accepted = 0;
    for (const char *type : {"overlap", "cross", "clip"}) {
        for (int i = 0; i < 5 * 6 * 4 * 3; i += 3) {
            Node stack = templateRecipe("{}");
            stack.set(palx::templatePath("type"), QString::fromLatin1(type));
            const int values[] = {1 + i % 5, 1 + i / 5 % 6, 1 + i / 5 % 6, 1 + i / 30 % 4};
            for (int n = 0; n < 4; ++n)
                stack.set(palx::templatePath(palx::templateFields()[n].key), values[n]);
            for (const char *key : {"offset_x", "offset_y", "space_x", "space_y"})
                stack.set(palx::templatePath(key), i / 120 * 17);
            if (!palx::checkTemplate(stack, 0).isEmpty())
                continue;
            ++accepted;
            const palx::LayoutFindings found = palx::judgeLayout(itemsOf(stack), QSizeF(800, 1000));
            EXPECT_TRUE(found.overlaps.isEmpty()) << nodeText(stack);
            EXPECT_EQ(found.overhangCount(), 0) << nodeText(stack);
        }
    }
    EXPECT_GT(accepted, 130);
}

TEST(PatternTemplate, NumbersBeyondAllBoundsMakeNoEndlessList)
{
    TemplateNumbers numbers;
    for (const palx::TemplateField &field : palx::templateFields())
        numbers.*field.number = 1000000;
    const Node stack = recipe("{}");
    EXPECT_EQ(palx::templateItems(stack, TemplateKind::Overlap, numbers, 0).size(), palx::kMaxShownItems);
    EXPECT_EQ(palx::templateItems(stack, TemplateKind::Cross, numbers, 0).size(), palx::kMaxShownItems);
    numbers.numX = -5;
    EXPECT_EQ(palx::templateItems(stack, TemplateKind::Overlap, numbers, 0).size(), 0);
}

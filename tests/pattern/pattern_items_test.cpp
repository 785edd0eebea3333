#include "pattern/rules/pattern_items.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::Node;
using palx::Direction;
using palx::ItemFault;
using palx::ItemFaults;
using palx::PatternItem;

namespace {

PatternItem readOne(const char *json)
{
    Node pattern;
    pattern.add()->assign(nodeFromJson(json));
    return palx::readPatternItems(pattern, 150, 200).value(0);
}

} // namespace

TEST(PatternItems, BadValuesAreReplacedAndFlagged)
{
    struct
    {
        const char *json;
        double x, y, w, h;
        ItemFaults faults;
    } const cases[] = {
        {R"({"x":1,"y":2,"w":3,"h":4})", 1, 2, 3, 4, {}}, // older records have no more than this
        {R"({})", 0, 0, 150, 200, ItemFault::MissingValue},
        {R"({"x":"12.5","y":2,"w":3,"h":4})", 12.5, 2, 3, 4, {}},
        {R"({"x":"nan","y":"inf","w":3,"h":4})", 0, 0, 3, 4, ItemFault::BadValue},
        {R"({"x":1,"y":2,"w":0,"h":-5})", 1, 2, 1, 1, ItemFault::ClampedSize},
        {R"({"x":-1e9,"y":2e9,"w":3,"h":4})", -100000, 100000, 3, 4, ItemFault::ClampedPosition},
        {R"({"x":1,"y":2,"w":3,"h":4,"direction":"Up"})", 1, 2, 3, 4, ItemFault::UnknownDirection},
        {R"({"x":1,"y":2,"w":3,"h":4,"index":2})", 1, 2, 3, 4, ItemFault::NumberOutOfOrder},
        {R"(3)", 0, 0, 150, 200, ItemFault::MissingValue},
    };
    for (const auto &one : cases) {
        const PatternItem item = readOne(one.json);
        EXPECT_EQ(item.x, one.x) << one.json;
        EXPECT_EQ(item.y, one.y) << one.json;
        EXPECT_EQ(item.w, one.w) << one.json;
        EXPECT_EQ(item.h, one.h) << one.json;
        EXPECT_EQ(int(item.faults), int(one.faults)) << one.json;
        EXPECT_EQ(item.direction, Direction::Middle) << one.json;
    }
}

TEST(PatternItems, ReadingEndsAtTheLimit)
{
    Node pattern;
    for (int i = 0; i < palx::kMaxShownItems + 1; ++i)
        pattern.add();
    EXPECT_EQ(palx::readPatternItems(pattern, 1, 1).size(), palx::kMaxShownItems);
}

TEST(PatternItems, WrittenRecordHasEveryKeyInOrder)
{
    PatternItem item = planItem(97.5, 200, 150, 200, 90);
    item.dx = 100;
    Node pattern;
    ASSERT_TRUE(palx::appendPatternItem(pattern, item));
    EXPECT_EQ(pattern, nodeFromJson(R"([{"x":97.5,"y":200.0,"w":150.0,"h":200.0,"r":90,"index":1,"orient":0,
        "direction":"Middle","dx":100.0,"dy":0.0,"dz":0.0}])"));
    EXPECT_TRUE(palx::readPatternItems(pattern, 1, 1).value(0) == item);
    const PatternItem other =
        readOne(R"({"x":1,"y":2,"w":3,"h":4,"r":-450,"orient":2,"direction":"BottomLeft",
        "dx":5,"dy":-6,"dz":7.25})");
    EXPECT_EQ(QVector<double>({other.dx, other.dy, other.dz}), QVector<double>({5, -6, 7.25}));
    EXPECT_EQ(QVector<int>({other.r, other.orient}), QVector<int>({-90, 2}));
    EXPECT_EQ(other.direction, Direction::BottomLeft);

    Node scalar = nodeFromJson("5");
    EXPECT_FALSE(palx::appendPatternItem(scalar, item));
    EXPECT_EQ(scalar, nodeFromJson("5"));
}

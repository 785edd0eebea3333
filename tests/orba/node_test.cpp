#include "orba/node.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using orba::Name;
using orba::Node;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(Node, FindsByNameByIndexAndLiterally)
{
    const Node tree =
        nodeFromJson(R"({"a":{"b":[10,[20.5,21.5],"x"]},"value":{"[0][0][0]":7},"##1":"literal"})");
    struct
    {
        const char16_t *path;
        double expected;
    } const cases[] = {
        {u"a.b.#0", 10},       {u"a.b.#1.#0", 20.5}, {u"a.#0.#1.#1", 21.5}, {u"value.[0][0][0]", 7},
        {u"a.b.#3", -1},       {u"a.c", -1},         {u"a..b", -1},         {u"#9", -1},
        {u"a.b.#1.#0.#0", -1}, {u"a.b.#-1", -1},     {u"a.b.#x", -1},       {u"a.b.#99999999999", -1},
    };
    for (const auto &one : cases)
        EXPECT_EQ(tree.getDouble(one.path, -1), one.expected) << QString::fromUtf16(one.path);
    EXPECT_EQ(tree.child(u"#1")->toString(), QStringLiteral("literal"));
}

TEST(Node, ConvertsAsVariantsDo)
{
    struct
    {
        const char *json;
        bool asBool;
        qint64 asInt;
        double asDouble;
        const char *asText;
    } const cases[] = {
        {"\"\"", false, 0, 0, ""},
        {"\"false\"", false, 0, 0, "false"},
        {"\"no\"", true, 0, 0, "no"},
        {"\"12\"", true, 12, 12, "12"},
        {"\"1.5\"", true, 0, 1.5, "1.5"},
        {"-2.9", true, -2, -2.9, "-2.9"},
        {"0.0", false, 0, 0, "0"},
        {"1e300", true, std::numeric_limits<qint64>::max(), 1e300, "1e+300"},
    };
    for (const auto &one : cases) {
        const Node node = nodeFromJson(one.json);
        EXPECT_EQ(node.toBool(), one.asBool) << one.json;
        EXPECT_EQ(node.toInt(), one.asInt) << one.json;
        EXPECT_EQ(node.toDouble(), one.asDouble) << one.json;
        EXPECT_EQ(node.toString(), QString::fromUtf8(one.asText)) << one.json;
    }
}

TEST(Node, SetCreatesNothingAndKeepsContainers)
{
    Node tree = nodeFromJson(R"({"list":[1,2],"text":"t"})");
    const Node before(tree);
    EXPECT_FALSE(tree.set(u"new", QVariant(1)));
    EXPECT_FALSE(tree.set(u"list.#2", QVariant(1)));
    EXPECT_FALSE(tree.set(u"list", QVariant(1)));
    EXPECT_FALSE(tree.set(u"text", QVariant(QStringLiteral("t"))));
    EXPECT_EQ(tree, before);
    EXPECT_TRUE(tree.set(u"text", QVariant(4)));
    EXPECT_EQ(tree.getInt(u"text"), 4);
}

TEST(Node, EqualMeansSameKindAndBits)
{
    struct
    {
        const char *a, *b;
        bool equal;
    } const cases[] = {
        {"1", "1.0", false},           {"0.0", "-0.0", false},
        {"[]", "{}", false},           {"[1.0]", "[1.0]", true},
        {"[1,2]", "[1.0,2.0]", false}, {"{\"a\":1,\"b\":2}", "{\"b\":2,\"a\":1}", false},
        {"null", "\"\"", false},
    };
    for (const auto &one : cases)
        EXPECT_EQ(nodeFromJson(one.a) == nodeFromJson(one.b), one.equal) << one.a << " " << one.b;
    Node nan;
    nan.setDouble(kNan);
    EXPECT_FALSE(nan.setDouble(kNan));
}

TEST(Node, PackedListsBehaveLikePlainOnes)
{
    const double values[] = {1.5, -2, 0};
    Node packed;
    packed.setDoubles(values, 3);
    Node plain;
    for (const double value : values)
        plain.add()->setDouble(value);
    ASSERT_TRUE(packed.isPackedDoubles());
    ASSERT_FALSE(plain.isPacked());
    EXPECT_EQ(packed, plain);
    plain.pack();
    EXPECT_TRUE(plain.isPackedDoubles());

    Node copy(packed);
    EXPECT_TRUE(copy.set(u"#1", 9.0)); // must not show in the original
    EXPECT_EQ(packed.number(1), -2);

    ASSERT_NE(packed.find(u"#2"), nullptr); // asking for a node unpacks
    EXPECT_FALSE(packed.isPacked());
    EXPECT_EQ(packed, plain);

    EXPECT_TRUE(plain.set(u"#0", QVariant(QStringLiteral("text")))); // another kind unpacks
    EXPECT_EQ(plain, nodeFromJson(R"(["text",-2.0,0.0])"));
    EXPECT_EQ(plain.number(5, 7), 7);
    EXPECT_FALSE(plain.setNumber(3, 1));
}

TEST(Node, EnsureMakesTheWayAndRefusesTheImpossible)
{
    Node tree;
    ASSERT_NE(tree.ensure(u"a.#2.name"), nullptr);
    EXPECT_EQ(tree, nodeFromJson(R"({"a":[null,null,{"name":null}]})"));
    tree.find(u"a.#0")->setInt(1);
    EXPECT_EQ(tree.ensure(u"a.#0.b"), nullptr); // a scalar stands in the way
    EXPECT_EQ(tree.ensure(u"a.#99999999"), nullptr);
    EXPECT_EQ(tree.find(u"a")->size(), 3);
}

TEST(Node, MovesInsertsAndRemovesChildren)
{
    Node list = nodeFromJson(R"(["a","b","c","d"])");
    const Node *c = list.at(2);
    list.move(2, 0);
    EXPECT_EQ(list.at(0), c); // the same node, so that handles stay
    list.move(0, 3);
    list.insert(1)->setString(QStringLiteral("new"));
    list.removeAt(0);
    EXPECT_EQ(list, nodeFromJson(R"(["new","b","d","c"])"));
    EXPECT_TRUE(list.remove(u"#1"));
    EXPECT_FALSE(list.remove(u"#7"));
    EXPECT_EQ(list.size(), 3);
}

TEST(Node, AssignsFromInsideItself)
{
    Node tree = nodeFromJson(R"({"a":{"b":[1.0,2.0],"c":"x"}})");
    tree.assign(*tree.find(u"a"));
    EXPECT_EQ(tree, nodeFromJson(R"({"b":[1.0,2.0],"c":"x"})"));
    EXPECT_EQ(tree.find(u"c")->parent(), &tree);
}

TEST(Node, NamesDistinguishNullEmptyAndEqual)
{
    Node map;
    map.add(Name(u""))->setInt(1);
    map.add()->setInt(2);
    map.add(Name(u"x"))->setInt(3);
    map.add(Name(u"x"))->setInt(4);
    EXPECT_EQ(map.child(u"")->toInt(), 1);
    EXPECT_TRUE(map.at(1)->name().isNull());
    EXPECT_EQ(map.child(u"x")->toInt(), 3);
    EXPECT_EQ(map.child(Name(u"x"))->toInt(), 3);
    EXPECT_EQ(map.child(Name()), nullptr);
}

TEST(Node, ChangedFlagsReachTheRootOnce)
{
    Node tree = nodeFromJson(R"({"rows":[{"v":1.5},{"v":2.5}]})");
    tree.clearChanged();
    EXPECT_FALSE(tree.isChanged());
    EXPECT_FALSE(tree.set(u"rows.#1.v", 2.5)); // equal: no change
    EXPECT_FALSE(tree.isChanged());
    EXPECT_TRUE(tree.set(u"rows.#1.v", 3.5));
    EXPECT_TRUE(tree.isChanged());
    EXPECT_TRUE(tree.at(0)->at(1)->isChanged());
    EXPECT_FALSE(tree.at(0)->at(0)->isChanged());
}

TEST(Node, CopiesAContainerThatWasEmptied)
{
    Node list = nodeFromJson(R"([{"v":1}])");
    list.removeAt(0);
    const Node copy(list);
    EXPECT_EQ(copy, nodeFromJson("[]"));
    EXPECT_EQ(copy.kind(), Node::Kind::List);
}

} // namespace

#include "core/tree_compare.h"

#include "link/path_write.h"
#include "orba/module_manager.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <random>

using orba::Node;

namespace {

QString compact(const Node &node)
{
    return QString::fromUtf8(orba::ModuleManager::toJson(node, true));
}

QString differenceText(const Node &was, const Node &now)
{
    QStringList parts;
    for (const host::TreeDifference &difference : host::differences(was, now))
        parts.append(difference.path + QLatin1Char('=') + compact(*difference.now));
    return parts.join(QLatin1Char(' '));
}

} // namespace

TEST(Differences, AreTheSmallestThatPathsCanName)
{
    const struct
    {
        const char *was, *now, *expected;
    } cases[] = {
        {R"({"a": 1})", R"({"a": 1})", ""},
        {R"({"a": 1})", R"({"a": 1.0})", "a=1.0"},
        {R"({"a": {"b": [{"c": 1}, {"c": 2}]}})", R"({"a": {"b": [{"c": 1}, {"c": 3}]}})", "a.b.#1.c=3"},
        {R"({"l": [{"x": 1}]})", R"({"l": [{"x": 2}, {"x": 3}]})", "l.#0.x=2 l.#1={\"x\":3}"},
        {R"({"l": [{"x": 1}, {"x": 2}]})", R"({"l": [{"x": 1}]})", "l=[{\"x\":1}]"},
        {R"({"a": 1, "b": 2})", R"({"b": 2})", "={\"b\":2}"},
        {R"({"p": [1.0, 2.0]})", R"({"p": [1.0, 2.5]})", "p=[1.0,2.5]"},
        // names that a path cannot hold: the node above is told
        {R"({"m": {"a.b": 1}})", R"({"m": {"a.b": 2}})", "m={\"a.b\":2}"},
        {R"({"m": {"a": 1, "a": 1}})", R"({"m": {"a": 1, "a": 2}})", "m={\"a\":1,\"a\":2}"},
        {R"(1)", R"("1")", "=\"1\""},
    };
    for (const auto &item : cases)
        EXPECT_EQ(differenceText(nodeFromJson(item.was), nodeFromJson(item.now)),
                  QLatin1String(item.expected))
            << item.was << " -> " << item.now;
}

namespace {

/// A small random tree with names that collide often.
Node randomTree(std::mt19937 &random, int depth)
{
    Node node;
    const auto pick = random() % (depth > 0 ? 7u : 3u);
    if (pick < 2)
        node.setInt(static_cast<int>(random() % 3));
    else if (pick == 2)
        node.setString(QStringLiteral("t"));
    else if (pick == 3)
        node = nodeFromJson("[0.5, 1.5, 2.5]");
    else {
        node.reset(pick == 4 ? Node::Kind::List : Node::Kind::Map);
        for (unsigned n = random() % 4; n > 0; --n) {
            static const char16_t *const names[] = {u"a", u"b", u"c", u"d.e"};
            const orba::Name name(QStringView(names[random() % 4]));
            const bool isNamed = pick != 4 || random() % 8 == 0; // a list may hold named children, too
            node.add(isNamed ? name : orba::Name())->assign(randomTree(random, depth - 1));
        }
    }
    return node;
}

} // namespace

TEST(Differences, AppliedOneAfterTheOtherOrMirroredTheyMakeTheTreesEqual)
{
    std::mt19937 random(11);
    for (int round = 0; round < 2000; ++round) {
        Node wasTop;
        Node nowTop;
        wasTop.ensure(u"top")->assign(randomTree(random, 4));
        nowTop.ensure(u"top")->assign(randomTree(random, 4));
        Node mirrored = wasTop;
        const QString text = compact(wasTop) + QStringLiteral(" -> ") + compact(nowTop);
        for (const host::TreeDifference &difference :
             host::differences(*wasTop.child(u"top"), *nowTop.child(u"top"))) {
            Node payload(*difference.now);
            const QString path = QStringLiteral("top") +
                                 (difference.path.isEmpty() ? QString() : QLatin1Char('.') + difference.path);
            ASSERT_TRUE(host::applyWrite(wasTop, path, payload)) << text << " at " << path;
        }
        ASSERT_EQ(wasTop, nowTop) << text;
        host::mirrorTree(mirrored, nowTop);
        ASSERT_EQ(mirrored, nowTop) << text;
    }
}

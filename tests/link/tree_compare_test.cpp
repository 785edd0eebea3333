#include "core/tree_compare.h"

#include "link/path_write.h"
#include "orba/module_manager.h"
#include "orba/module_object.h"
#include "support/test_support.h"

#include <QPointer>

#include <gtest/gtest.h>

#include <random>

using orba::ModuleObject;
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
        {R"({"l": []})", R"({"l": [{"x": 1}, {"x": 2}]})", "l=[{\"x\":1},{\"x\":2}]"},
        {R"({"l": [{"x": 1}, {"x": 2}]})", R"({"l": [{"x": 1}]})", "l=[{\"x\":1}]"},
        {R"({"a": 1, "b": 2})", R"({"b": 2})", "={\"b\":2}"},
        {R"({"a": 1, "b": 2})", R"({"b": 2, "a": 1})", "={\"b\":2,\"a\":1}"},
        {R"({"m": {"a": 1}, "n": 0})", R"({"m": null, "n": 0})", "m=null"},
        {R"({"p": [1.0, 2.0]})", R"({"p": [1.0, 2.5]})", "p=[1.0,2.5]"},
        // names that a path cannot hold: the node above is told
        {R"({"m": {"a.b": 1}})", R"({"m": {"a.b": 2}})", "m={\"a.b\":2}"},
        {R"({"m": {"##1": 1}})", R"({"m": {"##1": 2}})", "m={\"##1\":2}"},
        {R"({"m": {"a": 1, "a": 1}})", R"({"m": {"a": 1, "a": 2}})", "m={\"a\":1,\"a\":2}"},
        {R"(1)", R"("1")", "=\"1\""},
    };
    for (const auto &item : cases)
        EXPECT_EQ(differenceText(nodeFromJson(item.was), nodeFromJson(item.now)),
                  QLatin1String(item.expected))
            << item.was << " -> " << item.now;
}

TEST(Differences, LeaveEventNodesOutAndTheMirrorAlone)
{
    Node was = nodeFromJson(R"({"build": null, "a": 1})");
    was.child(u"build")->setEvent(true);
    Node now = nodeFromJson(R"({"build": true, "a": 2})");
    now.child(u"build")->setEvent(true);
    EXPECT_EQ(differenceText(was, now), QStringLiteral("a=2"));
    host::mirrorTree(was, now);
    EXPECT_EQ(was, nodeFromJson(R"({"build": null, "a": 2})"));
}

TEST(PathWrite, MakesWhatIsMissingAndLeavesNoGaps)
{
    const struct
    {
        const char *path;
        const char *expected; ///< empty: refused
    } cases[] = {
        {"a", R"({"a":7,"l":[1,{"x":2}],"n":null})"},
        {"l.#0", R"({"a":1,"l":[7,{"x":2}],"n":null})"},
        {"l.#1.y", R"({"a":1,"l":[1,{"x":2,"y":7}],"n":null})"},
        {"l.#2", R"({"a":1,"l":[1,{"x":2},7],"n":null})"},
        {"l.#2.#0.b", R"({"a":1,"l":[1,{"x":2},[{"b":7}]],"n":null})"},
        {"n.x.y", R"({"a":1,"l":[1,{"x":2}],"n":{"x":{"y":7}}})"},
        {"n.#0", R"({"a":1,"l":[1,{"x":2}],"n":[7]})"},
        {"l", R"({"a":1,"l":7,"n":null})"},
        {"l.#3", ""},
        {"l.#99999999999", ""},
        {"l.#", ""},
        {"a.b", ""},
        {"n..x", ""},
        {"", ""},
    };
    for (const auto &item : cases) {
        Node tree = nodeFromJson(R"({"a": 1, "l": [1, {"x": 2}], "n": null})");
        const Node before = tree;
        Node payload;
        payload.setInt(7);
        const bool done = host::applyWrite(tree, QString::fromLatin1(item.path), payload);
        EXPECT_EQ(done, *item.expected != '\0') << item.path;
        EXPECT_EQ(compact(tree), *item.expected ? QString::fromLatin1(item.expected) : compact(before))
            << item.path;
    }
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

TEST(Mirror, KeepsWhatHasACounterpart)
{
    ModuleObject top;
    top.copyFrom(
        nodeFromJson(R"({"list": [{"name": "a", "v": 1}, {"name": "b", "v": 2}, {"name": "c", "v": 3}],
                                  "map": {"x": 1, "y": 2, "z": 3}, "pose": [1.0, 2.0, 3.0], "end": 0})"));
    const QPointer<ModuleObject> list = top.c("list");
    const QPointer<ModuleObject> first = list->c(0);
    const QPointer<ModuleObject> firstName = first->c("name");
    const QPointer<ModuleObject> last = list->c(2);
    const QPointer<ModuleObject> z = top.r("map.z");
    const QPointer<ModuleObject> y = top.r("map.y");
    const QPointer<ModuleObject> element = top.r("pose.#1"); // unpacks the list
    host::mirrorTree(top.node(), nodeFromJson(R"({"list": [{"name": "n", "v": 1}, {"name": "b", "v": 2.0}],
            "map": {"z": 30, "x": 1}, "pose": [1.0, 2.5, 3.0], "end": 0})"));
    ASSERT_TRUE(list && first && firstName && z && element);
    EXPECT_EQ(firstName->getString(), QStringLiteral("n"));
    EXPECT_EQ(z->getInt(), 30);
    EXPECT_EQ(z.data(), top.r("map.z"));
    EXPECT_EQ(element->getDouble(), 2.5);
    EXPECT_TRUE(last.isNull());
    EXPECT_TRUE(y.isNull());
}

TEST(Mirror, NeverRemovesTheKeysOfThePattern)
{
    const Node pattern = nodeFromJson(R"({"build": null, "task": {"_list": [], "default": {}}})");
    Node target = nodeFromJson(R"({"build": null, "task": {"_list": [1], "default": {"a": 1}}, "other": 1})");
    host::mirrorTree(target, nodeFromJson(R"({"task": {"_list": []}})"), &pattern);
    EXPECT_EQ(target, nodeFromJson(R"({"task": {"_list": [], "default": {"a": 1}}, "build": null})"));
    host::mirrorTree(target, nodeFromJson(R"({"task": 5})"), &pattern);
    EXPECT_TRUE(target.has(u"task._list"));
}

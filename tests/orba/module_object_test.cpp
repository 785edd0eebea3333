#include "orba/module_object.h"
#include "orba/notice.h"
#include "orba/tree_registry.h"

#include "support/test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

using orba::ModuleObject;
using orba::Node;

namespace {

std::unique_ptr<ModuleObject> treeOf(const char *json)
{
    auto tree = std::make_unique<ModuleObject>(QStringLiteral("tree"));
    tree->copyFrom(nodeFromJson(json));
    return tree;
}

TEST(ModuleObject, OneHandlePerNodeAndNeverNull)
{
    const auto tree = treeOf(R"({"a":{"b":1},"list":[1,2]})");
    EXPECT_EQ(tree->c("a")->c("b"), tree->r("a.b"));
    EXPECT_EQ(tree->r("a.b")->p(), tree->c("a"));
    EXPECT_EQ(tree->r("a.b")->p(1), tree.get());
    EXPECT_EQ(tree->c("list")->cmobjCount(), 2);
    for (ModuleObject *missing : {tree->c("x"), tree->r("a.b.c"), tree->cmobj(9), tree->p(), tree->c("a.b")})
        EXPECT_EQ(missing, emptyMobj());
}

TEST(ModuleObject, EmptyNodeIgnoresWrites)
{
    ModuleObject *empty = emptyMobj();
    EXPECT_FALSE(empty->set(nullptr, "", 1));
    EXPECT_EQ(empty->add(QStringLiteral("x")), empty);
    EXPECT_EQ(empty->ensure("x.y"), empty);
    empty->remove();
    empty->copyFrom(nodeFromJson("{\"a\":1}"));
    EXPECT_EQ(empty->cmobjCount(), 0);
    EXPECT_TRUE(empty->isNull());
    EXPECT_EQ(empty->getInt(7), 7);
}

TEST(ModuleObject, ReadingAndWritingByPathMakesNoHandle)
{
    const auto tree = treeOf(R"({"a":{"trans":[0.5,1.5]}})");
    EXPECT_EQ(tree->getDouble("a.trans.#1"), 1.5);
    EXPECT_TRUE(tree->set(nullptr, "a.trans.#1", 2.5));
    EXPECT_EQ(tree->node().find(u"a")->handle(), nullptr);
    EXPECT_TRUE(tree->node().find(u"a.trans")->isPacked());
}

TEST(ModuleObject, SetTellsOnceAndOnlyOfChanges)
{
    const auto tree = treeOf(R"({"v":1})");
    QSignalSpy spy(tree->c("v"), &ModuleObject::changed);
    QObject sender;
    EXPECT_TRUE(tree->set(&sender, "v", 1));
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(tree->set(&sender, "v", 1.0)); // another kind is a change
    EXPECT_TRUE(tree->set(&sender, "v", 2, false));
    EXPECT_TRUE(tree->set(&sender, "v", 3));
    EXPECT_FALSE(tree->set(&sender, "w", 3));
    ASSERT_EQ(spy.count(), 2);
    EXPECT_EQ(spy[1][0].toInt(), 3);
    EXPECT_EQ(spy[1][1].toInt(), 2);
    EXPECT_EQ(spy[1][2].value<QObject *>(), &sender);
}

TEST(ModuleObject, EventNodesTellEverySet)
{
    const auto tree = treeOf(R"({"current":""})");
    tree->node().find(u"current")->setEvent(true);
    QSignalSpy spy(tree->c("current"), &ModuleObject::changed);
    tree->set(nullptr, "current", QStringLiteral("same"));
    tree->c("current")->trigger();
    EXPECT_EQ(spy.count(), 2);
}

TEST(ModuleObject, HandlesEndWithTheirNodes)
{
    const auto tree = treeOf(R"({"a":{"b":{"c":1}},"d":2})");
    QSignalSpy gone(tree->r("a.b.c"), &QObject::destroyed);
    QSignalSpy structure(tree.get(), &ModuleObject::structureChanged);
    tree->c("a")->remove();
    EXPECT_EQ(gone.count(), 1);
    EXPECT_EQ(structure.count(), 1);
    EXPECT_TRUE(tree->c("a")->isEmptyMobj());
}

TEST(ModuleObject, ListenerMayRemoveTheNodeThatNotifies)
{
    const auto tree = treeOf(R"({"a":{"b":1}})");
    ModuleObject *b = tree->r("a.b");
    QStringList order;
    QObject::connect(b, &ModuleObject::changed, tree.get(), [&] {
        tree->c("a")->remove();
        EXPECT_TRUE(tree->r("a.b")->isEmptyMobj()); // gone for every path at once
        order << QStringLiteral("first");
    });
    QObject::connect(b, &ModuleObject::changed, tree.get(), [&] { order << b->getString(); });
    QObject::connect(b, &QObject::destroyed, tree.get(), [&] { order << QStringLiteral("destroyed"); });
    tree->set(nullptr, "a.b", 5);
    EXPECT_EQ(order.join(' '), QStringLiteral("first 5 destroyed"));
}

TEST(ModuleObject, NoticeTellsWhatARuleRewrote)
{
    const auto tree = treeOf(R"({"heights":{"a":1.0,"b":2.0},"list":[{"x":1},{"x":2}]})");
    QSignalSpy a(tree->r("heights.a"), &ModuleObject::changed);
    QSignalSpy b(tree->r("heights.b"), &ModuleObject::changed);
    QSignalSpy list(tree->c("list"), &ModuleObject::structureChanged);
    QSignalSpy doomed(tree->c("list")->cmobj(0), &QObject::destroyed);
    {
        const orba::NoticeOfChanges notice(tree->node());
        tree->node().set(u"heights.a", 7.0);
        tree->node().find(u"list")->removeAt(0);
        EXPECT_EQ(a.count(), 0);
    }
    ASSERT_EQ(a.count(), 1);
    EXPECT_EQ(a[0][1].toDouble(), 1.0);
    EXPECT_EQ(b.count(), 0);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(doomed.count(), 1);
}

TEST(GlobalLookup, FindsModulesByFullAndShortName)
{
    auto &registry = orba::TreeRegistry::instance();
    registry.addModule(QStringLiteral("probe_station"))->ensure(u"a.b")->setInt(4);
    EXPECT_EQ(m("probe_station"), m("probe"));
    EXPECT_EQ(m("probe.a.b")->getInt(), 4);
    EXPECT_EQ(m("pro.a.b"), emptyMobj());
    EXPECT_EQ(m("probe_station.a.x"), emptyMobj());
    registry.removeModule(QStringLiteral("probe_station"));
    EXPECT_EQ(m("probe"), emptyMobj());
}

TEST(GlobalLookup, HookRunsOnceUntilFlagsAreCleared)
{
    auto &registry = orba::TreeRegistry::instance();
    orba::Node *tree = registry.addModule(QStringLiteral("hooked_module"));
    tree->ensure(u"v")->setInt(0);
    int calls = 0;
    registry.setChangeHook([&calls] { ++calls; });
    registry.root().clearChanged();
    tree->set(u"v", QVariant(1));
    tree->set(u"v", QVariant(2));
    EXPECT_EQ(calls, 1);
    registry.root().clearChanged();
    tree->add(orba::Name(u"w"));
    EXPECT_EQ(calls, 2);
    registry.setChangeHook(nullptr);
    registry.removeModule(QStringLiteral("hooked_module"));
}

} // namespace

#include "formats/random_tree.h"
#include "formats/store_fixture.h"
#include "support/test_support.h"

#include "orba/tree_registry.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <cmath>
#include <functional>

using orba::Name;
using orba::Node;

namespace {

class StoreTest : public StoreFixture
{
};

TEST_F(StoreTest, AnyTreeSurvives)
{
    ASSERT_TRUE(start());
    for (unsigned seed = 0; seed < 80; ++seed) {
        Node *parent = tree().find(seed % 2 == 0 ? u"stacks" : u"projects");
        parent->add(seed % 3 == 0 ? Name() : Name(u"a"))->assign(RandomTree(seed).make());
        tree().add(Name(u"key"))->assign(RandomTree(seed + 1000).make());
    }
    addStack(3);
    const QString trans = QStringLiteral("#%1.points.put.#0.#0.put_p.trans").arg(stacks()->size() - 1);
    const Node before = tree();
    restart();
    EXPECT_TRUE(tree() == before);
    EXPECT_TRUE(stacks()->find(trans)->isPackedDoubles());
    EXPECT_EQ(problems() + bindError_, QString());
    EXPECT_EQ(savedRows(), 0);
}

TEST_F(StoreTest, OnlyWhatChangedIsWritten)
{
    ASSERT_TRUE(start());
    for (int i = 0; i < 10; ++i)
        addStack(i);
    EXPECT_GT(savedRows(), 10);
    EXPECT_EQ(savedRows(), 0);
    stacks()->at(4)->find(u"points.put.#0.#0.put_p.trans")->setNumber(1, 5.5);
    EXPECT_EQ(savedRows(), 1);
    stacks()->at(4)->find(u"height")->setInt(99);
    stacks()->at(4)->find(u"height")->setInt(4);
    EXPECT_EQ(savedRows(), 0) << "a change that was taken back";
    stacks()->at(1)->find(u"height")->setInt(70);
    tree().find(u"default.height")->setInt(70);
    addStack(10);
    EXPECT_EQ(savedRows(), 3);
    stacks()->removeAt(9);
    EXPECT_EQ(savedRows(), 2) << "the row of the last moves up";
    EXPECT_EQ(stacks()->find(u"#4.points.put.#0.#0.put_p.trans.#1")->toDouble(), 5.5); // an unpacked list
    EXPECT_EQ(savedRows(), 0);
    const Node before = tree();
    restart();
    EXPECT_TRUE(tree() == before);
}

/// A node may get the address of one that was removed since the last save.
TEST_F(StoreTest, NewNodesAreNotMistakenForRemovedOnes)
{
    ASSERT_TRUE(start());
    for (int round = 0; round < 8; ++round) {
        while (stacks()->size() > 0)
            stacks()->removeAt(0);
        for (int i = 0; i < 4; ++i)
            stacks()->add(); // null, and never written
        store_->save();
        for (int i = 0; i < 3; ++i)
            stacks()->removeAt(0);
        for (int i = 0; i < 3; ++i)
            addStack(round * 10 + i);
        store_->save();
        Node copy = *stacks();
        copy.at(0)->reset(Node::Kind::Map);
        stacks()->assign(copy); // new nodes, none of them touched afterwards
        store_->save();
    }
    const Node before = tree();
    restart();
    EXPECT_TRUE(tree() == before);
}

TEST_F(StoreTest, AKeyMayChangeItsKind)
{
    ASSERT_TRUE(start());
    const double numbers[] = {1, 2, 3};
    addStack(1);
    const std::function<void()> changes[] = {
        [this] { tree().find(u"projects")->assign(*stacks()); },
        [this] { tree().find(u"projects")->reset(Node::Kind::Null); },
        [&] { tree().find(u"projects")->setDoubles(numbers, 3); },
        [this] { tree().find(u"projects")->at(1); }, // unpacked
        [this] { tree().find(u"projects")->add()->setString(QStringLiteral("a")); },
        [this] { tree().find(u"projects")->reset(Node::Kind::Map); },
        [&] { tree().find(u"projects")->setDoubles(numbers, 0); },
    };
    for (const auto &change : changes) {
        change();
        store_->save();
        Node before = tree();
        if (before.find(u"projects")->isNull())
            before.find(u"projects")->reset(Node::Kind::Map); // the template has a map there
        restart();
        EXPECT_TRUE(tree() == before);
    }
}

TEST_F(StoreTest, IsSavedSoonAfterAChange)
{
    ASSERT_TRUE(start());
    QSignalSpy saved(store_.get(), &host::Store::saved);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 1; }));
    addStack(1);
    stacks()->at(0)->find(u"height")->setInt(5);
    EXPECT_EQ(saved.count(), 1);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 2; }));
    stacks()->at(0)->find(u"height")->setInt(6);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 3; }));
    EXPECT_EQ(saved.last().first().toInt(), 1);
}

TEST_F(StoreTest, WhatCannotBeStoredKeepsItsOldRowAndHindersNobody)
{
    ASSERT_TRUE(start());
    addStack(0);
    addStack(1);
    store_->save();
    stacks()->find(u"#0.height")->setDouble(NAN);
    stacks()->find(u"#1.height")->setInt(77);
    QString why;
    EXPECT_FALSE(store_->save(&why));
    EXPECT_TRUE(why.contains(QStringLiteral("stacks.#0")) && why.contains(QStringLiteral("finite"))) << why;
    restart();
    EXPECT_EQ(stacks()->find(u"#0.height")->toInt(), 0);
    EXPECT_EQ(stacks()->find(u"#1.height")->toInt(), 77);
}

TEST_F(StoreTest, ModulesAreKeptApartAndOutliveTheirAbsence)
{
    ASSERT_TRUE(start());
    addStack(1);
    const QString name = QStringLiteral("other_module");
    host::bindTree(name, templateFile(), true);
    auto &registry = orba::TreeRegistry::instance();
    registry.module(name)->find(u"default.height")->setInt(5);
    const Node other = *registry.module(name);
    store_->save();
    registry.removeModule(name);
    addStack(2);
    restart(); // without the other module
    addStack(3);
    restart();
    EXPECT_EQ(stacks()->size(), 3);
    host::bindTree(name, templateFile(), true);
    EXPECT_EQ(*registry.module(name), other);
    registry.removeModule(name); // and bound again while the store is open
    host::bindTree(name, templateFile(), true);
    EXPECT_EQ(*registry.module(name), other);
    EXPECT_EQ(savedRows(), 0);
    registry.module(name)->find(u"default.height")->setInt(6);
    host::bindTree(name, templateFile(), true); // while its tree is there
    EXPECT_EQ(registry.module(name)->getInt(u"default.height"), 6);
    stop();
    registry.removeModule(name);
}

// ---------------------------------------------------------------- templates

struct Merge
{
    const char *name;
    const char *first;    ///< the template that is stored
    const char *second;   ///< the template of the next version
    const char *expected; ///< without "version"
};

const Merge kMerges[] = {
    {"event", "{\"trigger\": {\"gone\": null, \"kept\": 1}}", "{\"trigger\": {\"refresh\": null}}",
     "{\"trigger\": {\"refresh\": null, \"kept\": 1}}"},
    {"kind", "{\"a\": \"x\"}", "{\"a\": 2.5}", "{\"a\": \"x\"}"},
    {"newKeys", "{\"b\": 1}", "{\"a\": 0, \"b\": 2, \"c\": 3}", "{\"a\": 0, \"b\": 1, \"c\": 3}"},
    {"order", "{\"a\": 1, \"b\": 2, \"c\": 3}", "{\"c\": 0, \"a\": 0, \"b\": 0}",
     "{\"c\": 3, \"a\": 1, \"b\": 2}"},
    {"goneKey", "{\"x\": 1, \"a\": 2}", "{\"a\": 0, \"b\": 0}", "{\"a\": 2, \"b\": 0, \"x\": 1}"},
    {"deep", "{\"a\": {\"p\": {\"q\": 1}}}", "{\"a\": {\"p\": {\"n\": 7, \"q\": 0}, \"o\": 8}}",
     "{\"a\": {\"p\": {\"n\": 7, \"q\": 1}, \"o\": 8}}"},
    {"emptiedList", "{\"a\": []}", "{\"a\": [3, 4, 5]}", "{\"a\": []}"},
    {"filledNull", "{\"a\": {\"p\": 1}}", "{\"a\": null}", "{\"a\": {\"p\": 1}}"},
    {"nullBecomesMap", "{\"a\": null}", "{\"a\": {\"p\": 1}}", "{\"a\": {\"p\": 1}}"},
    {"equalKeys", "{\"a\": 1, \"a\": 2}", "{\"a\": 0, \"a\": 0, \"a\": 9}", "{\"a\": 1, \"a\": 2, \"a\": 9}"},
    {"valueGivesWay", "{\"a\": 5}", "{\"a\": {\"p\": 1}}", "{\"a\": {\"p\": 1}}"},
};

TEST_F(StoreTest, StoredValuesWinAndNewKeysOfATemplateAreGained)
{
    for (const Merge &merge : kMerges) {
        SCOPED_TRACE(merge.name);
        stop();
        QDir(data()).removeRecursively();
        writeTemplate(merge.first);
        ASSERT_TRUE(start());
        writeTemplate(merge.second);
        restart();
        EXPECT_EQ(!bindError_.isEmpty(), QLatin1String(merge.name) == QLatin1String("valueGivesWay"))
            << bindError_;
        Node expected = nodeFromJson(merge.expected);
        expected.ensureChild(Name(u"version"));
        Node actual = tree();
        const int version = actual.indexOf(actual.child(u"version"));
        actual.move(version, actual.size() - 1); // its place among keys that came and went is of no meaning
        EXPECT_EQ(actual, expected);
        restart();
        EXPECT_EQ(savedRows(), 0);
    }
}

TEST_F(StoreTest, WithoutATemplateStoredValuesStay)
{
    ASSERT_TRUE(start());
    addStack(3);
    tree().find(u"trigger")->clear(); // events are the template's
    const Node before = tree();
    const struct
    {
        const char *json;
        const char *what;
    } kCases[] = {{"{\"stacks\": [", ":1:13:"}, {"[1, 2]", "no map"}, {"", "empty"}};
    for (const auto &broken : kCases) {
        writeTemplate(broken.json);
        restart();
        EXPECT_TRUE(tree() == before);
        EXPECT_TRUE(bindError_.contains(QLatin1String(broken.what))) << bindError_;
        EXPECT_TRUE(bindError_.contains(templateFile())) << bindError_;
    }
    ASSERT_TRUE(QFile::remove(templateFile()));
    restart();
    EXPECT_TRUE(bindError_.contains(QStringLiteral("does not exist"))) << bindError_;
    EXPECT_TRUE(tree() == before);
}

} // namespace

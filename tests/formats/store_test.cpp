#include "formats/random_tree.h"
#include "formats/store_fixture.h"
#include "support/test_support.h"

#include <cmath>

using orba::Name;
using orba::Node;

namespace {

using StoreTest = StoreFixture;

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
    stacks()->at(1)->find(u"height")->setInt(70);
    tree().find(u"default.height")->setInt(70);
    addStack(10);
    EXPECT_EQ(savedRows(), 3);
    stacks()->removeAt(9);
    EXPECT_EQ(savedRows(), 2) << "the row of the last moves up";
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

TEST_F(StoreTest, IsSavedSoonAfterAChange)
{
    ASSERT_TRUE(start());
    QSignalSpy saved(store_.get(), &host::Store::saved);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 1; }));
    addStack(1);
    EXPECT_EQ(saved.count(), 1);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 2; }));
    stacks()->at(0)->find(u"height")->setInt(6);
    ASSERT_TRUE(waitUntil([&] { return saved.count() == 3; }));
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
    {"goneKey", "{\"x\": 1, \"a\": 2}", "{\"a\": 0, \"b\": 0}", "{\"a\": 2, \"b\": 0, \"x\": 1}"},
    {"deep", "{\"a\": {\"p\": {\"q\": 1}}}", "{\"a\": {\"p\": {\"n\": 7, \"q\": 0}, \"o\": 8}}",
     "{\"a\": {\"p\": {\"n\": 7, \"q\": 1}, \"o\": 8}}"},
    {"emptiedList", "{\"a\": []}", "{\"a\": [3, 4, 5]}", "{\"a\": []}"},
    {"filledNull", "{\"a\": {\"p\": 1}}", "{\"a\": null}", "{\"a\": {\"p\": 1}}"},
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
    } kCases[] = {{"{\"stacks\": [", ":1:13:"}, {"[1, 2]", " holds no map"}};
    for (const auto &broken : kCases) {
        writeTemplate(broken.json);
        restart();
        EXPECT_TRUE(tree() == before);
        EXPECT_TRUE(bindError_.contains(templateFile() + QLatin1String(broken.what))) << bindError_;
    }
}

} // namespace

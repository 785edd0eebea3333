#include "stack/recipe_exchange.h"

#include "formats/random_tree.h"
#include "orba/module_manager.h"
#include "stack/exchange_fixture.h"
#include "stack/recipe_import.h"
#include "support/recipe_tree.h"

#include <QSignalSpy>

namespace {

using orba::ModuleObject;
using orba::Name;
using orba::Node;
using palx::ImportStep;
using palx::RecipeClash;

const char *arrivalText(ImportStep::Arrival arrival)
{
    static const char *const kTexts[] = {"unticked", "new", "renamed", "replacing", "skipped", "overtaken"};
    return kTexts[arrival];
}

/// "arrival name replaced sameAs place" of every row
QStringList stepTexts(const std::vector<ImportStep> &steps)
{
    QStringList texts;
    for (const ImportStep &step : steps)
        texts.append(QStringLiteral("%1 '%2' %3 %4 %5")
                         .arg(QLatin1String(arrivalText(step.arrival)), step.name)
                         .arg(step.replaced)
                         .arg(step.sameAs)
                         .arg(step.place));
    return texts;
}

Node named(const QStringList &names)
{
    Node list;
    list.reset(Node::Kind::List);
    for (const QString &name : names)
        list.add()->ensure(u"name")->setString(name);
    return list;
}

std::vector<bool> all(const Node &list)
{
    return std::vector<bool>(palx::recipeIndexes(list).size(), true);
}

QStringList namesOf(const Node &list)
{
    QStringList names;
    for (int i = 0; i < list.size(); ++i)
        names.append(list.at(i)->getString(u"name"));
    return names;
}

} // namespace

TEST(NextRecipeName, CountsTheNumberAtTheEnd)
{
    const struct
    {
        const char *name;
        const char *next;
    } cases[] = {
        {"Box", "Box1"},     {"Box9", "Box10"}, {"Box007", "Box8"},
        {"", "1"},           {"-9", "-10"},     {"Box18446744073709551615", "Box18446744073709551616"},
        {"Ящик٣", "Ящик٣1"}, // digits of other scripts are letters here
    };
    for (const auto &each : cases)
        EXPECT_EQ(palx::nextRecipeName(QString::fromUtf8(each.name)), QString::fromUtf8(each.next));
}

TEST(ImportPlan, SaysWhatBecomesOfEveryRecipe)
{
    const QStringList present{"A", "Box", "Box1", "B"};
    const struct
    {
        QStringList file;
        RecipeClash onClash;
        QStringList steps;
    } cases[] = {
        {{"C", "A"}, RecipeClash::Rename, {"new 'C' -1 -1 4", "renamed 'A1' -1 -1 5"}},
        {{"Box", "Box"}, RecipeClash::Rename, {"renamed 'Box2' -1 -1 4", "renamed 'Box3' -1 -1 5"}},
        {{"C", "C", "C1"},
         RecipeClash::Rename,
         {"new 'C' -1 -1 4", "renamed 'C1' -1 0 5", "renamed 'C2' -1 1 6"}},
        {{"C", "A", "C"},
         RecipeClash::Discard,
         {"new 'C' -1 -1 4", "skipped '' -1 -1 -1", "skipped '' -1 0 -1"}},
        {{"C", "A"}, RecipeClash::Replace, {"new 'C' -1 -1 3", "replacing 'A' 0 -1 4"}},
        {{"A", "A", "B"},
         RecipeClash::Replace,
         {"overtaken '' -1 1 -1", "replacing 'A' 0 -1 2", "replacing 'B' 3 -1 3"}},
        {{"a", " A"}, RecipeClash::Replace, {"new 'a' -1 -1 4", "new ' A' -1 -1 5"}},
        {{"", " "}, RecipeClash::Discard, {"new '' -1 -1 4", "new ' ' -1 -1 5"}},
        {{"", ""}, RecipeClash::Rename, {"new '' -1 -1 4", "renamed '1' -1 0 5"}},
    };
    for (const auto &each : cases) {
        const Node file = named(each.file);
        EXPECT_EQ(stepTexts(palx::planImport(named(present), file, all(file), each.onClash)), each.steps)
            << each.file.join(QLatin1Char(','));
    }
}

TEST(ImportPlan, UntickedRowsTakeNoPartAndTheTemplateIsNoRow)
{
    Node list = named({"A"});
    list.insert(0, Name(u"default"))->ensure(u"name")->setString("T");
    Node file = named({"A", "T", "A"});
    file.insert(1, Name(u"default"))->ensure(u"name")->setString("A");
    EXPECT_EQ(stepTexts(palx::planImport(list, file, {false, true, true}, RecipeClash::Replace)),
              (QStringList{"unticked '' -1 -1 -1", "new 'T' -1 -1 0", "replacing 'A' 1 -1 1"}));
}

TEST(ImportPlan, OfEqualNamesInTheListTheFirstGoes)
{
    const Node list = named({"A", "B", "A"});
    const Node file = named({"A", "A", "A"});
    EXPECT_EQ(stepTexts(palx::planImport(list, file, all(file), RecipeClash::Replace)),
              (QStringList{"overtaken '' -1 2 -1", "replacing 'A' 2 -1 1", "replacing 'A' 0 -1 2"}));
}

// ---------------------------------------------------------------- merging

TEST_F(RecipeExchangeTest, TheListIsAnnouncedOnceAndTheOldRecipeGoesLast)
{
    fill({"A", "B"});
    QStringList seen;
    QObject context;
    QObject::connect(list()->cmobj(0), &QObject::destroyed, &context,
                     [&] { seen = namesOf(list()->node()); });
    QSignalSpy structure(list(), &ModuleObject::structureChanged);
    Node file = named({"A", "C", "B"});
    file.at(0)->ensure(u"desc")->setString("from the file");
    ASSERT_TRUE(palx::importRecipes(list(), file, {true, true, false}, RecipeClash::Replace, progress));
    EXPECT_EQ(seen, (QStringList{"B", "A", "C"})); // the new one stood already
    EXPECT_EQ(structure.count(), 1);
    EXPECT_EQ(list()->getString("#1.desc"), "from the file");
    EXPECT_EQ(file.size(), 3); // is copied
}

TEST_F(RecipeExchangeTest, CancellingChangesNothing)
{
    fill({"A", "B"});
    const Node before = list()->node();
    QSignalSpy structure(list(), &ModuleObject::structureChanged);
    const Node file = named({"A", "C", "D"});
    for (int step = 1; step <= 3; ++step) {
        ScriptedProgress cancelled(step);
        EXPECT_FALSE(palx::importRecipes(list(), file, all(file), RecipeClash::Replace, cancelled));
        EXPECT_EQ(list()->node(), before);
    }
    EXPECT_EQ(structure.count(), 0);
    EXPECT_EQ(palx::LastImport::of(list()), nullptr);
    EXPECT_FALSE(palx::importRecipes(emptyMobj(), file, all(file), RecipeClash::Replace, progress));
}

TEST_F(RecipeExchangeTest, TakingBackPutsEverythingWhereItWas)
{
    fill({"A", "B", "C", "D"});
    const Node before = list()->node();
    const Node file = named({"D", "E", "B", "B", "A"});
    for (RecipeClash onClash : {RecipeClash::Rename, RecipeClash::Replace, RecipeClash::Discard}) {
        ASSERT_TRUE(palx::importRecipes(list(), file, all(file), onClash, progress));
        EXPECT_NE(list()->node(), before);
        QSignalSpy structure(list(), &ModuleObject::structureChanged);
        palx::LastImport::of(list())->takeBack();
        EXPECT_EQ(list()->node(), before);
        EXPECT_EQ(structure.count(), 1);
        EXPECT_EQ(palx::LastImport::of(list()), nullptr);
    }
}

TEST_F(RecipeExchangeTest, TakingBackLeavesWhatTheOperatorMadeMeanwhile)
{
    fill({"A", "B"});
    const Node file = named({"A", "C", "D"});
    ASSERT_TRUE(palx::importRecipes(list(), file, all(file), RecipeClash::Replace, progress)); // B A C D
    list()->cmobj(2)->remove();                                  // the operator deletes C
    list()->cmobj(1)->set(nullptr, "name", "E");                 // names the new A
    list()->addUnnamed()->ensure("name")->set(nullptr, "", "A"); // and makes one of his own
    palx::LastImport *import = palx::LastImport::of(list());
    EXPECT_EQ(import->addedCount(), 2);
    EXPECT_EQ(import->removedCount(), 1);
    import->takeBack();
    EXPECT_EQ(namesOf(list()->node()), (QStringList{"A1", "B", "A"}));
}

// ---------------------------------------------------------------- files

TEST_F(RecipeExchangeTest, OlderFilesGetTheSevenSubtreesAndNothingElse)
{
    Node &prototype = *plugin->node().child(u"default");
    prototype.set(u"wobj_margin.left", 12.5);
    Node file = named({"Old", "New"});
    file.at(1)->assign(prototype);
    file.at(1)->ensure(u"name")->setString("New");
    write(file);
    const palx::ExchangeFile read = palx::readExchangeFile(path(), prototype, progress);
    ASSERT_EQ(read.error, QString());
    EXPECT_EQ(read.added, (std::vector<QStringList>{{"get", "bollard", "pallet_position", "use_global_tool",
                                                     "use_global_wobj", "automatic_stacker", "wobj_margin"},
                                                    {}}));
    EXPECT_EQ(read.content.getDouble(u"#0.wobj_margin.left"), 12.5);
    EXPECT_FALSE(read.content.at(0)->child(u"product_cfg"));
    EXPECT_EQ(read.content.at(0)->size(), 8);
}

TEST_F(RecipeExchangeTest, WhatCannotBeReadLeavesNothingToBeMerged)
{
    const QByteArray head = "<?xml version=\"1.0\"?>\n";
    const QByteArray open = "<node type=\"list\">";
    const QByteArray recipe = "<node type=\"map\"><node name=\"name\" type=\"string\">A</node>";
    const struct
    {
        const char *what;
        QByteArray text;
        const char *reason;
    } cases[] = {
        {"truncated", head + open + recipe, "end of document"},
        {"bomb",
         "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\">]>" + open + "&b;</node>",
         "document types"},
        {"nested", QByteArray("<node type=\"list\">").repeated(400000), "256 deep"},
        {"no recipe", open + "<node type=\"int\">5</node><node type=\"null\"/></node>",
         "recipe 1: recipe: is a number"},
        {"no number",
         open + recipe +
             "<node name=\"bollard\" type=\"map\"><node name=\"height\" type=\"string\">high"
             "</node></node></node></node>",
         "recipe 1 \"A\": bollard.height: is the text \"high\""},
    };
    for (const auto &each : cases) {
        writeBytes(each.text);
        const palx::ExchangeFile read =
            palx::readExchangeFile(path(), *plugin->node().child(u"default"), progress);
        EXPECT_TRUE(read.error.startsWith(path())) << each.what << read.error;
        EXPECT_TRUE(read.error.contains(QLatin1String(each.reason))) << each.what << read.error;
        EXPECT_TRUE(read.content.isNull()) << each.what;
        EXPECT_TRUE(read.added.empty()) << each.what;
    }
}

TEST_F(RecipeExchangeTest, RandomRecipesComeBackValueForValue)
{
    constexpr int kFiles = 20;
    constexpr int kRecipes = 10;
    for (unsigned seed = 0; seed < kFiles; ++seed) {
        SCOPED_TRACE(seed);
        RandomTree random(seed);
        list()->clear();
        for (int i = 0; i < kRecipes; ++i)
            addRandomRecipe(random, i);
        const Node before = list()->node();
        const Node *prototype = palx::templateStackOf(list()->node(), plugin->node());
        ASSERT_EQ(
            palx::writeExchangeFile(palx::makeTempList(before, prototype, all(before)), path(), progress)
                .error,
            QString());
        list()->clear();
        const palx::ExchangeFile read = palx::readExchangeFile(path(), *prototype, progress);
        ASSERT_EQ(read.error, QString());
        ASSERT_TRUE(
            palx::importRecipes(list(), read.content, all(read.content), RecipeClash::Discard, progress));
        ASSERT_EQ(list()->node(), before);
        for (int i = 0; i < kRecipes; ++i)
            ASSERT_EQ(list()->node().at(i)->name(), before.at(i)->name());
    }
}

TEST_F(RecipeExchangeTest, TheFileHoldsTheTemplateAndWhatIsTicked)
{
    fill({"A", "B", "C"});
    const Node tempList = palx::makeTempList(
        list()->node(), palx::templateStackOf(list()->node(), plugin->node()), {true, false, true});
    EXPECT_EQ(tempList.name(), Name(u"temp_list"));
    ASSERT_EQ(tempList.size(), 3);
    EXPECT_EQ(tempList.at(0)->name(), Name(u"default"));
    EXPECT_EQ(*tempList.at(0), *plugin->node().child(u"default"));
    EXPECT_EQ(*tempList.at(2), *list()->node().at(2));

    list()->node().insert(1, Name(u"default"))->ensure(u"of_the_list")->setBool(true);
    const Node own = palx::makeTempList(list()->node(), palx::templateStackOf(list()->node(), plugin->node()),
                                        {false, true});
    ASSERT_EQ(own.size(), 2);
    EXPECT_TRUE(own.getBool(u"default.of_the_list"));
    EXPECT_EQ(own.getString(u"#1.name"), "B");
}

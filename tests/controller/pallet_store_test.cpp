#include "controller/pallet_store.h"
#include "controller/state_keeper.h"
#include "recipes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace controller;
using orba::Node;

namespace {

QStringList namesOf(const PalletStore &store)
{
    QStringList names;
    const Node list = store.summaries();
    for (int i = 0; i < list.size(); ++i)
        names.append(list.at(i)->getString(u"name"));
    return names;
}

Node listOf(std::initializer_list<Node> recipes)
{
    Node list;
    list.reset(Node::Kind::List);
    for (const Node &recipe : recipes)
        list.add()->assign(recipe);
    return list;
}

QString setOne(PalletStore &store, Node recipe)
{
    return store.setOne(recipe);
}

QString setAll(PalletStore &store, Node list)
{
    return store.setAll(list);
}

} // namespace

TEST(PalletStore, TheChecksumTellsPointsApartAndNothingElse)
{
    const host::RecipeSummary summary = host::summaryOf(makeRecipe("A", 2, 2));
    Node other = makeRecipe("other", 2, 2);
    other.find(u"points.put")->at(0)->at(0)->find(u"put_p.rot")->at(0); // no more a block of numbers
    EXPECT_EQ(summary.checksum, host::summaryOf(other).checksum);
    other.find(u"points.put.#1.#1.exit_p.trans")->setNumber(2, 0.2500001);
    EXPECT_NE(summary.checksum, host::summaryOf(other).checksum);
    Node swapped = makeRecipe("A", 2, 2);
    swapped.find(u"points.put")->move(0, 1);
    EXPECT_NE(summary.checksum, host::summaryOf(swapped).checksum);
}

TEST(PalletStore, RefusesWhatIsNoRecipe)
{
    const auto broken = [](const char *path, const char *json) {
        Node recipe = makeRecipe("A", 2, 2);
        Node *place = recipe.find(QString::fromLatin1(path));
        place->assign(nodeFromJson(json));
        return recipe;
    };
    const struct
    {
        Node recipe;
        const char *why;
    } cases[] = {
        {nodeFromJson(R"({"desc":"x"})"), "no recipe: \"name\" is missing or no text"},
        {broken("points", "3"), "\"A\" is no recipe: \"points\" is missing"},
        {broken("points.put.#1", "5"), "\"A\" is no recipe: \"points.put.#1\" is no list of products"},
        {broken("points.put.#1.#0", "[]"),
         "\"A\" is no recipe: \"points.put.#1.#0\": this is no product with its points"},
        {broken("points.put.#0.#1.put_p.trans", R"([0,"x",0])"),
         "\"A\" is no recipe: \"points.put.#0.#1\": in \"put_p\": \"trans.#1\" is no number"},
    };
    PalletStore store;
    ASSERT_EQ(QString(), setOne(store, makeRecipe("A", 1, 1)));
    for (const auto &c : cases) {
        EXPECT_EQ(QLatin1String(c.why), setOne(store, c.recipe));
        EXPECT_EQ(QStringLiteral("entry 2: ") + QLatin1String(c.why),
                  setAll(store, listOf({makeRecipe("B", 1, 1), c.recipe})));
        EXPECT_EQ((QStringList{"A"}), namesOf(store)) << "a refusal changes nothing";
    }
    EXPECT_EQ("entry 2: \"B\" is no recipe: the name is there twice",
              setAll(store, listOf({makeRecipe("B", 1, 1), makeRecipe("B", 1, 2)})));
    EXPECT_EQ(QString(), setOne(store, broken("points.put", "null"))) << "not generated yet";
}

// ---------------------------------------------------------------- on disk

class PalletFiles : public ::testing::Test
{
protected:
    std::unique_ptr<StateKeeper> open()
    {
        QString why;
        auto state = StateFolder::open(folder.path(), &why);
        EXPECT_TRUE(state) << why;
        return std::make_unique<StateKeeper>(std::move(state));
    }
    static bool keep(StateKeeper &keeper, const PalletStore &store, QString *why)
    {
        return keeper.save({std::make_shared<Node>(nodeFromJson("{}")), nullptr, store.snapshot(), {}}, why);
    }
    void save(std::initializer_list<Node> recipes)
    {
        const auto keeper = open();
        PalletStore store(keeper->load().recipes);
        setAll(store, listOf(recipes));
        QString why;
        EXPECT_TRUE(keep(*keeper, store, &why)) << why;
    }
    QStringList namesAfterStart(QStringList *reports = nullptr)
    {
        const auto keeper = open();
        const PalletStore store(keeper->load().recipes);
        if (reports)
            *reports = keeper->reports();
        return namesOf(store);
    }
    QString file(const char *name) const { return folder.filePath(QLatin1String(name)); }
    void spoil(const char *name)
    {
        QFile damaged(file(name));
        ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
        damaged.seek(damaged.size() / 2);
        damaged.write("#");
    }

    QTemporaryDir folder;
};

TEST_F(PalletFiles, AReplacementCountsFromItsOrderOn)
{
    save({makeRecipe("A", 1, 1), makeRecipe("B", 1, 1)});
    QFile::copy(file("recipes/order.state"), file("old-order"));
    QFile::copy(file("recipes/1.state"), file("old-1"));
    QFile::copy(file("recipes/2.state"), file("old-2"));
    save({makeRecipe("X", 1, 1), makeRecipe("Y", 1, 1)});
    // The power fails before the new order is there: new files stand beside the old ones.
    QFile::remove(file("recipes/order.state"));
    QFile::rename(file("old-order"), file("recipes/order.state"));
    QFile::rename(file("old-1"), file("recipes/1.state"));
    QFile::rename(file("old-2"), file("recipes/2.state"));
    QStringList reports;
    EXPECT_EQ((QStringList{"A", "B"}), namesAfterStart(&reports));
    EXPECT_EQ(QStringList(), reports);
    EXPECT_FALSE(QFile::exists(file("recipes/3.state"))) << "the unfinished ones are gone";
}

TEST_F(PalletFiles, DamagedOnesAreSetAsideAndReported)
{
    save({makeRecipe("A", 1, 1), makeRecipe("B", 1, 1), makeRecipe("C", 1, 1)});
    QStringList reports;
    spoil("recipes/order.state");
    EXPECT_EQ((QStringList{"A", "B", "C"}), namesAfterStart(&reports)) << "only their order is lost";
    EXPECT_EQ(1, reports.size());
    spoil("recipes/2.state");
    EXPECT_EQ((QStringList{"A", "C"}), namesAfterStart(&reports));
    ASSERT_EQ(2, reports.size());
    EXPECT_TRUE(reports[0].startsWith(
        "\"recipes/2.state\" is damaged (length and checksum do not fit the content) and "
        "was set aside as \"2.state.damaged-"))
        << reports[0];
    EXPECT_EQ("\"B\" is lost", reports[1]);
    EXPECT_EQ(1, QDir(file("recipes")).entryList({"2.state.damaged-*"}).size());
}

TEST_F(PalletFiles, AFailedSaveIsReportedAndKeepsWhatWasThere)
{
    save({makeRecipe("A", 1, 1)});
    {
        const auto keeper = open();
        PalletStore store(keeper->load().recipes);
        setAll(store, listOf({makeRecipe("B", 1, 1), makeRecipe("C", 1, 1)}));
        // The next file's name is taken by a folder, so that it cannot be written, whoever runs this test.
        ASSERT_TRUE(QDir().mkpath(file("recipes/2.state/x")));
        QString why;
        EXPECT_FALSE(keep(*keeper, store, &why));
        EXPECT_TRUE(why.contains("2.state")) << why;
    }
    EXPECT_EQ((QStringList{"A"}), namesAfterStart());
}

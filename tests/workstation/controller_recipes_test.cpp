#include "workstation/controller_recipes.h"

#include "workstation/controller_sync.h"
#include "workstation/recipe_controller.h"

#include <QThreadPool>

using palx::ControllerRecipes;
using State = ControllerRecipes::State;

namespace {

class ControllerRecipesTest : public RecipeControllerTest
{
protected:
    void SetUp() override
    {
        RecipeControllerTest::SetUp();
        stack = addRecipe("A");
        addRecipe("B");
        recipes = std::make_unique<ControllerRecipes>();
    }
    void TearDown() override
    {
        recipes.reset();
        RecipeControllerTest::TearDown();
    }
    bool becomes(int differing)
    {
        return waitUntil(
            [&] { return recipes->state() == State::Known && recipes->differing() == differing; });
    }
    bool becomes(State state)
    {
        return waitUntil([&] { return recipes->state() == state; });
    }

    orba::ModuleObject *stack = nullptr;
    std::unique_ptr<ControllerRecipes> recipes;
};

} // namespace

TEST_F(ControllerRecipesTest, FollowsTheConnectionTheEditsAndWhatIsSent)
{
    EXPECT_EQ(recipes->state(), State::NoConnection);
    openLink();
    EXPECT_EQ(recipes->state(), State::Asking);
    ASSERT_TRUE(becomes(2)); // the controller has none
    palx::saveAllToRC(false);
    ASSERT_TRUE(becomes(0));

    stack->set(nullptr, "points.put.#0.#0.put_p.trans.#2", 0.5);
    palx::triggerNode()->c("refresh_data")->trigger();
    ASSERT_TRUE(becomes(1));
    palx::saveAllToRC(true); // from another thread
    QThreadPool::globalInstance()->waitForDone();
    ASSERT_TRUE(becomes(0));

    int told = 0;
    QObject::connect(recipes.get(), &ControllerRecipes::changed, recipes.get(), [&told] { ++told; });
    takeCount("pallet.get.list");
    addRecipe("C");
    for (int i = 0; i < 50; ++i)
        palx::triggerNode()->c("refresh_data")->trigger();
    ASSERT_TRUE(becomes(1));
    EXPECT_EQ(recipes->matches()[2].place, palx::RecipePlace::Missing);
    settle();
    EXPECT_EQ(told, 1) << "many edits are one comparison";
    EXPECT_EQ(takeCount("pallet.get.list"), 0);

    controller.breakWay("pulled");
    settle();
    EXPECT_EQ(recipes->state(), State::NoConnection);
    EXPECT_TRUE(recipes->matches().empty());
    stack->set(nullptr, "points.put.#0.#0.put_p.trans.#2", 0.75);
    palx::triggerNode()->c("refresh_data")->trigger();
    controller.openWay();
    settle();
    EXPECT_TRUE(becomes(2)); // what was edited meanwhile shows
}

TEST_F(ControllerRecipesTest, AControllerThatDoesNotTellIsShownAndRecordedOnce)
{
    const struct
    {
        const char *refusal, *answer, *error;
    } cases[] = {{"not now", "null", "not now"}, {"", R"({"a": 7})", "Its answer is no list of recipes."}};
    openLink();
    for (const auto &each : cases) {
        ASSERT_TRUE(becomes(2));
        takeRecords();
        refusal = QLatin1String(each.refusal);
        nonsense = nodeFromJson(each.answer);
        for (int i = 0; i < 2; ++i) {
            takeCount("pallet.get.list");
            recipes->ask();
            ASSERT_TRUE(waitUntil([&] { return takeCount("pallet.get.list") == 1; }));
            ASSERT_TRUE(becomes(State::Unknown));
        }
        EXPECT_EQ(recipes->error(), QLatin1String(each.error));
        EXPECT_TRUE(recipes->matches().empty());
        settle();
        EXPECT_EQ(
            takeRecords(),
            QStringList(QStringLiteral("warning: The controller does not tell which recipes it holds: ") +
                        QLatin1String(each.error)));
        refusal.clear();
        nonsense = orba::Node();
        recipes->ask();
    }
    EXPECT_TRUE(becomes(2));
}

TEST_F(ControllerRecipesTest, ASilentControllerIsAskedOnceAtATime)
{
    answersLists = false;
    openLink();
    int questions = 0;
    ASSERT_TRUE(waitUntil([&] { return (questions += takeCount("pallet.get.list")) == 1; }));
    recipes->ask();
    palx::saveAllToRC(false);
    answersLists = true;
    pass(1600); // too late; then it is asked again
    ASSERT_TRUE(becomes(0));
    EXPECT_EQ(takeCount("pallet.get.list"), 1);
    EXPECT_EQ(m("nexo.r.faults")->getString(), QStringLiteral("Requests without an answer: 1."));
}

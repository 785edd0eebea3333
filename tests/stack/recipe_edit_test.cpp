#include "stack/recipe_edit.h"

#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using orba::Node;

namespace {

Node stacksNamed(const QStringList &names)
{
    Node stacks;
    stacks.reset(Node::Kind::List);
    for (const QString &name : names)
        stacks.add()->ensure(u"name")->setString(name);
    return stacks;
}

/// A plugin tree with recipes of these names, each with one layer and a point.
struct Recipes
{
    explicit Recipes(const QStringList &names) : plugin(makePluginTree())
    {
        for (const QString &name : names) {
            ModuleObject *stack = addTestStack(
                plugin.get(),
                R"({"layers": [{"pattern": "A", "h_offset": 0}], "points.put": [[{"put_p": 1}]]})");
            palx::renameStack(stack, name, name + QStringLiteral(" text"));
        }
    }
    ModuleObject *stacks() const { return plugin->r("stacks"); }
    ModuleObject *stack(int i) const { return stacks()->cmobj(i); }
    std::unique_ptr<ModuleObject> plugin;
};

} // namespace

TEST(RecipeName, SaysWhyANameIsRefused)
{
    const Node stacks = stacksNamed({QStringLiteral("Box"), "a.b #1"});
    const struct
    {
        QString name;
        const char *reason; // a word of it; empty: accepted
    } cases[] = {
        {QStringLiteral("box"), ""}, // names differ in case
        {QStringLiteral("B\u00f6x \u7bb1"), ""},
        {QString(64, QLatin1Char('x')), ""},
        {QString(65, QLatin1Char('x')), "65"},
        {QStringLiteral("  \t"), "empty"},
        {QStringLiteral("Box3 "), "blank"},
        {QStringLiteral("a\nb"), "control"},
        {QStringLiteral("a.b #1"), "already"},
    };
    for (const auto &c : cases) {
        const QString reason = palx::recipeNameProblem(stacks, c.name);
        EXPECT_EQ(reason.isEmpty(), *c.reason == '\0') << c.name << reason;
        EXPECT_TRUE(reason.contains(QLatin1String(c.reason))) << c.name << reason;
    }
    EXPECT_EQ(palx::recipeNameProblem(stacks, "Box", stacks.at(0)), QString()); // its own
}

TEST(RecipeRemove, UndoBringsItBackToItsPlace)
{
    for (int place = 0; place < 3; ++place) {
        const Recipes recipes({QStringLiteral("A"), "B", "C"});
        const Node before = recipes.stacks()->node();
        const palx::RemovedStack removed = palx::removeStack(recipes.stack(place));
        EXPECT_EQ(recipes.stacks()->cmobjCount(), 2);
        palx::restoreStack(recipes.stacks(), removed);
        EXPECT_EQ(recipes.stacks()->node(), before) << place;
    }
    const Recipes recipes({QStringLiteral("A"), "B"});
    const palx::RemovedStack removed = palx::removeStack(recipes.stack(1));
    palx::copyStack(recipes.stack(0), "B"); // its own name is taken
    EXPECT_EQ(palx::restoreStack(recipes.stacks(), removed)->getString("name"), "B1");
}

TEST(RecipeKeys, OldRecipesGainWhatTheyLackAndKeepWhatTheyHave)
{
    const std::unique_ptr<ModuleObject> plugin = makePluginTree();
    Node *old = plugin->node().find(u"stacks")->add();
    *old = nodeFromJson(R"({"put": {"ready_h": 33, "left_offsets": {"enter_x": 7}},
                            "product_cfg": {"product": {"length": 321}, "pallet": null},
                            "layers": [{"pattern": "A"}, {}]})");
    ModuleObject *stack = ModuleObject::of(old);
    EXPECT_TRUE(palx::ensureRecipeKeys(stack, *plugin->node().child(u"default")));
    const struct
    {
        const char *path;
        double value;
    } expected[] = {{"put.ready_h", 33},
                    {"put.left_offsets.enter_x", 7},
                    {"put.left_offsets.exit_h", 0},
                    {"product_cfg.product.length", 321},
                    {"product_cfg.pallet.width", 800},
                    {"bollard.height", 0},
                    {"layers.#1.h_offset", 0}};
    for (const auto &e : expected) {
        EXPECT_TRUE(stack->has(e.path)) << e.path;
        EXPECT_EQ(stack->getDouble(e.path), e.value) << e.path;
    }
    EXPECT_TRUE(stack->r("put.put_p")->isNull()); // what the template leaves open stays open
    EXPECT_FALSE(palx::ensureRecipeKeys(stack, *plugin->node().child(u"default")));
}

TEST(RecipeContent, RestoringTakesEveryEditBack)
{
    const char *const edits[] = {
        R"({"product_cfg.product.direction": "Top", "use_global_tool": true, "desc": "x"})",
        R"({"layers": [{"pattern": "A", "h_offset": 0}, {"pattern": "B", "h_offset": 3}]})",
        R"({"layers": null, "get": null})",
        R"({"put.put_p": {"trans": [0.1, 0.2, 0.3], "rot": [0.0, 0.0, 0.0], "near": [], "conf": []}})",
        R"({"own_key": {"deep": [1, [2, {"x": "y"}]]}})",
    };
    for (const char *edit : edits) {
        const Recipes recipes({QStringLiteral("A")});
        ModuleObject *stack = recipes.stack(0);
        const Node whole = stack->node();
        const Node content = palx::recipeContent(whole);
        applyPaths(stack->node(), edit);
        ASSERT_NE(stack->node(), whole) << edit;
        const Node edited = stack->node();
        palx::restoreContent(stack, content);
        EXPECT_EQ(stack->node(), whole) << edit;
        palx::restoreContent(stack, palx::recipeContent(edited)); // and redo
        EXPECT_EQ(palx::recipeContent(stack->node()), palx::recipeContent(edited)) << edit;
    }
}

TEST(RecipeContent, PatternsKeepTheirOrderAndGeneratedPointsStay)
{
    const Recipes recipes({QStringLiteral("A")});
    ModuleObject *stack = recipes.stack(0);
    applyPaths(stack->node(), R"({"patterns": {"A": [], "B": [{"x": 1}], "C": []}})");
    const Node content = palx::recipeContent(stack->node());
    stack->r("patterns.A")->remove();
    stack->r("patterns")->move(1, 0);
    stack->set(nullptr, "points.put.#0.#0.put_p", 2);
    palx::restoreContent(stack, content);
    EXPECT_EQ(palx::recipeContent(stack->node()), content);
    EXPECT_EQ(stack->getInt("points.put.#0.#0.put_p"), 2);
}

#include "stack/recipe_fields.h"
#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"
#include "stack/recipe_points.h"

#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>

using orba::ModuleObject;
using orba::Node;

namespace {

/// Product 100 high, sheet 5 high, pattern "A" of two products and "B" of one.
const char *const kRecipe = R"({
    "product_cfg.product": {"length": 200, "width": 150, "height": 100, "weight": 2.5, "orient": 3, "dx": 1, "dy": 2,
                            "dz": 3, "direction": "Top"},
    "product_cfg.clapboard": {"enabled": 1, "height": 5, "weight": 0.5},
    "product_cfg.pallet": {"length": 1000, "width": 400, "height": 150, "weight": 20, "specification": 0},
    "patterns": {"A": [{"index": 1, "x": 75, "y": 100}, {"index": 2, "x": 225, "y": 100}], "B": [{"index": 1}], "C": []}
})";

struct Recipe
{
    explicit Recipe(const char *layers = "[]")
        : plugin(makePluginTree()), stack(addTestStack(plugin.get(), kRecipe))
    {
        stack->node().ensure(u"layers")->assign(nodeFromJson(layers));
    }
    std::unique_ptr<ModuleObject> plugin;
    ModuleObject *stack;
};

QStringList patternsOfLayers(const Node &stack)
{
    QStringList names;
    for (const palx::LayerFacts &layer : palx::layerFacts(stack))
        names << layer.pattern;
    return names;
}

QVector<int> numbers(const ModuleObject *stack, const char *key)
{
    QVector<int> values;
    const Node *pattern = stack->node().find(u"patterns.A");
    for (int i = 0; i < pattern->size(); ++i)
        values << int(pattern->at(i)->getInt(orba::Path(key)));
    return values;
}

} // namespace

TEST(RecipeLayers, SaysWhatIsWrongWithTheSequence)
{
    const struct
    {
        const char *layers;
        QStringList words; // one of each problem, in order
    } cases[] = {
        {R"([{"pattern": "A"}, {"pattern": "clapboard"}, {"pattern": "B"}])", {}},
        {R"([{"pattern": "A"}, {"pattern": "empty"}, {"pattern": ""}, {"pattern": "empty"}])", {}},
        {R"(null)", {QStringLiteral("no layers")}},
        {R"([{"pattern": "A"}, {"pattern": "empty"}, {"pattern": "B"}])",
         {QStringLiteral("Layer 3 lies on an empty")}},
        {R"([{"pattern": "A"}, {"pattern": "Q"}])", {QStringLiteral("Layer 2 uses the pattern \"Q\"")}},
        {R"([{"pattern": "A"}, {"pattern": ""}, {"pattern": "C"}])",
         {QStringLiteral("Layer 2 has no pattern"),
          QStringLiteral("Layer 3 uses the pattern \"C\", which holds no")}},
    };
    for (const auto &c : cases) {
        const Recipe recipe(c.layers);
        const QStringList problems = palx::layerProblems(recipe.stack->node());
        ASSERT_EQ(problems.size(), c.words.size()) << c.layers << problems.join(QLatin1Char('|'));
        for (int i = 0; i < problems.size(); ++i)
            EXPECT_TRUE(problems[i].startsWith(c.words[i]) || problems[i].contains(c.words[i]))
                << problems[i];
    }
}

TEST(RecipePatterns, SaysWhyANameIsRefused)
{
    const Recipe recipe;
    const struct
    {
        QString name;
        QString reason;
    } cases[] = {
        {QStringLiteral("a_B-9"), {}},
        {QString(32, QLatin1Char('p')), {}},
        {QString(33, QLatin1Char('p')), "Pattern name length is greater than 32!"},
        {QString(), "Name is empty!"},
        {QStringLiteral("A"), "Name is repeated!"},
        {QStringLiteral("empty"), "Name is repeated!"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::patternNameProblem(recipe.stack->node(), c.name), c.reason) << c.name;
    for (const char *name : {"a b", "x.y", "#1", "A\n", "\xc3\xa4"})
        EXPECT_NE(palx::patternNameProblem(recipe.stack->node(), QString::fromUtf8(name)), QString()) << name;
}

TEST(RecipePatterns, RenamingTakesTheLayersAlong)
{
    const Recipe recipe(R"([{"pattern": "A"}, {"pattern": "B"}, {"pattern": "A"}])");
    EXPECT_EQ(palx::patternUse(recipe.stack->node(), "A"), 2);
    EXPECT_FALSE(palx::renamePattern(recipe.stack, "A", "B"));
    EXPECT_TRUE(palx::renamePattern(recipe.stack, "A", "Z"));
    EXPECT_EQ(patternsOfLayers(recipe.stack->node()).join(QString()), "ZBZ");
    EXPECT_EQ(palx::patternNames(recipe.stack->node()).join(QString()), "ZBC");
    EXPECT_EQ(recipe.stack->r("patterns.Z")->cmobjCount(), 2);
    EXPECT_EQ(palx::proposePatternName(recipe.stack->node()), "A"); // the first free letter
}

TEST(RecipeItems, FillTheFirstRowAndThenTheNext)
{
    const Recipe recipe; // 400 wide: two products of 150 side by side
    const int third = palx::addItem(recipe.stack, "A");
    ASSERT_EQ(third, 2);
    EXPECT_EQ(*recipe.stack->node().find(u"patterns.A.#2"),
              nodeFromJson(R"({"x": 75, "y": 300, "w": 150, "h": 200, "r": 0, "index": 3, "orient": 3,
                               "direction": "Top", "dx": 1, "dy": 2, "dz": 3})"));
    palx::addItem(recipe.stack, "A");
    EXPECT_EQ(recipe.stack->getDouble("patterns.A.#3.x"), 225);
    for (int i = 0; i < palx::kMaxItems; ++i)
        EXPECT_EQ(palx::addItem(recipe.stack, "C"), i);
    EXPECT_EQ(palx::addItem(recipe.stack, "C"), -1);
}

TEST(RecipeFields, RefuseWhatIsOutOfRange)
{
    const Recipe recipe;
    const struct
    {
        const char *path;
        double value;
        bool accepted;
    } cases[] = {
        {"product_cfg.product.length", 0, false},    {"product_cfg.product.length", 1, true},
        {"product_cfg.product.length", 5001, false}, {"product_cfg.product.dx", -2000, true},
        {"wobj_margin.left", 250.5, false},          {"no.such.field", 1e9, true},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::fieldProblem(recipe.stack->node(), orba::Path(c.path), c.value).isEmpty(), c.accepted)
            << c.path << c.value;
    applyPaths(recipe.stack->node(), R"({"wobj_margin.left": 390})");
    EXPECT_TRUE(palx::marginsTooWide(recipe.stack->node()));
    EXPECT_EQ(palx::fieldProblem(recipe.stack->node(), u"wobj_margin.left", 300), QString())
        << "room comes back";
    EXPECT_NE(palx::fieldProblem(recipe.stack->node(), u"wobj_margin.right", 1), QString());
}

TEST(RecipePoints, NamesWhatGenerationWillMiss)
{
    const QByteArray point = pointJson(0.1, 0, 0);
    const auto with = [&](const char *json) { return QByteArray(json).replace('P', point); };
    const char *const shared =
        R"({"use_global_wobj": true, "get.get_p": P, "get.enter_p": P, "toolset.end": P})";
    const char *const oneSide =
        R"({"global_wobj": [{"calibration_method": 1, "left_origin_point": P}, {"calibration_method": 1}]})";
    const struct
    {
        const char *stack, *plugin;
        int missing;
    } cases[] = {
        {"{}", "{}", 6},
        {R"({"put.put_p": P, "put.enter_p": P, "get.get_p": P, "get.enter_p": P})", "{}", 2},
        {R"({"put.put_p": P, "put.enter_p": P, "get.get_p": P, "get.enter_p": P, "toolset.ref": P})", "{}",
         1},
        {R"({"put.put_p": P, "put.enter_p": P, "get.get_p": P, "get.enter_p": P, "toolset.end": P,
             "calibrate.p1": P, "calibrate.p2": P})",
         "{}", 1},
        {R"({"put.put_p": P, "put.enter_p": P, "use_global_tool": true, "use_global_wobj": true})", "{}", 3},
        {shared, R"({"global_wobj": [{"calibration_method": 1}, {"calibration_method": 1}]})", 1},
        {shared, oneSide, 0},
    };
    for (const auto &c : cases) {
        const std::unique_ptr<ModuleObject> plugin = makePluginTree();
        ModuleObject *stack = addTestStack(plugin.get(), with(c.stack).constData());
        applyPaths(plugin->node(), with(c.plugin).constData());
        const QStringList texts = palx::untaughtPoints(stack->node(), plugin->node());
        EXPECT_EQ(texts.size(), c.missing) << c.stack << texts.join(QLatin1Char('|'));
    }
}

TEST(RecipePoints, SayWhereACarriedProductIsTooLow)
{
    const char *const recipe =
        R"({"product_cfg.product.height": 200, "layers": [{"pattern": "A"}, {"pattern": "A"}],
        "patterns": {"A": [{"direction": "Top", "dx": 0, "dy": 30}, {"direction": "Middle", "dx": 9, "dy": 9}],
                     "B": [{"direction": "Top", "dx": 0, "dy": 30}, {"direction": "Top", "dx": 0, "dy": 30}],
                     "C": [{"direction": "Middle"}]}})";
    const char *const onePoint = R"({"global_wobj": [{"calibration_method": 1}, {"calibration_method": 1}]})";
    const struct
    {
        const char *stack, *plugin;
        bool isLow;
    } cases[] = {
        {R"({"put.ready_h": 199})", "{}", true},
        {R"({"put.ready_h": 200})", "{}", false},
        {R"({"layers": [{"pattern": "A"}]})", "{}", false},
        {R"({"layers": [{"pattern": "B"}, {"pattern": "A"}]})", "{}", false},
        {R"({"layers": [{"pattern": "C"}, {"pattern": "C"}]})", "{}", false},
        {R"({"patterns.B.#1.dy": 0, "layers": [{"pattern": "B"}, {"pattern": "B"}]})", "{}", true},
        {R"({"use_global_wobj": true})", onePoint, false},
        {"{}", onePoint, true},
    };
    for (const auto &c : cases) {
        const std::unique_ptr<ModuleObject> plugin = makePluginTree();
        ModuleObject *stack = addTestStack(plugin.get(), recipe);
        applyPaths(stack->node(), c.stack);
        applyPaths(plugin->node(), c.plugin);
        EXPECT_EQ(!palx::lowWaypoints(stack->node(), plugin->node()).isEmpty(), c.isLow)
            << c.stack << c.plugin;
    }
}

TEST(RecipePoints, AreTaughtWhereTheRobotStands)
{
    Node point = nodeFromJson(R"({"trans": [9.0, 9.0, 9.0], "conf": [7]})");
    EXPECT_TRUE(
        palx::teachPoint(point, nodeFromJson(R"({"moving": false, "joints": [1.0, 2.0, 3.0, 4.0, 5.0, 6.0],
        "pose": {"trans": [0.5, -0.25, 0.125], "rot": [3.0, 0.0, -1.5]}})")));
    EXPECT_EQ(point, nodeFromJson(R"({"trans": [0.5, -0.25, 0.125], "rot": [3.0, 0.0, -1.5],
        "near": [1.0, 2.0, 3.0, 4.0, 5.0, 6.0], "conf": [0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0]})"));
    const Node before = point;
    for (const char *robot : {"null", R"({"pose": null})", R"({"pose": {"trans": [1, 2, 3]}})",
                              R"({"pose": {"trans": [1, 2], "rot": [1, 2, 3]}})"}) {
        EXPECT_FALSE(palx::teachPoint(point, nodeFromJson(robot))) << robot;
        EXPECT_EQ(point, before);
    }
}

TEST(RecipeItems, MovingAndRemovingRenumbers)
{
    const Recipe recipe;
    palx::addItem(recipe.stack, "A");
    EXPECT_TRUE(palx::moveItem(recipe.stack, "A", 2, 0));
    EXPECT_EQ(numbers(recipe.stack, "index"), QVector<int>({1, 2, 3}));
    EXPECT_EQ(numbers(recipe.stack, "y"), QVector<int>({300, 100, 100}));
    EXPECT_TRUE(palx::removeItem(recipe.stack, "A", 1));
    EXPECT_EQ(numbers(recipe.stack, "index"), QVector<int>({1, 2}));
    EXPECT_EQ(numbers(recipe.stack, "x"), QVector<int>({75, 225}));
    EXPECT_FALSE(palx::removeItem(recipe.stack, "A", 2));
    EXPECT_FALSE(palx::moveItem(recipe.stack, "A", 0, 2));
}

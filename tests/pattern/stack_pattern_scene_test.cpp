#include "pattern/stackpatternscene.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using orba::ModuleObject;
using palx::LayerKind;

namespace {

std::unique_ptr<ModuleObject> stackObject()
{
    auto stack = std::make_unique<ModuleObject>(QStringLiteral("stack"));
    stack->copyFrom(planRecipe());
    return stack;
}

} // namespace

TEST(StackPatternScene, ShowsWhatTheLayerNames)
{
    StackPatternScene scene;
    scene.setStack(planRecipe());
    EXPECT_EQ(scene.layerCount(), 8);
    struct
    {
        int layer, items;
        LayerKind kind;
        const char *message;
    } const cases[] = {
        {0, 2, LayerKind::Products, ""},
        {1, 0, LayerKind::Sheet, "Separator sheet 1180 x 780 x 3 mm"},
        {2, 1, LayerKind::Products, ""},
        {3, 0, LayerKind::Empty, "Empty layer: it is left out"},
        {5, 0, LayerKind::MissingPattern, "The recipe has no pattern \"Z\""},
        {6, 0, LayerKind::Blank, "No pattern is chosen for this layer: the stack ends below it"},
        {7, 0, LayerKind::Unreached, "Not placed: the stack ends at a layer below"},
        {-1, 0, LayerKind::Blank, "There is no layer 0; the recipe has 8"},
    };
    for (const auto &one : cases) {
        scene.setLayer(one.layer);
        EXPECT_EQ(scene.shownItems().size(), one.items) << one.layer;
        EXPECT_EQ(scene.layerPlan().kind, one.kind) << one.layer;
        EXPECT_EQ(scene.message(), QString::fromUtf8(one.message)) << one.layer;
    }
}

TEST(StackPatternScene, WritesToThePatternOfItsLayer)
{
    const auto stack = stackObject();
    StackPatternScene scene;
    scene.setStack(stack.get());
    scene.setLayer(2);
    scene.addWobjItem(2, 0, QPointF(600, 150), QSize(300, 400), 90, {0, 0, 0}, QStringLiteral("middle"));
    EXPECT_EQ(stack->r("patterns.B")->cmobjCount(), 2);
    EXPECT_EQ(stack->r("patterns.A")->cmobjCount(), 2);
    EXPECT_EQ(scene.shownItems().size(), 2);

    const orba::Node before = stack->node();
    for (const int layer : {1, 3, 5, 6, 99}) { // nothing that could hold a product
        scene.setLayer(layer);
        scene.addWobjItem(1, 0, QPointF(1, 1), QSize(1, 1), 0, {}, QStringLiteral("middle"));
        EXPECT_EQ(scene.getWobjCount(), 0) << layer;
        scene.clearItems();
    }
    EXPECT_EQ(stack->node(), before);
}

TEST(StackPatternScene, FollowsTheRecipe)
{
    const auto stack = stackObject();
    StackPatternScene scene;
    scene.setStack(stack.get());
    stack->set(nullptr, "layers.#0.pattern", QStringLiteral("B"));
    EXPECT_EQ(scene.shownItems().size(), 1);
    stack->r("layers")->move(1, 0);
    EXPECT_EQ(scene.layerPlan().kind, LayerKind::Sheet);
    stack->r("layers")->clear();
    EXPECT_EQ(scene.message(), QStringLiteral("This recipe has no layers"));
    stack->copyFrom(planRecipe()); // everything is replaced at once
    EXPECT_EQ(scene.shownItems().size(), 2);
}

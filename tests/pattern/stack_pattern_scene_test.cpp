#include "pattern/stackpatternscene.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using orba::ModuleObject;

namespace {

std::unique_ptr<ModuleObject> stackObject()
{
    auto stack = std::make_unique<ModuleObject>(QStringLiteral("stack"));
    stack->copyFrom(planRecipe());
    return stack;
}

} // namespace

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

#include "pattern/patternscene.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <QSignalSpy>

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

TEST(PatternScene, AddedItemIsWrittenAndShown)
{
    const auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.B"));
    ASSERT_EQ(scene.getWobjCount(), 1);
    scene.addWobjItem(2, 3, QPointF(98, 198.5), QSize(150, 200), 90.0, {100, 50, 0},
                      QStringLiteral("TopRight"));

    EXPECT_EQ(scene.getWobjCount(), 2);
    EXPECT_EQ(*stack->node().find(u"patterns.B.#1"),
              nodeFromJson(R"({"x":98.0,"y":198.5,"w":150.0,"h":200.0,"r":90,"index":2,"orient":3,
                               "direction":"TopRight","dx":100.0,"dy":50.0,"dz":0.0})"));
    EXPECT_EQ(scene.shownItems().last().x, 98);

    scene.clearItems();
    EXPECT_EQ(scene.getWobjCount(), 0);
    EXPECT_EQ(stack->r("patterns.B")->cmobjCount(), 0);
    EXPECT_TRUE(scene.shownItems().isEmpty());
}

TEST(PatternScene, FollowsValuesItemsAndThePallet)
{
    const auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.A"));
    ASSERT_TRUE(scene.findings().overlaps.isEmpty());

    stack->set(nullptr, "patterns.A.#1.x", 440);
    EXPECT_EQ(scene.findings().overlaps.value(0).depthMm, 10);
    stack->set(nullptr, "patterns.A.#1.x", 450);
    stack->set(nullptr, "product_cfg.pallet.width", 590);
    EXPECT_EQ(scene.findings().worst.right, 10);
    stack->remove("patterns.A.#0");
    EXPECT_EQ(scene.shownItems().size(), 1);
    stack->set(nullptr, "patterns.A.#0.r", 90); // an item that was another's successor is followed, too
    EXPECT_EQ(scene.shownItems().value(0).r, 90);
    QSignalSpy shown(&scene, &PatternScene::planChanged);
    for (int i = 0; i < 100; ++i)
        stack->set(nullptr, "patterns.A.#0.x", 150 + i);
    EXPECT_TRUE(waitUntil([&] { return shown.size() > 0; }));
    EXPECT_EQ(shown.size(), 1) << "many changes make one picture";
    EXPECT_EQ(scene.shownItems().value(0).x, 249);
}

TEST(PatternScene, OutlivesThePatternAndTheRecipe)
{
    auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.A"));
    ASSERT_EQ(scene.shownItems().size(), 2);
    stack->remove("patterns.A");
    EXPECT_TRUE(scene.shownItems().isEmpty());
    EXPECT_EQ(scene.getWobjCount(), 0);
    stack.reset();
    EXPECT_EQ(scene.plan().pallet.length, 1000);
    scene.setStack(nullptr);
    scene.setPattern(orba::emptyMobj());
    EXPECT_TRUE(scene.shownItems().isEmpty());
}

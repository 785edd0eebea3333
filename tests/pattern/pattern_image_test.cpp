#include "pattern/rules/pattern_image.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using palx::PatternImage;

namespace {

/// The recipe of the plans as a tree that can be edited; its layers are A, clapboard, B, empty, A, Z, blank, A.
struct Recipe
{
    Recipe() { root.node().assign(planRecipe()); }
    QStringList patterns() const { return palx::patternNames(root.node()); }
    QString patternOf(int layer) const
    {
        return root.getString(QStringLiteral("layers.#%1.pattern").arg(layer));
    }
    ModuleObject root;
};

} // namespace

TEST(PatternImage, AMirroredCopyIsMadeOnceAndFoundAgain)
{
    Recipe recipe;
    EXPECT_EQ(palx::imageOfPattern(&recipe.root, "A", PatternImage::LeftRight), QString("A_m"));
    EXPECT_EQ(palx::imageOfPattern(&recipe.root, "A", PatternImage::LeftRight), QString("A_m"));
    EXPECT_EQ(recipe.patterns(), (QStringList{"A", "B", "A_m"}));
    // The pallet is 800 wide: the products at 150 and 450 lie at 650 and 350 then, in their order.
    EXPECT_EQ(recipe.root.getDouble("patterns.A_m.#0.x"), 650);
    EXPECT_EQ(recipe.root.getDouble("patterns.A_m.#1.x"), 350);
    EXPECT_EQ(recipe.root.getDouble("patterns.A_m.#0.y"), 200);
    EXPECT_EQ(recipe.root.getInt("patterns.A_m.#1.index"), 2);
}

TEST(PatternImage, LayersOfProductsGetTheirImages)
{
    Recipe recipe;
    EXPECT_EQ(palx::imageLayers(&recipe.root, {0, 1, 2, 3, 5, 6, 7, -1, 99}, PatternImage::HalfTurn), 3);
    const QString expected[] = {"A_m", "clapboard", "B_m", "empty", "A", "Z", "", "A_m"};
    for (int layer = 0; layer < 8; ++layer)
        EXPECT_EQ(recipe.patternOf(layer), expected[layer]) << layer;
}

TEST(PatternImage, ASeriesTakesTurnsWithTheImage)
{
    Recipe recipe;
    EXPECT_TRUE(palx::layImageSeries(&recipe.root, {{"A"}, 3, 0, 0}, PatternImage::HalfTurn));
    const QString expected[] = {"A", "A_m", "A"};
    ASSERT_EQ(recipe.root.r("layers")->cmobjCount(), 3);
    for (int layer = 0; layer < 3; ++layer)
        EXPECT_EQ(recipe.patternOf(layer), expected[layer]) << layer;
    EXPECT_FALSE(palx::layImageSeries(&recipe.root, {{"B"}, 300, 0, 0}, PatternImage::HalfTurn));
    EXPECT_EQ(recipe.patterns(), (QStringList{"A", "B", "A_m"}))
        << "a refused series leaves no pattern behind";
}

#include "pattern/recipe_picture.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

TEST(RecipePicture, AnyRecipeAndAnySizeGetAPicture)
{
    const orba::Node recipes[] = {
        nodeFromJson("null"),
        nodeFromJson("{}"),
        nodeFromJson(R"({"layers":[1,{"pattern":7}]})"),
        planRecipe(),
        oneLayerRecipe(planGrid(10, 20, 80, 60)),
        oneLayerRecipe(QVector<palx::PatternItem>(200, planItem(1, 1, 20000, 1, 33)))};
    for (const orba::Node &stack : recipes) {
        for (const QSize &size : {QSize(0, -3), QSize(1, 1), QSize(2, 300), QSize(400, 300)}) {
            const QSize bounded = size.expandedTo(QSize(1, 1));
            EXPECT_EQ(palx::recipePicture(stack, size).size(), bounded);
            EXPECT_EQ(palx::stackPicture(stack, size).size(), bounded);
            for (const int layer : {-1, 0, 1, 99})
                EXPECT_EQ(palx::planPicture(stack, layer, size).size(), bounded);
        }
    }
}

#include "pattern/recipe_picture.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace {

/// Share of the picture's pixels that are not transparent.
double inked(const QImage &image)
{
    qint64 count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0;
    }
    return double(count) / (double(image.width()) * image.height());
}

} // namespace

TEST(RecipePicture, FitsTheStackIntoThePicture)
{
    for (const QSize &size : {QSize(240, 180), QSize(96, 96), QSize(64, 200)}) {
        const QImage image = palx::recipePicture(planRecipe(), size);
        ASSERT_EQ(image.size(), size);
        EXPECT_GT(inked(image), 0.15);
        EXPECT_EQ(inked(image.copy(0, 0, size.width(), 1)), 0) << "cut off above";
        EXPECT_EQ(inked(image.copy(0, size.height() - 1, size.width(), 1)), 0) << "cut off below";
        EXPECT_EQ(inked(image.copy(0, 0, 1, size.height())), 0) << "cut off on the left";
    }
}

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
        for (const QSize &size :
             {QSize(0, -3), QSize(1, 1), QSize(2, 300), QSize(400, 300), QSize(300, 400)}) {
            const QSize bounded = size.expandedTo(QSize(1, 1));
            EXPECT_EQ(palx::recipePicture(stack, size).size(), bounded);
            EXPECT_EQ(palx::stackPicture(stack, size).size(), bounded);
            for (const int layer : {-1, 0, 1, 99})
                EXPECT_EQ(palx::planPicture(stack, layer, size).size(), bounded);
        }
    }
}

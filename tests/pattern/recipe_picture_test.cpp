#include "pattern/recipe_picture.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <QSet>

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

int colours(const QImage &image)
{
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found.insert(image.pixel(x, y));
    }
    return found.size();
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

TEST(RecipePicture, MoreLayersMakeAHigherStack)
{
    orba::Node stack = oneLayerRecipe(planGrid(4, 4, 200, 300));
    const QImage one = palx::recipePicture(stack, QSize(200, 200));
    for (int i = 0; i < 9; ++i)
        stack.find(u"layers")->add()->assign(nodeFromJson(R"({"pattern":"A","h_offset":0})"));
    const QImage ten = palx::recipePicture(stack, QSize(200, 200));
    EXPECT_NE(one, ten);
    // Ten layers of 100 mm on 1200 x 800: the picture is higher than wide and leaves its sides free.
    EXPECT_EQ(inked(ten.copy(0, 0, 10, 200)), 0);
    EXPECT_GT(inked(one.copy(0, 0, 10, 200)), 0);
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

TEST(RecipePicture, PlansHaveATitleBlockWhereThereIsRoom)
{
    const QImage wide = palx::planPicture(planRecipe(), 0, QSize(1280, 800));
    EXPECT_GT(colours(wide.copy(960, 0, 320, 400)), 20); // letters have many shades
    const QImage high = palx::planPicture(planRecipe(), 0, QSize(800, 1280));
    EXPECT_GT(colours(high.copy(0, 1280 - 250, 800, 250)), 20);
    EXPECT_NE(palx::planPicture(planRecipe(), 0, QSize(1280, 800)),
              palx::planPicture(planRecipe(), 4, QSize(1280, 800)));
}

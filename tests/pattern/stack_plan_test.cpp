#include "pattern/rules/stack_plan.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <limits>

using palx::LayerKind;
using palx::StackPlan;

TEST(StackPlan, LayersLieWhereThePointsPutThem)
{
    const StackPlan plan = palx::readStackPlan(planRecipe());
    struct
    {
        LayerKind kind;
        double bottom, top;
        int below;
    } const wanted[] = {{LayerKind::Products, 0, 200, -1},  {LayerKind::Sheet, 202, 205, 0},
                        {LayerKind::Products, 205, 405, 1}, {LayerKind::Empty, 405, 405, 2},
                        {LayerKind::Products, 410, 610, 2}, {LayerKind::MissingPattern, 610, 810, 4},
                        {LayerKind::Blank, 810, 810, 5},    {LayerKind::Unreached, 810, 810, 5}};
    ASSERT_EQ(plan.layers.size(), 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(plan.layers[i].kind, wanted[i].kind) << i;
        EXPECT_DOUBLE_EQ(plan.layers[i].bottomMm, wanted[i].bottom) << i;
        EXPECT_DOUBLE_EQ(plan.layers[i].topMm(), wanted[i].top) << i;
        EXPECT_EQ(plan.layerBelow(i), wanted[i].below) << i;
    }
    EXPECT_DOUBLE_EQ(plan.heightMm(), 810);
}

TEST(StackPlan, UnusableSizesAreReplacedAndSaid)
{
    const char *const bad[] = {"0", "-3", "null", "\"wide\"", "1e300", "[]"};
    for (const char *value : bad) {
        orba::Node stack = planRecipe();
        for (const char16_t *path : {u"product_cfg.product.length", u"product_cfg.pallet.width"})
            stack.find(path)->assign(nodeFromJson(value));
        const StackPlan plan = palx::readStackPlan(stack);
        EXPECT_TRUE(plan.productRepaired) << value;
        EXPECT_TRUE(plan.palletRepaired) << value;
        EXPECT_EQ(plan.product.length, 200) << value;
        EXPECT_EQ(plan.pallet.width, 800) << value;
        EXPECT_EQ(plan.pallet.length, 1200) << value;
    }
}

TEST(StackPlan, AnythingAtAllCanBeRead)
{
    for (const char *json :
         {"null", "3", "\"text\"", "[]", "{}", R"({"layers":5,"patterns":[1],"product_cfg":"x"})",
          R"({"layers":[1,2,3]})", R"({"layers":["A",null,{}]})"}) {
        const StackPlan plan = palx::readStackPlan(nodeFromJson(json));
        EXPECT_EQ(plan.pallet.length, 1000) << json;
        EXPECT_EQ(plan.heightMm(), 0) << json;
    }
    orba::Node stack = planRecipe();
    stack.find(u"layers.#0.h_offset")->setDouble(std::numeric_limits<double>::infinity());
    stack.find(u"product_cfg.product.height")->setDouble(std::numeric_limits<double>::quiet_NaN());
    EXPECT_LE(palx::readStackPlan(stack).heightMm(), palx::kMaxStackMm);
}

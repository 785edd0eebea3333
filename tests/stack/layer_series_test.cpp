#include "stack/layer_series.h"

#include "stack/recipe_layers.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using orba::ModuleObject;
using palx::LayerSeries;
using palx::LayerSet;

namespace {

/// A recipe with patterns "A" and "B" and layers given by letters: "-" is a sheet, "." an empty layer. Every layer has its place as its offset, so that layers can be told apart.
struct Recipe
{
    explicit Recipe(const QString &layers)
    {
        orba::Node &node = root.node();
        node = nodeFromJson(R"({"product_cfg":{"clapboard":{"enabled":0,"height":3}},
            "patterns":{"A":[{"x":1}],"B":[{"x":1},{"x":2}]},"layers":[]})");
        for (int i = 0; i < layers.size(); ++i)
            palx::insertLayer(&root, -1, patternOf(layers[i]), i);
    }
    static QString patternOf(QChar letter)
    {
        return letter == '-' ? palx::kSheetPattern : letter == '.' ? palx::kEmptyPattern : QString(letter);
    }
    QString layers() const
    {
        QString letters;
        for (const palx::LayerFacts &layer : palx::layerFacts(root.node()))
            letters += layer.pattern == palx::kSheetPattern   ? QStringLiteral("-")
                       : layer.pattern == palx::kEmptyPattern ? QStringLiteral(".")
                                                              : layer.pattern;
        return letters;
    }
    QString offsets() const
    {
        QString digits;
        for (int i = 0; i < layers().size(); ++i)
            digits += QString::number(root.getInt(QStringLiteral("layers.#%1.h_offset").arg(i)));
        return digits;
    }
    bool sheetsOn() const { return root.getInt("product_cfg.clapboard.enabled") == 1; }

    ModuleObject root;
};

} // namespace

TEST(LayerSeries, SheetsGoOntoLayersOfProductsOnce)
{
    const struct
    {
        const char *before;
        LayerSet layers;
        const char *after;
        int laid;
    } cases[] = {
        {"AB", {1, 0, 1}, "A-B-", 2},
        {"A-B", {0, 1, 2}, "A-B-", 1},
        {"A.", {0, 1}, "A-.", 1},
        {"AB", {-1, 7}, "AB", 0},
    };
    for (const auto &c : cases) {
        Recipe recipe(c.before);
        EXPECT_EQ(palx::insertSheets(&recipe.root, c.layers), c.laid) << c.before;
        EXPECT_EQ(recipe.layers(), QString(c.after)) << c.before;
        EXPECT_EQ(recipe.sheetsOn(), c.laid > 0) << c.before;
    }
}

TEST(LayerSeries, LayersMoveTogetherUntilTheyMeetTheEnd)
{
    const struct
    {
        LayerSet layers;
        bool up;
        const char *offsets;
        LayerSet then;
    } cases[] = {
        {{0}, true, "1023", {1}},
        {{1, 2}, true, "0312", {2, 3}},
        {{1, 2}, false, "1203", {0, 1}},
        {{0, 2}, false, "0213", {0, 1}},
    };
    for (const auto &c : cases) {
        Recipe recipe("ABAB");
        EXPECT_EQ(palx::moveLayers(&recipe.root, c.layers, c.up), c.then) << c.offsets;
        EXPECT_EQ(recipe.offsets(), QString(c.offsets));
    }
}

TEST(LayerSeries, PatternsTakeTurnsWithSheetsBetween)
{
    const struct
    {
        const char *before;
        LayerSeries series;
        const char *after;
    } cases[] = {
        {"", {{"A", "B"}, 5, 0, -1}, "ABABA"},
        {"", {{"A", "B"}, 4, 2, -1}, "AB-AB"},
        {"A..", {{"B"}, 2, 0, -1}, "ABB.."},
        {"AAAA", {{"B"}, 2, 0, 1}, "ABB"},
    };
    for (const auto &c : cases) {
        Recipe recipe(c.before);
        const orba::Node foreseen = palx::seriesLayers(recipe.root.node(), c.series);
        EXPECT_TRUE(palx::laySeries(&recipe.root, c.series)) << c.after;
        EXPECT_EQ(recipe.layers(), QString(c.after));
        EXPECT_EQ(*recipe.root.node().find(u"layers"), foreseen) << c.after;
        EXPECT_EQ(recipe.sheetsOn(), recipe.layers().contains('-')) << c.after;
    }
}

TEST(LayerSeries, WhatCannotBeLaidIsRefusedWhole)
{
    const struct
    {
        LayerSeries series;
        const char *reason;
    } cases[] = {
        {{{"A"}, 0, 0, -1}, "There is nothing to lay."},
        {{{"A", "C"}, 2, 0, -1}, "This recipe has no pattern \"C\"."},
        {{{"A"}, 101, 1, 0}, "That makes 201 layers; a recipe holds at most 200."},
    };
    for (const auto &c : cases) {
        Recipe recipe("AB");
        EXPECT_EQ(palx::seriesProblem(recipe.root.node(), c.series), QString(c.reason));
        EXPECT_FALSE(palx::laySeries(&recipe.root, c.series));
        EXPECT_EQ(recipe.layers(), "AB");
        EXPECT_EQ(palx::seriesLayers(recipe.root.node(), c.series).size(), 0);
    }
    Recipe full(QString(200, 'A'));
    EXPECT_EQ(palx::insertSheets(&full.root, {0}), 0);
    EXPECT_EQ(palx::repeatLayers(&full.root, {0}), 0);
    EXPECT_EQ(full.layers().size(), 200);
}

#include "stack/recipe_edit.h"
#include "stack/recipe_patterns.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "ui/current_recipe.h"
#include "ui/page_fixture.h"
#include "ui/patterns_frame.h"
#include "ui/point_group.h"
#include "workstation/plugin_node.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using orba::ModuleObject;

namespace {

/// The set-up page and what an operator does with it.
struct SetupPage : OpenRecipe
{
    using OpenRecipe::OpenRecipe;
    void click(int frame, const char *name) const { at<QPushButton>(frame, name)->click(); }
    void choose(int frame, const char *name, const QVariant &data) const
    {
        auto *combo = at<QComboBox>(frame, name);
        combo->setCurrentIndex(combo->findData(data));
        Q_EMIT combo->activated(combo->currentIndex());
    }
};

constexpr auto Product = OpenRecipe::Product;
constexpr auto Pallet = OpenRecipe::Pallet;
constexpr auto Patterns = OpenRecipe::Patterns;
constexpr auto Layers = OpenRecipe::Layers;
constexpr auto Waypoints = OpenRecipe::Waypoints;
constexpr auto Points = OpenRecipe::Points;

QString patternsOf(const ModuleObject *stack)
{
    QString names;
    for (int i = 0; i < stack->r("layers")->cmobjCount(); ++i)
        names += stack->getString(QStringLiteral("layers.#%1.pattern").arg(i)).left(1);
    return names;
}

} // namespace

TEST(SetupPage, EveryNumberFieldWritesItsOwnNode)
{
    const struct
    {
        int frame;
        const char *field;
        const char *path;
    } cases[] = {
        {Product, "spnLength", "product_cfg.product.length"},
        {Product, "spnWidth", "product_cfg.product.width"},
        {Product, "spnHeight", "product_cfg.product.height"},
        {Product, "spnWeight", "product_cfg.product.weight"},
        {Product, "spnDx", "product_cfg.product.dx"},
        {Product, "spnDy", "product_cfg.product.dy"},
        {Product, "spnDz", "product_cfg.product.dz"},
        {Pallet, "spnLength", "product_cfg.pallet.length"},
        {Pallet, "spnWidth", "product_cfg.pallet.width"},
        {Pallet, "spnHeight", "product_cfg.pallet.height"},
        {Pallet, "spnWeight", "product_cfg.pallet.weight"},
        {Pallet, "spnSheetLength", "product_cfg.clapboard.length"},
        {Pallet, "spnSheetWidth", "product_cfg.clapboard.width"},
        {Pallet, "spnSheetHeight", "product_cfg.clapboard.height"},
        {Pallet, "spnSheetWeight", "product_cfg.clapboard.weight"},
        {Pallet, "spnLeft", "wobj_margin.left"},
        {Pallet, "spnRight", "wobj_margin.right"},
        {Pallet, "spnTop", "wobj_margin.top"},
        {Pallet, "spnBottom", "wobj_margin.bottom"},
        {Pallet, "spnBollard", "bollard.height"},
        {Patterns, "spnX", "patterns.A.#0.x"},
        {Patterns, "spnY", "patterns.A.#0.y"},
        {Patterns, "spnDx", "patterns.A.#0.dx"},
        {Patterns, "spnDy", "patterns.A.#0.dy"},
        {Patterns, "spnDz", "patterns.A.#0.dz"},
        {Layers, "spnOffset", "layers.#0.h_offset"},
        {Waypoints, "spnPutReady", "put.ready_h"},
        {Waypoints, "spnPutApproach", "put.approach_h"},
        {Waypoints, "spnPutRetract", "put.retract_h"},
        {Waypoints, "spnPutExit", "put.exit_h"},
        {Waypoints, "spnGetReady", "get.ready_h"},
        {Waypoints, "spnGetApproach", "get.approach_h"},
        {Waypoints, "spnGetRetract", "get.retract_h"},
        {Waypoints, "spnLeftEnterX", "put.left_offsets.enter_x"},
        {Waypoints, "spnLeftExitH", "put.left_offsets.exit_h"},
        {Waypoints, "spnRightEnterY", "put.right_offsets.enter_y"},
        {Waypoints, "spnRightReadyH", "put.right_offsets.ready_h"},
    };
    SetupPage page;
    for (const auto &c : cases) {
        page.setup->showFrame(c.frame);
        const orba::Node before = palx::recipeContent(page.stack()->node());
        enter(page.at<QDoubleSpinBox>(c.frame, c.field), 77.0);
        orba::Node expected = before;
        expected.find(orba::Path(c.path))->setInt(77);
        EXPECT_EQ(palx::recipeContent(page.stack()->node()), expected) << c.field;
        page.setup->undo();
        EXPECT_EQ(palx::recipeContent(page.stack()->node()), before) << c.field;
        EXPECT_NE(page.at<QDoubleSpinBox>(c.frame, c.field)->value(), 77) << c.field;
    }
}

TEST(SetupPage, ChoicesReachTheirNodes)
{
    SetupPage page;
    page.choose(Product, "cmbDirection", "TopLeft");
    EXPECT_EQ(page.stack()->getString("product_cfg.product.direction"), "TopLeft");
    enter(page.at<QSpinBox>(Product, "spnOrient"), 2);
    EXPECT_EQ(page.stack()->getInt("product_cfg.product.orient"), 2);
    page.choose(Pallet, "cmbPosition", 1);
    EXPECT_EQ(page.stack()->getInt("pallet_position"), 1);
    page.at<QCheckBox>(Pallet, "chkSheet")->click();
    page.at<QCheckBox>(Pallet, "chkBollard")->click();
    page.at<QCheckBox>(Pallet, "chkGlobalTool")->click();
    page.at<QCheckBox>(Pallet, "chkGlobalWobj")->click();
    for (const char *path :
         {"product_cfg.clapboard.enabled", "bollard.enabled", "use_global_tool", "use_global_wobj"})
        EXPECT_TRUE(page.stack()->getBool(path)) << path;
    page.choose(Layers, "cmbPattern", "clapboard");
    EXPECT_EQ(patternsOf(page.stack()), "cB");
    auto *desc = page.at<QLineEdit>(Product, "edtDesc");
    desc->setText("bottles");
    Q_EMIT desc->editingFinished();
    EXPECT_EQ(page.stack()->getString("desc"), "bottles");
}

TEST(PatternsFrame, DeletesAPatternThatNoLayerUsesAndBringsItBack)
{
    SetupPage page(Patterns);
    const ScriptedPresenter presenter({true});
    page.click(Patterns, "btnDelete");
    EXPECT_TRUE(page.stack()->has("patterns.A"));
    EXPECT_EQ(page.message(), "Pattern \"A\" is used by layer 1.");
    EXPECT_TRUE(presenter.asked.isEmpty());
    palx::addPattern(page.stack(), "C");
    page.setup->pageDateRefresh();
    static_cast<PatternsFrame *>(page.setup->frames().at(Patterns))->choosePattern("C");
    page.click(Patterns, "btnDelete");
    EXPECT_FALSE(page.stack()->has("patterns.C"));
    page.setup->undo();
    EXPECT_TRUE(page.stack()->has("patterns.C"));
    EXPECT_EQ(page.at<QComboBox>(Patterns, "cmbPattern")->count(), 3);
}

TEST(SetupPage, AFieldInEditCountsBeforeUndo)
{
    SetupPage page;
    auto *length = page.at<QDoubleSpinBox>(Product, "spnLength");
    page.center.activateWindow();
    length->setFocus();
    ASSERT_TRUE(waitUntil([&] { return length->hasFocus(); }));
    length->selectAll();
    QTest::keyClicks(length, "321");
    page.setup->undo();
    EXPECT_EQ(page.stack()->getDouble("product_cfg.product.length"), 200);
    page.setup->redo();
    EXPECT_EQ(page.stack()->getDouble("product_cfg.product.length"), 321);
    page.setup->undo();
    enter(length, 999.0);
    page.setup->redo(); // an edit ends what could be repeated
    EXPECT_EQ(length->value(), 999);
}

TEST(SetupPage, RefusesMarginsWithoutRoomAndASmallerPalletResetsThemInOneStep)
{
    SetupPage page(Pallet);
    enter(page.at<QDoubleSpinBox>(Pallet, "spnLeft"), 700.0);
    EXPECT_EQ(page.stack()->getDouble("wobj_margin.left"), 0);
    EXPECT_NE(page.message(), QString());
    enter(page.at<QDoubleSpinBox>(Pallet, "spnLeft"), 500.0);
    const orba::Node before = palx::recipeContent(page.stack()->node());
    TriggerCount resets("reset_margin_data");
    enter(page.at<QDoubleSpinBox>(Pallet, "spnWidth"), 600.0);
    EXPECT_EQ(page.stack()->getDouble("wobj_margin.left"), 0);
    EXPECT_EQ(resets.take(), 1);
    page.setup->undo();
    EXPECT_EQ(palx::recipeContent(page.stack()->node()), before);
}

TEST(SetupPage, LeavingAnEditedFrameMakesThePointsAnew)
{
    SetupPage page;
    page.stack()->r("points.put")->clear();
    page.setup->showFrame(Pallet);
    EXPECT_EQ(page.stack()->r("points.put")->cmobjCount(), 0); // nothing was edited
    page.setup->showFrame(Product);
    enter(page.at<QDoubleSpinBox>(Product, "spnHeight"), 123.0);
    page.setup->showFrame(Layers);
    EXPECT_GT(page.stack()->r("points.put")->cmobjCount(), 0);
    page.setup->undo(); // takes back the height, not what was computed
    EXPECT_NE(page.stack()->getDouble("product_cfg.product.height"), 123.0);
    EXPECT_FALSE(page.hasUndo());
}

TEST(SetupPage, SwitchesRecipesAndRepairsTheOpenedOne)
{
    SetupPage page;
    ModuleObject *bag = page.tree.addRecipe("Bag"); // an old one
    bag->set(nullptr, "product_cfg.product.length", -5);
    bag->r("wobj_margin")->remove();
    TriggerCount table("refresh_table");
    enter(page.at<QDoubleSpinBox>(Product, "spnLength"), 333.0);
    auto *recipes = page.part<QComboBox>("cmbRecipe");
    recipes->setCurrentIndex(1);
    Q_EMIT recipes->activated(1);
    EXPECT_EQ(page.stack()->getString("name"), "Bag");
    EXPECT_EQ(currentRecipe(&page.module)->value(), "Bag");
    EXPECT_FALSE(page.hasUndo());
    EXPECT_EQ(table.take(), 1); // "Box" was left for good
    EXPECT_EQ(page.at<QDoubleSpinBox>(Product, "spnLength")->value(), 200);
    EXPECT_TRUE(bag->has("wobj_margin.top"));
    EXPECT_EQ(palx::getStack("Box")->getDouble("product_cfg.product.length"), 333);
    page.part<QPushButton>("btnBack")->click();
    EXPECT_EQ(page.center.currentPage(), "palx_workstation.home_page");
    EXPECT_EQ(table.take(), 1);
}

TEST(SetupPage, ARecipeThatEndsClosesThePage)
{
    for (const int frame : {Product, Patterns, Points}) {
        SetupPage page(frame);
        page.stack()->remove();
        EXPECT_EQ(page.stack(), nullptr);
        EXPECT_TRUE(page.part<QLabel>("lblNone")->isVisible());
        page.setup->undo();
        QCoreApplication::processEvents();
    }
}

TEST(WaypointsFrame, PointsAreShownAndWrittenInMillimetresAndDegrees)
{
    SetupPage page(Waypoints);
    auto *group = page.at<PointGroup>(Waypoints, "grpPutPoint");
    auto *x = group->findChild<QDoubleSpinBox *>("dspnX");
    auto *c = group->findChild<QDoubleSpinBox *>("dspnC");
    EXPECT_DOUBLE_EQ(x->value(), 500);
    const orba::Node before = page.stack()->node();
    enter(x, 600.0);
    enter(c, 90.0);
    EXPECT_DOUBLE_EQ(page.stack()->getDouble("put.put_p.trans.#0"), 0.6);
    EXPECT_NEAR(page.stack()->getDouble("put.put_p.rot.#2"), 1.5707963, 1e-7);
    page.setup->undo();
    page.setup->undo();
    EXPECT_EQ(palx::recipeContent(page.stack()->node()), palx::recipeContent(before));
    EXPECT_DOUBLE_EQ(x->value(), 500);
}

TEST(WaypointsFrame, WhatSharedSettingsTakeOverIsNotEdited)
{
    SetupPage page(Waypoints);
    applyPaths(palx::pluginNode()->node(), R"({
        "global_wobj": [{"calibration_method": 1}, {"calibration_method": 1}],
        "global_tool": [{}, {}, {}, {"waypoint_settings": {"put": {"left_offsets": {"enter_x": 31}}}}]})");
    page.stack()->set(nullptr, "use_global_wobj", true);
    page.stack()->set(nullptr, "use_global_tool", true);
    page.setup->pageDateRefresh();
    TriggerCount data("refresh_data");
    EXPECT_FALSE(page.at<QDoubleSpinBox>(Waypoints, "spnPutReady")->isEnabled());
    EXPECT_FALSE(page.at<QDoubleSpinBox>(Waypoints, "spnGetApproach")->isEnabled());
    EXPECT_TRUE(page.at<QDoubleSpinBox>(Waypoints, "spnGetReady")->isEnabled());
    EXPECT_FALSE(page.at<PointGroup>(Waypoints, "grpGetPoint")->findChild<QDoubleSpinBox *>()->isEnabled());
    auto *offset = page.at<QDoubleSpinBox>(Waypoints, "spnLeftEnterX");
    EXPECT_EQ(offset->value(), 31);
    enter(offset, 32.0);
    EXPECT_EQ(palx::pluginNode()->getDouble("global_tool.#3.waypoint_settings.put.left_offsets.enter_x"), 32);
    EXPECT_EQ(data.take(), 1);

    orba::ModuleObject *other = page.tree.addRecipe("Other");
    other->set(nullptr, "use_global_wobj", true);
    const orba::Node without = other->node();
    page.open("Other", Waypoints); // leaves the first one
    EXPECT_FALSE(page.setup->stack()->node() == without) << "its points have the new offset too";
    EXPECT_GT(other->node().find(u"points.put")->size(), 0);
}

TEST(PointsFrame, GeneratesListsFiltersAndCopies)
{
    SetupPage page(Points);
    auto *table = page.at<QTableView>(Points, "tblPoints");
    page.click(Points, "btnGenerate");
    EXPECT_EQ(table->model()->rowCount(), 5 + 3 * 6);
    page.choose(Points, "cmbLayer", 1);
    page.choose(Points, "cmbPoint", "put_p");
    ASSERT_EQ(table->model()->rowCount(), 1);
    ScriptedPresenter presenter;
    page.click(Points, "btnCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "Layer\tItem\tPoint\tX mm\tY mm\tZ mm\tA \u00b0\tB \u00b0\tC \u00b0\n"
              "2\t1\tPlace\t100.00\t75.00\t225.00\t171.887\t28.648\t-90.000\n");
    EXPECT_EQ(presenter.notices.size(), 1);
}

TEST(PointsFrame, SaysWhenPointsAreOutOfDate)
{
    SetupPage page(Points);
    page.stack()->r("toolset")->copyFrom(nodeFromJson(R"({"ref": {"trans": [0.5, 0.0, 0.0]},
        "end": {"trans": [0.0, 0.0, 0.3]}})"));
    page.setup->pageDateRefresh();
    page.click(Points, "btnGenerate");
    auto *state = page.at<QLabel>(Points, "lblState");
    EXPECT_TRUE(state->text().contains("ready height")) << state->text();
    enter(page.at<QDoubleSpinBox>(Waypoints, "spnPutReady"), 120.0);
    page.click(Points, "btnGenerate");
    enter(page.at<QDoubleSpinBox>(Product, "spnHeight"), 111.0);
    EXPECT_TRUE(state->text().contains("generate")) << state->text();
    page.setup->undo();
    EXPECT_EQ(state->text(), "The points are up to date.");
    page.stack()->r("put.put_p")->copyFrom(orba::Node());
    page.setup->pageDateRefresh();
    EXPECT_TRUE(state->text().contains("not taught")) << state->text();
    page.stack()->set(nullptr, "layers.#1.pattern", "empty");
    page.setup->pageDateRefresh();
    page.click(Points, "btnGenerate");
    EXPECT_EQ(patternsOf(page.stack()), "A");
    page.setup->undo(); // also what the generation did to the recipe
    EXPECT_EQ(patternsOf(page.stack()), "Ae");
}

#include "ui/nesting_wizards.h"

#include "stack/recipe_edit.h"
#include "stack/recipe_layers.h"
#include "support/test_support.h"
#include "ui/page_fixture.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QDoubleSpinBox>
#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// A wizard over a recipe of its own; shown, as a panel would.
template <typename Wizard> struct OpenWizard
{
    explicit OpenWizard(QList<bool> answers = {})
        : presenter(std::move(answers)), stack(tree.addRecipe("Box")),
          wizard(std::make_unique<Wizard>(stack, nullptr))
    {
        wizard->resize(1100, 700);
        wizard->show();
    }
    template <typename T> T *at(const char *name) const { return partOf<T>(*wizard, name); }
    void click(const char *name) const { at<QPushButton>(name)->click(); }
    orba::Node content() const { return palx::recipeContent(stack->node()); }
    int points() const { return stack->r("points.put")->cmobjCount(); }

    PluginTree tree;
    ScriptedPresenter presenter;
    orba::ModuleObject *stack;
    std::unique_ptr<Wizard> wizard;
};

using LayerWizard = OpenWizard<CascadeNestingWizard>;

} // namespace

TEST(RecipeWizard, CancelTakesEditsBackButNotRepairs)
{
    LayerWizard w({false, true});
    const orba::Node before = w.content();
    enter(w.at<QDoubleSpinBox>("spnOffset"), 12.0);
    w.click("btnAdd");
    ASSERT_NE(w.content(), before);
    w.click("btnCancel");
    EXPECT_TRUE(w.wizard->isVisible()) << "the question was answered with no";
    w.click("btnCancel");
    EXPECT_FALSE(w.wizard->isVisible());
    EXPECT_EQ(w.content(), before);
}

TEST(RecipeWizard, CancelAfterGoingOnSendsTheOldStateAgain)
{
    LayerWizard w({true});
    palx::genPointsAndSaveToRC(w.stack, false); // writes pick points into the recipe too
    const orba::Node before = w.content();
    w.click("btnAdd");
    w.click("btnNext");
    ASSERT_EQ(w.points(), 3);
    w.click("btnCancel");
    EXPECT_EQ(w.content(), before);
    EXPECT_EQ(w.points(), 2) << "points of a layer that is gone";
}

TEST(RecipeWizard, WhatWasEditedIsSentWhenAnotherDialogTakesItsPlace)
{
    LayerWizard w;
    w.click("btnAdd");
    ASSERT_EQ(w.points(), 0);
    w.wizard.reset();
    EXPECT_EQ(w.points(), 3);
}

TEST(RecipeWizard, ForTheSetUpPageItIsOneStep)
{
    Pages pages;
    orba::ModuleObject *stack = pages.tree.addRecipe("Box");
    pages.open("Box");
    const orba::Node before = palx::recipeContent(stack->node());
    const auto *menu = pages.field<QMenu>("mnuWizard");
    ASSERT_EQ(menu->actions().size(), 5);
    menu->actions().at(3)->trigger(); // of layers
    auto *wizard = pages.center.findChild<RecipeWizard *>();
    ASSERT_NE(wizard, nullptr);
    wizard->findChild<QPushButton *>("btnAdd")->click();
    wizard->findChild<QPushButton *>("btnAdd")->click();
    wizard->next();
    wizard->next();
    EXPECT_FALSE(wizard->isVisible());
    const orba::Node after = palx::recipeContent(stack->node());
    EXPECT_EQ(after.find(u"layers")->size(), 4);
    pages.setup->undo();
    EXPECT_EQ(palx::recipeContent(stack->node()), before);
    pages.setup->redo();
    EXPECT_EQ(palx::recipeContent(stack->node()), after);
}

TEST(RecipeWizard, ALayerOnAnEmptyOneKeepsTheWizardOpen)
{
    LayerWizard w;
    palx::insertLayer(w.stack, 1, palx::kEmptyPattern);
    TriggerCount table("refresh_table");
    w.click("btnNext");
    EXPECT_TRUE(w.wizard->isVisible());
    ASSERT_EQ(w.presenter.asked.size(), 1);
    EXPECT_TRUE(w.presenter.asked[0].text.contains("Layer 3 lies on an empty layer"));
    EXPECT_EQ(w.presenter.asked[0].rejectText, QString()) << "there is nothing to choose";
    EXPECT_EQ(w.points(), 0);
    EXPECT_EQ(table.take(), 0);
}

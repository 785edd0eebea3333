// The page of patterns: edits of products on the plan, and the dialogs that produce patterns.

#include "stack/recipe_edit.h"
#include "ui/page_fixture.h"
#include "ui/pattern_template_dialog.h"
#include "ui/pattern_view.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QListWidget>
#include <QSpinBox>

#include <gtest/gtest.h>

using orba::ModuleObject;
using palx::Selection;

namespace {

/// The page of patterns with the pattern "A" of the recipe "Box": products at (75, 100) and (225, 100), the least
/// spacing 1 mm.
struct PatternPage : OpenRecipe
{
    PatternPage() : OpenRecipe(Patterns), view(at<PatternView>("view")) {}
    template <typename T> T *at(const char *name) const { return OpenRecipe::at<T>(Patterns, name); }
    void click(const char *name) const { at<QAbstractButton>(name)->click(); }
    ModuleObject *pattern() const { return stack()->r("patterns.A"); }
    /// "x,y/r" of the stored products.
    std::string places() const
    {
        QStringList texts;
        for (int i = 0; i < pattern()->cmobjCount(); ++i) {
            const QString item = QStringLiteral("#%1.").arg(i);
            texts << QStringLiteral("%1,%2/%3")
                         .arg(pattern()->getDouble(QString(item + "x")))
                         .arg(pattern()->getDouble(QString(item + "y")))
                         .arg(pattern()->getInt(QString(item + "r")));
        }
        return texts.join(' ').toStdString();
    }
    /// What the page "Check" lists.
    QStringList problems() const
    {
        click("tabCheck");
        QStringList texts;
        const auto *list = at<QListWidget>("lstProblems");
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts;
    }

    /// The dialog that is open; those that were closed are gone.
    template <typename Dialog> Dialog *opened() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return center.findChild<Dialog *>();
    }
    template <typename Dialog> void confirm(const char *button) const
    {
        partOf<QAbstractButton>(*opened<Dialog>(), button)->click();
        EXPECT_EQ(opened<Dialog>(), nullptr);
    }
    void setTemplate(int x, int y) const
    {
        enter(partOf<QSpinBox>(*opened<PatternTemplateDialog>(), "spnNumX"), x);
        enter(partOf<QSpinBox>(*opened<PatternTemplateDialog>(), "spnNumY"), y);
    }
    int itemCount(const char *pattern) const { return stack()->r("patterns")->c(pattern)->cmobjCount(); }
    PatternView *view;
};

struct ButtonCase
{
    const char *button;
    Selection selection;
    const char *places;
};

const ButtonCase kButtons[] = {
    {"btnNudgeLeft", {1}, "75,100/0 224,100/0"},
    {"btnNudgeRight", {1}, "75,100/0 226,100/0"},
    {"btnNudgeUp", {0, 1}, "75,99/0 225,99/0"},
    {"btnNudgeDown", {0}, "75,101/0 225,100/0"},
    {"btnTurnLeft", {0}, "75,100/270 225,100/0"},
    {"btnTurnRight", {0, 1}, "150,25/90 150,175/90"},
    {"btnTurnBy", {0}, "75,100/45 225,100/0"},
    {"btnMirrorAcross", {}, "725,100/0 575,100/0"},
    {"btnMirrorAlong", {}, "75,900/180 225,900/180"},
    {"btnTurnPattern", {}, "725,900/180 575,900/180"},
    {"btnAlignLeft", {0, 1}, "75,100/0 75,100/0"},
    {"btnAlignCentreAcross", {1}, "75,100/0 400,100/0"},
    {"btnAlignRight", {0}, "725,100/0 225,100/0"},
    {"btnAlignCentreAlong", {0}, "75,500/0 225,100/0"},
    {"btnRemoveItem", {0}, "225,100/0"},
    {"btnDownItem", {0}, "225,100/0 75,100/0"},
    {"btnUpItem", {1}, "225,100/0 75,100/0"},
};

} // namespace

TEST(PatternPage, ButtonsEditAndUndoTakesBack)
{
    const PatternPage page;
    const std::string before = page.places();
    for (const ButtonCase &one : kButtons) {
        page.view->editing()->select(one.selection);
        page.click(one.button);
        EXPECT_EQ(page.places(), one.places) << one.button;
        page.setup->undo();
        EXPECT_EQ(page.places(), before) << one.button;
    }
}

// Every kind of edit in turn, far more steps than one would count.
TEST(PatternPage, AHundredStepsAreTakenBackAndDoneAgain)
{
    constexpr int kSteps = 100;
    PatternPage page;
    const char *const buttons[] = {"btnNudgeRight", "btnTurnRight",   "btnMirrorAcross", "btnSides",
                                   "btnNudgeDown",  "btnMirrorAlong", "btnTurnPattern",  "btnTurnBy",
                                   "btnDownItem",   "btnAlignLeft"};
    QList<orba::Node> states{palx::recipeContent(page.stack()->node())};
    page.view->editing()->select({0});
    page.click("btnCopyItems");
    for (int i = 0; states.size() <= kSteps; ++i) {
        page.view->editing()->select(i % 3 == 2 ? Selection{0, 1} : Selection{i % 2});
        page.click(i % 11 == 10 ? "btnPasteItems" : buttons[i % 11]);
        const orba::Node state = palx::recipeContent(page.stack()->node());
        if (state != states.last())
            states.append(state);
    }
    for (int i = kSteps - 1; i >= 0; --i) {
        page.setup->undo();
        ASSERT_EQ(palx::recipeContent(page.stack()->node()), states[i]) << i;
        ASSERT_EQ(page.view->editing()->items().size(), page.pattern()->cmobjCount());
    }
    for (int i = 1; i <= kSteps; ++i) {
        page.setup->redo();
        ASSERT_EQ(palx::recipeContent(page.stack()->node()), states[i]) << i;
    }
}

TEST(PatternPage, ListsProblemsAndChoosesTheirProducts)
{
    PatternPage page;
    EXPECT_EQ(page.problems(), QStringList("Products 1 and 2 are 0.0 mm apart, less than 1.0 mm."));
    page.pattern()->set(nullptr, "#1.x", 750);
    page.stack()->set(nullptr, "wobj_margin.top", 5);
    QCoreApplication::processEvents();
    EXPECT_EQ(page.problems().size(), 3);
    EXPECT_EQ(page.at<QAbstractButton>("tabCheck")->text(), "Check 3");
    auto *list = page.at<QListWidget>("lstProblems");
    Q_EMIT list->itemClicked(list->item(1));
    EXPECT_EQ(page.view->editing()->selection(), (Selection{0}));
}

TEST(PatternPage, ATemplateIsOneStep)
{
    const PatternPage page;
    page.click("btnTemplate");
    page.setTemplate(2, 3);
    EXPECT_FALSE(page.hasUndo());
    page.confirm<PatternTemplateDialog>("btnConfirm");
    EXPECT_EQ(page.itemCount("A"), 8);
    EXPECT_EQ(page.stack()->getInt("patterns.A.#7.index"), 8);
    page.setup->undo();
    EXPECT_EQ(page.itemCount("A"), 2);
    EXPECT_FALSE(page.hasUndo());
    page.setup->redo();
    EXPECT_EQ(page.itemCount("A"), 8);
}

TEST(PatternPage, ARecipeThatEndsClosesWhatIsOpen)
{
    for (const char *button : {"btnAdd", "btnTemplate", "btnAutomatic"}) {
        const PatternPage page;
        page.click(button);
        EXPECT_NE(page.opened<QDialog>(), nullptr) << button;
        page.stack()->remove();
        EXPECT_EQ(page.opened<QDialog>(), nullptr) << button;
    }
}

#include "ui/automatic_stacker_dialog.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"
#include "ui/patterns_frame.h"

#include "stack/recipe_edit.h"
#include "ui/dialog_fixture.h"
#include "ui/page_fixture.h"
#include "ui/recipe_frame.h"
#include "ui/stacksetuppage.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace {

constexpr int kPatterns = 2; // the frame

/// The patterns frame of the set-up page, and what it opens.
struct PatternsPage : Pages
{
    PatternsPage()
    {
        tree.addRecipe("Box");
        open("Box", kPatterns);
        frame = static_cast<PatternsFrame *>(setup->frames().at(kPatterns));
    }
    orba::ModuleObject *stack() const { return setup->stack(); }
    void click(const char *name) const { partOf<QAbstractButton>(*frame, name)->click(); }
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
    bool hasUndo() const
    {
        return setup->wgt()->findChild<QAbstractButton *>(QStringLiteral("btnUndo"))->isEnabled();
    }

    PatternsFrame *frame;
};

} // namespace

TEST(PatternProducers, ANewPatternIsChosenAndCanBeTakenBack)
{
    const PatternsPage page;
    const orba::Node before = palx::recipeContent(page.stack()->node());
    page.click("btnAdd");
    EXPECT_EQ(partOf<QLineEdit>(*page.opened<NewPatternDialog>(), "edtName")->text(), QStringLiteral("C"));
    page.opened<NewPatternDialog>()->findChild<QAbstractButton *>(QStringLiteral("chbClone"))->click();
    page.confirm<NewPatternDialog>("btnOk");
    EXPECT_EQ(page.frame->pattern(), QStringLiteral("C"));
    EXPECT_EQ(page.itemCount("C"), 2); // a clone of "A"
    page.setup->undo();
    EXPECT_EQ(palx::recipeContent(page.stack()->node()), before);
    EXPECT_EQ(page.frame->pattern(), QStringLiteral("A"));
}

TEST(PatternProducers, ATemplateIsOneStep)
{
    const PatternsPage page;
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
    page.click("btnTemplate"); // what was typed is there again
    EXPECT_EQ(partOf<QSpinBox>(*page.opened<PatternTemplateDialog>(), "spnNumY")->value(), 3);
}

TEST(PatternProducers, ARecipeWithoutPatternsGetsItsFirstOneBefore)
{
    const PatternsPage page;
    page.stack()->remove(QStringLiteral("patterns"));
    page.setup->pageDateRefresh();
    page.click("btnTemplate");
    EXPECT_EQ(page.opened<PatternTemplateDialog>(), nullptr);
    page.confirm<AddPatternDialog>("btnOk");
    EXPECT_EQ(page.frame->pattern(), QStringLiteral("A"));
    ASSERT_NE(page.opened<PatternTemplateDialog>(), nullptr);
    page.setTemplate(1, 1);
    page.confirm<PatternTemplateDialog>("btnConfirm");
    EXPECT_EQ(page.itemCount("A"), 1);
}

TEST(PatternProducers, ARecipeThatEndsClosesWhatIsOpen)
{
    for (const char *button : {"btnAdd", "btnTemplate", "btnAutomatic"}) {
        const PatternsPage page;
        page.click(button);
        EXPECT_NE(page.opened<QDialog>(), nullptr) << button;
        page.stack()->remove();
        EXPECT_EQ(page.opened<QDialog>(), nullptr) << button;
    }
}

#include "stack/way_points.h"
#include "support/scripted_files.h"
#include "support/test_support.h"
#include "ui/current_recipe.h"
#include "ui/imexportdialog.h"
#include "ui/name_dialog.h"
#include "ui/page_fixture.h"
#include "workstation/plugin_node.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QStringList shownNames(const Pages &pages)
{
    QStringList names;
    const QAbstractItemModel *model = pages.field<QListView>("lstRecipes")->model();
    for (int row = 0; row < model->rowCount(); ++row)
        names << model->index(row, 0).data().toString();
    return names;
}

void click(const Pages &pages, const char *button)
{
    partOf<QPushButton>(*pages.home->wgt(), button)->click();
}

/// The part of the page with the recipes; the other part has a message bar of its own.
QWidget *recipesOf(const Pages &pages)
{
    return pages.field<QListView>("lstRecipes")->parentWidget();
}

MessageBar *message(const Pages &pages)
{
    return recipesOf(pages)->findChild<MessageBar *>();
}

/// The dialog of recipes in files, with a file chosen.
ImExportDialog *openExchange(const Pages &pages, ScriptedFiles *files, const char *button,
                             const QString &file)
{
    pages.field<QPushButton>(button)->click();
    files->answer({file});
    auto *dialog = pages.center.findChild<ImExportDialog *>();
    dialog->openFile();
    return dialog;
}

/// Answers the dialog that asks for a name; returns the reason when it refuses.
QString answerName(const Pages &pages, const char *name, const char *desc = nullptr)
{
    auto *dialog = pages.center.findChild<NameDialog *>();
    partOf<QLineEdit>(*dialog, "edtName")->setText(QString::fromUtf8(name));
    if (desc)
        partOf<QLineEdit>(*dialog, "edtDesc")->setText(QString::fromUtf8(desc));
    auto *ok = partOf<QPushButton>(*dialog, "btnOk");
    const QString reason = partOf<QLabel>(*dialog, "lblReason")->text();
    EXPECT_EQ(ok->isEnabled(), reason.isEmpty());
    ok->isEnabled() ? ok->click() : dialog->reject();
    delete dialog; // as its closing does a turn of the loop later
    return reason;
}

} // namespace

TEST(HomePage, MakesARecipeFromTheTemplate)
{
    Pages pages;
    TriggerCount table("refresh_table");
    TriggerCount combos("refresh_cmb");
    click(pages, "btnNew");
    EXPECT_EQ(pages.center.findChild<NameDialog *>()->name(), "Recipe 1");
    EXPECT_EQ(answerName(pages, " Box 1 ", "small ones"), QString());
    EXPECT_EQ(shownNames(pages), QStringList(QStringLiteral("Box 1")));
    orba::ModuleObject *stack = palx::getStack("Box 1");
    EXPECT_EQ(stack->getString("desc"), "small ones");
    EXPECT_EQ(pages.home->chosenStack(), stack);
    EXPECT_GE(table.take(), 1);
    EXPECT_EQ(combos.take(), 1);
}

TEST(HomePage, CopiesAndRenames)
{
    Pages pages;
    pages.tree.addRecipe("Box");
    pages.tree.addRecipe("Bag");
    pages.home->chooseRecipe("Box");
    click(pages, "btnCopy");
    EXPECT_EQ(pages.center.findChild<NameDialog *>()->name(), "Box1");
    answerName(pages, "Crate");
    EXPECT_EQ(shownNames(pages).join(' '), "Box Bag Crate");
    EXPECT_EQ(pages.home->chosenStack()->getString("name"), "Crate");
    click(pages, "btnRename");
    EXPECT_NE(answerName(pages, "Bag"), QString());
    click(pages, "btnRename");
    answerName(pages, "Case", "for bottles");
    EXPECT_EQ(shownNames(pages).join(' '), "Box Bag Case");
    EXPECT_EQ(palx::getStack("Case")->getString("desc"), "for bottles");
}

TEST(HomePage, DeletesOnlyWhenConfirmedAndTakesItBack)
{
    Pages pages;
    for (const char *name : {"A", "B", "C"})
        pages.tree.addRecipe(name);
    pages.home->chooseRecipe("B");
    const orba::Node before = palx::stacksNode()->node();
    ScriptedPresenter presenter({false, true});
    click(pages, "btnDelete");
    EXPECT_EQ(palx::stacksNode()->node(), before);
    click(pages, "btnDelete");
    ASSERT_EQ(presenter.asked.size(), 2);
    EXPECT_TRUE(presenter.asked.last().text.contains("\"B\""));
    EXPECT_EQ(shownNames(pages).join(' '), "A C");
    EXPECT_EQ(pages.home->chosenStack()->getString("name"), "C");
    partOf<QPushButton>(*message(pages), "btnAction")->click();
    EXPECT_EQ(palx::stacksNode()->node(), before);
    EXPECT_EQ(pages.home->chosenStack()->getString("name"), "B");
}

TEST(HomePage, TheOpenRecipeStaysOpenWhenRenamedAndClosesWhenDeleted)
{
    Pages pages;
    pages.tree.addRecipe("A");
    click(pages, "btnOpen");
    orba::ModuleObject *stack = pages.setup->stack();
    click(pages, "btnRename");
    answerName(pages, "Z");
    EXPECT_EQ(currentRecipe(&pages.module)->value(), "Z");
    EXPECT_EQ(pages.setup->stack(), stack);
    const ScriptedPresenter presenter({true});
    click(pages, "btnDelete");
    EXPECT_EQ(pages.setup->stack(), nullptr);
    EXPECT_EQ(currentRecipe(&pages.module)->value(), QString());
}

/// As after a panel that ended between an edit and the generation that follows it.
TEST(HomePage, TellsOfPointsThatAreOlderThanTheRecipe)
{
    Pages pages;
    orba::ModuleObject *stack = pages.tree.addRecipe("A");
    pages.home->chooseRecipe("A");
    auto *warning = partOf<QLabel>(*pages.home->wgt(), "lblOutdated");
    EXPECT_EQ(warning->text(), QString()) << "there are none yet";
    palx::genStackWayPoints(stack);
    stack->set(nullptr, "put.put_p.trans.#2", 0.2);
    pages.tree.addRecipe("B");
    pages.home->chooseRecipe("B");
    pages.home->chooseRecipe("A");
    EXPECT_TRUE(warning->text().contains("generate the points again")) << warning->text();
    palx::genStackWayPoints(stack);
    pages.home->chooseRecipe("B");
    pages.home->chooseRecipe("A");
    EXPECT_EQ(warning->text(), QString());
}

// What came, went and came back by files, and what the set-up page shows of it.
TEST(HomePage, ExportsImportsAndTakesItBack)
{
    Pages pages;
    for (const char *name : {"A", "B"})
        pages.tree.addRecipe(name);
    ScriptedFiles files;
    ScriptedPresenter presenter;
    const QTemporaryDir folder;
    const StandInDisk stick(folder.path());
    const QString file = folder.filePath("pallet.xml");
    const auto length = [&pages] { return pages.setup->stack()->getDouble("product_cfg.product.length"); };
    partOf<QPushButton>(*openExchange(pages, &files, "btnExport", file), "btnOk")->click();
    EXPECT_TRUE(message(pages)->text().startsWith(QStringLiteral("2 recipes were written to ") + file));
    palx::getStack("A")->set(nullptr, "product_cfg.product.length", 321.0);
    for (const bool replaces : {false, true}) {
        pages.open("A");
        const orba::Node before = palx::stacksNode()->node();
        ImExportDialog *dialog = openExchange(pages, &files, "btnImport", file);
        if (replaces)
            partOf<QAbstractButton>(*dialog, "optReplace")->click();
        partOf<QPushButton>(*dialog, "btnOk")->click();
        EXPECT_EQ(shownNames(pages).join(' '), QString(replaces ? "A B" : "A B A1 B1"));
        EXPECT_EQ(
            message(pages)->text(),
            QStringLiteral("Imported: 2 new recipes, %1 of them replace others.").arg(replaces ? 2 : 0));
        EXPECT_EQ(length(), replaces ? 200 : 321); // another node by now
        if (!replaces)
            pages.open("A1");
        presenter.answer(true);
        partOf<QPushButton>(*message(pages), "btnAction")->click();
        EXPECT_EQ(palx::stacksNode()->node(), before);
        if (replaces)
            EXPECT_EQ(length(), 321);
        else
            EXPECT_EQ(pages.setup->stack(), nullptr); // its recipe went with the import
    }
}

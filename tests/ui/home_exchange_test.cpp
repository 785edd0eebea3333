// Import and export from the list of recipes: what the page offers afterwards, and what the set-up page shows of
// recipes that came, went and came back.

#include "support/scripted_files.h"
#include "support/test_support.h"
#include "ui/imexportdialog.h"
#include "ui/message_bar.h"
#include "ui/page_fixture.h"
#include "ui/stackhomepage.h"
#include "ui/stacksetuppage.h"
#include "workstation/plugin_node.h"

#include <QFile>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class HomeExchange : public ::testing::Test
{
protected:
    HomeExchange()
    {
        for (const char *name : {"A", "B"})
            pages.tree.addRecipe(name);
    }
    QString file() const { return folder.filePath(QStringLiteral("pallet.xml")); }
    ImExportDialog *open(const char *button) const
    {
        pages.field<QPushButton>(button)->click();
        files->answer({file()});
        auto *dialog = pages.center.findChild<ImExportDialog *>();
        EXPECT_NE(dialog, nullptr);
        dialog->openFile();
        return dialog;
    }
    void press(ImExportDialog *dialog, const char *button) const
    {
        dialog->findChild<QAbstractButton *>(QLatin1String(button))->click();
    }
    QStringList shown() const
    {
        QStringList names;
        const QAbstractItemModel *model = pages.field<QListView>("lstRecipes")->model();
        for (int row = 0; row < model->rowCount(); ++row)
            names << model->index(row, 0).data().toString();
        return names;
    }
    /// That of the list; the page has others.
    MessageBar *message() const
    {
        return pages.field<QListView>("lstRecipes")->parentWidget()->findChild<MessageBar *>();
    }
    /// The product's length of the recipe that the set-up page shows.
    double openLength() const { return pages.setup->stack()->getDouble("product_cfg.product.length"); }

    Pages pages;
    QTemporaryDir folder;
    std::unique_ptr<ScriptedFiles> files = std::make_unique<ScriptedFiles>();
    ScriptedPresenter presenter;
};

TEST_F(HomeExchange, ExportsImportsAndTakesItBack)
{
    press(open("btnExport"), "btnOk");
    EXPECT_TRUE(message()->text().startsWith(QStringLiteral("2 recipes were written to ") + file()));
    EXPECT_TRUE(QFile::exists(file()));
    const orba::Node before = palx::stacksNode()->node();
    press(open("btnImport"), "btnOk");
    EXPECT_EQ(shown(), (QStringList{"A", "B", "A1", "B1"}));
    EXPECT_EQ(message()->text(), QStringLiteral("Imported: 2 new recipes, 0 of them replace others."));
    pages.open("A1");
    ASSERT_NE(pages.setup->stack(), nullptr);
    presenter.answer(true);
    message()->findChild<QPushButton *>(QStringLiteral("btnAction"))->click();
    EXPECT_EQ(shown(), (QStringList{"A", "B"}));
    EXPECT_EQ(palx::stacksNode()->node(), before);
    EXPECT_EQ(pages.setup->stack(), nullptr); // its recipe went with the import
}

TEST_F(HomeExchange, TheSetUpPageFollowsARecipeThatIsReplaced)
{
    press(open("btnExport"), "btnOk");
    palx::getStack(QStringLiteral("A"))->set(nullptr, "product_cfg.product.length", 321.0);
    pages.open("A");
    ASSERT_EQ(pages.setup->stack(), palx::getStack(QStringLiteral("A")));
    ImExportDialog *dialog = open("btnImport");
    press(dialog, "optReplace");
    press(dialog, "btnOk");
    EXPECT_EQ(openLength(), 200); // another node by now
    presenter.answer(true);
    message()->findChild<QPushButton *>(QStringLiteral("btnAction"))->click();
    EXPECT_EQ(openLength(), 321);
}

} // namespace

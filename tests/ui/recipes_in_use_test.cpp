// Recipes that robot programs use: they know a recipe by its name while they stack it and by its place for the next pallet.

#include "project/rules/first_project.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_exchange.h"
#include "stack/recipe_file.h"
#include "support/scripted_files.h"
#include "ui/controller_dialog.h"
#include "ui/imexportdialog.h"
#include "ui/name_dialog.h"
#include "ui/page_fixture.h"
#include "ui/robot_cell.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "workstation/progress.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTemporaryDir>

namespace {

class RecipesInUseTest : public ::testing::Test
{
protected:
    RecipesInUseTest() : cell(stationIn(workspace))
    {
        m("nexo.setting")->set(nullptr, "workspace", workspace.path());
        EXPECT_EQ(palx::loadRecipeFiles(palx::pluginNode(),
                                        {QStringLiteral(PALX_SOURCE_DIR "/examples/global-cell.json")}),
                  QStringList());
        orba::ModuleObject *first = palx::stacksNode()->cmobj(0);
        first->set(nullptr, "name", QStringLiteral("First"));
        palx::copyStack(first, QStringLiteral("Used"));
        cell.presenter.answer(true);
        EXPECT_TRUE(palx::makeFirstProject("Line"));
        cell.settle();
        palx::saveAllToRC(false);
        cell.settle();
    }
    /// The left side uses its second recipe.
    void enableSecond(bool on)
    {
        palx::setValueOfPERSVar("palletIndexL", "1");
        palx::setValueOfPERSVar("enableStackL", on ? "1" : "0");
        cell.settle();
    }
    void runSecond()
    {
        enableSecond(true);
        EXPECT_TRUE(xservice()->set(nullptr, "program.run", orba::Node()).isOk());
        xservice()->set(nullptr, "program.speed", nodeFromJson(R"({"factor":100})"));
        cell.pass(0.3);
    }
    QString message()
    {
        return pages.field<QListView>("lstRecipes")->parentWidget()->findChild<MessageBar *>()->text();
    }
    void press(const char *recipe, const char *button)
    {
        pages.home->chooseRecipe(QString::fromUtf8(recipe));
        partOf<QPushButton>(*pages.home->wgt(), button)->click();
    }
    /// What the dialog says against the name; takes it when it says nothing.
    QString rename(const char *recipe, const char *name)
    {
        press(recipe, "btnRename");
        auto *dialog = pages.center.findChild<NameDialog *>();
        partOf<QLineEdit>(*dialog, "edtName")->setText(QString::fromUtf8(name));
        const QString reason = partOf<QLabel>(*dialog, "lblReason")->text();
        partOf<QPushButton>(*dialog, "btnOk")->click();
        delete dialog;
        return reason;
    }
    /// The names that the controller has.
    static QString held()
    {
        const XReply reply = xservice()->get(nullptr, "pallet.get.list");
        QStringList names;
        for (int i = 0; i < reply.value.size(); ++i)
            names << reply.value.at(i)->getString(u"name");
        return names.join(' ');
    }
    static QString names()
    {
        QStringList names;
        for (const orba::ModuleObject *stack : palx::stacksNode()->cmobjs())
            names << stack->getString("name");
        return names.join(' ');
    }
    /// That the page has heard what the controller holds.
    bool isCompared(const char *sign)
    {
        const auto *button = partOf<QPushButton>(*pages.home->wgt(), "btnController");
        return waitUntil([&] { return button->text() == QString::fromUtf8(sign); });
    }

    QTemporaryDir workspace;
    RobotCell cell;
    Pages pages;
};

} // namespace

TEST_F(RecipesInUseTest, TheControllerLearnsANewName)
{
    ASSERT_TRUE(isCompared("= 3"));
    EXPECT_EQ(rename("Used", "Crates"), "");
    EXPECT_EQ(held(), "First Cell right Crates");
    EXPECT_TRUE(isCompared("= 3"));
}

TEST_F(RecipesInUseTest, KeepTheirNameAndPlaceWhileProgramsRunAndProductsLieThere)
{
    ASSERT_TRUE(isCompared("= 3"));
    runSecond();
    const QString running = "The left pallet is stacked with the recipe \"Used\"";
    for (const char *recipe : {"Used", "First"}) { // the second one would come to the first place
        press(recipe, "btnDelete");
        EXPECT_TRUE(message().startsWith(running)) << qPrintable(message());
    }
    EXPECT_EQ(rename("Used", "Crates"),
              running + ". Disable the side and let its pallet end, or stop the program!");
    EXPECT_EQ(names(), "First Cell right Used");
    pages.open("First", OpenRecipe::Pallet);
    EXPECT_FALSE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    const auto *notice = pages.setup->wgt()->findChild<MessageBar *>();
    EXPECT_EQ(notice->text(), "");
    pages.open("Used", OpenRecipe::Pallet);
    EXPECT_TRUE(notice->text().startsWith("This recipe is being stacked.")) << qPrintable(notice->text());

    cell.pass(1); // a product is set down
    EXPECT_GT(m("nexo.cell.pallets.#0")->getInt("count"), 0);
    EXPECT_TRUE(xservice()->set(nullptr, "program.stop", orba::Node()).isOk());
    enableSecond(false);
    EXPECT_EQ(rename("Used", "Crates"), "Products of the recipe \"Used\" lie on the left pallet!");
    EXPECT_FALSE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    pages.open("First", OpenRecipe::Pallet);
    EXPECT_TRUE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    EXPECT_EQ(rename("First", "Other"), "");
    EXPECT_EQ(held(), "Other Cell right Used");
}

TEST_F(RecipesInUseTest, ImportsLeaveThemToTheSidesThatUseThem)
{
    const QString file = QDir(workspace.path()).filePath("recipes.xml");
    palx::NoProgress nobody;
    const orba::Node prototype =
        *palx::templateStackOf(palx::stacksNode()->node(), palx::pluginNode()->node());
    ASSERT_TRUE(
        palx::writeExchangeFile(
            palx::makeTempList(palx::stacksNode()->node(), &prototype, {true, false, false}), file, nobody)
            .error.isEmpty());
    const ScriptedFiles files({{file}, {file}});
    const auto replaceFirst = [&] {
        press("Used", "btnImport");
        auto *dialog = pages.center.findChild<ImExportDialog *>();
        dialog->openFile();
        partOf<QRadioButton>(*dialog, "optReplace")->click();
        partOf<QPushButton>(*dialog, "btnOk")->click();
        const QString said = partOf<MessageBar>(*dialog, "message")->text();
        delete dialog;
        cell.settle();
        return said;
    };
    enableSecond(true);
    EXPECT_TRUE(replaceFirst().startsWith("The left pallet is stacked"));
    EXPECT_EQ(names(), "First Cell right Used");
    enableSecond(false);
    replaceFirst(); // which stands last then
    EXPECT_EQ(held(), "Cell right Used First");
    EXPECT_EQ(RobotCell::variable("palletIndexL"), 0);
    cell.presenter.answer(true);
    partOf<QPushButton>(*pages.field<QListView>("lstRecipes")->parentWidget()->findChild<MessageBar *>(),
                        "btnAction")
        ->click();
    cell.settle();
    EXPECT_EQ(held(), "First Cell right Used");
    EXPECT_EQ(RobotCell::variable("palletIndexL"), 1);
}

TEST_F(RecipesInUseTest, ProgramsThatRunGetNoListInAnotherOrder)
{
    orba::Node between = palx::stacksNode()->cmobj(0)->node();
    between.ensure(u"name")->setString(QStringLiteral("Between"));
    palx::restoreStack(palx::stacksNode(), {between, 1});
    ASSERT_TRUE(isCompared("\u2260 3"));
    runSecond();
    const auto push =
        [&] { // opened each time: only one dialog is open, and the page asks where work broke off
            press("First", "btnController");
            const auto *dialog = pages.center.findChild<ControllerDialog *>();
            partOf<QPushButton>(*dialog, "btnPush")->click();
            return partOf<MessageBar>(*dialog, "message")->text();
        };
    EXPECT_TRUE(push().startsWith("Recipes would get other places")) << qPrintable(push());
    EXPECT_EQ(held(), "First Cell right Used");
    EXPECT_TRUE(xservice()->set(nullptr, "program.stop", orba::Node()).isOk());
    cell.settle();
    EXPECT_EQ(push(), "The controller took all 4 recipes.");
    EXPECT_EQ(held(), "First Between Cell right Used");
}

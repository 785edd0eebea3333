// Recipes that robot programs use: they know a recipe by its name while they stack it and by its place for the next pallet.

#include "project/rules/first_project.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_file.h"
#include "ui/controller_dialog.h"
#include "ui/name_dialog.h"
#include "ui/page_fixture.h"
#include "ui/robot_cell.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
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
    static controller::StationOptions stationIn(const QTemporaryDir &folder)
    {
        controller::StationOptions options;
        options.workspaceFolder = folder.path();
        return options;
    }
    /// The left side stacks its second recipe.
    void runSecond()
    {
        palx::setValueOfPERSVar("palletIndexL", "1");
        palx::setValueOfPERSVar("enableStackL", "1");
        cell.settle();
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
    EXPECT_EQ(held(), "First Crates Cell right");
    EXPECT_TRUE(isCompared("= 3"));
}

TEST_F(RecipesInUseTest, KeepTheirNameAndPlaceWhileProgramsRunAndProductsLieThere)
{
    ASSERT_TRUE(isCompared("= 3"));
    runSecond();
    const char *running = "Programs run with the recipe \"Used\"";
    for (const char *recipe : {"Used", "First"}) { // the second one would come to the first place
        press(recipe, "btnDelete");
        EXPECT_TRUE(message().startsWith(running)) << qPrintable(message());
    }
    EXPECT_EQ(rename("Used", "Crates"), QString::fromUtf8(running) + ". Stop them first!");
    EXPECT_EQ(names(), "First Used Cell right");
    pages.open("First", OpenRecipe::Pallet);
    EXPECT_FALSE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    const auto *notice = pages.setup->wgt()->findChild<MessageBar *>();
    EXPECT_EQ(notice->text(), "");
    pages.open("Used", OpenRecipe::Pallet);
    EXPECT_TRUE(notice->text().startsWith("This recipe is being stacked.")) << qPrintable(notice->text());

    cell.pass(1); // a product is set down
    EXPECT_GT(m("nexo.cell.pallets.#0")->getInt("count"), 0);
    EXPECT_TRUE(xservice()->set(nullptr, "program.stop", orba::Node()).isOk());
    cell.settle();
    EXPECT_EQ(rename("Used", "Crates"), "Products of the recipe \"Used\" lie on the left pallet!");
    EXPECT_FALSE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    pages.open("First", OpenRecipe::Pallet);
    EXPECT_TRUE(pages.field<QComboBox>("cmbPosition")->isEnabled());
    EXPECT_EQ(rename("First", "Other"), "");
    EXPECT_EQ(held(), "Other Used Cell right");
}

TEST_F(RecipesInUseTest, ProgramsThatRunGetNoListInAnotherOrder)
{
    palx::copyStack(palx::stacksNode()->cmobj(0), QStringLiteral("Between"));
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
    EXPECT_EQ(held(), "First Used Cell right");
    EXPECT_TRUE(xservice()->set(nullptr, "program.stop", orba::Node()).isOk());
    cell.settle();
    EXPECT_EQ(push(), "The controller took all 4 recipes.");
    EXPECT_EQ(held(), "First Between Used Cell right");
}

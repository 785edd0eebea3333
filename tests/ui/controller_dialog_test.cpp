#include "ui/controller_dialog.h"

#include "ui/page_fixture.h"
#include "workstation/controller_recipes.h"
#include "workstation/recipe_controller.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

using palx::ControllerRecipes;

namespace {

class ControllerDialogTest : public RecipeControllerTest
{
protected:
    void SetUp() override
    {
        RecipeControllerTest::SetUp();
        addRecipe("A");
        addRecipe("B");
        recipes = std::make_unique<ControllerRecipes>();
    }
    void TearDown() override
    {
        dialog.reset();
        recipes.reset();
        RecipeControllerTest::TearDown();
    }
    void openDialog()
    {
        dialog = std::make_unique<ControllerDialog>(recipes.get());
        dialog->show();
    }
    template <typename T> T *child(const char *name) const { return partOf<T>(*dialog, name); }
    void click(const char *button) const { child<QPushButton>(button)->click(); }
    bool isOn(const char *button) const { return child<QPushButton>(button)->isEnabled(); }
    QString text(const char *label) const { return child<QLabel>(label)->text(); }
    QString look(const char *name) const { return child<QWidget>(name)->property("state").toString(); }
    QString message() const { return child<MessageBar>("message")->text(); }
    /// The rows of the table.
    QStringList rows() const
    {
        const QAbstractItemModel *model = child<QTableView>("tblRecipes")->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            texts.append(cells.join(QLatin1Char('|')));
        }
        return texts;
    }
    bool becomes(const QStringList &wanted)
    {
        return waitUntil([&] { return rows() == wanted; });
    }
    static QString utf8(const char *text) { return QString::fromUtf8(text); }

    std::unique_ptr<ControllerRecipes> recipes;
    std::unique_ptr<ControllerDialog> dialog;
};

} // namespace

TEST_F(ControllerDialogTest, SendsEverythingWithOnePressAndShowsTheResult)
{
    openLink();
    openDialog();
    ASSERT_TRUE(becomes(
        {utf8("1|A|1 places, 1 layers|–|Missing there"), utf8("2|B|1 places, 1 layers|–|Missing there")}));
    EXPECT_EQ(text("lblState"), "2 of 2 recipes differ. Send everything to make the controller's the same.");
    EXPECT_EQ(look("lblState"), "attention");
    click("btnPush");
    EXPECT_EQ(message(), "The controller took all 2 recipes.");
    EXPECT_EQ(held.size(), 2);
    ASSERT_TRUE(becomes({utf8("1|A|1 places, 1 layers|1 places, 1 layers|The same"),
                         utf8("2|B|1 places, 1 layers|1 places, 1 layers|The same")}));
    EXPECT_EQ(text("lblState"), "The controller holds all 2 recipes as they are here.");
    EXPECT_EQ(look("lblState"), "running");

    palx::stacksNode()->cmobj(0)->remove();
    ASSERT_TRUE(becomes({utf8("1|B|1 places, 1 layers|1 places, 1 layers|At place 2"),
                         utf8("–|A|–|1 places, 1 layers|Only there")}));

    refusal = QStringLiteral("entry 1: \"B\" is no recipe");
    click("btnPush");
    EXPECT_EQ(message(), QStringLiteral("The recipes were not taken: ") + refusal);
    EXPECT_EQ(look("message"), "fault");
    ASSERT_TRUE(waitUntil([&] { return recipes->state() == ControllerRecipes::State::Unknown; }));
    EXPECT_EQ(look("lblState"), "fault");
    EXPECT_TRUE(text("lblState").contains(refusal)) << text("lblState");
}

TEST_F(ControllerDialogTest, WithoutAConnectionItSaysSoAndComesBackByItself)
{
    openDialog();
    for (const bool isBack : {false, true}) {
        EXPECT_FALSE(isOn("btnPush"));
        EXPECT_FALSE(isOn("btnTool"));
        EXPECT_EQ(text("lblReason"), "Not possible without a connection.");
        EXPECT_TRUE(text("lblState").startsWith("There is no connection")) << text("lblState");
        EXPECT_EQ(look("lblState"), "stopped");
        EXPECT_EQ(rows(), QStringList());
        if (isBack)
            controller.openWay();
        else
            openLink();
        settle();
        EXPECT_TRUE(isOn("btnPush"));
        EXPECT_EQ(text("lblReason"), QString());
        ASSERT_TRUE(waitUntil([&] { return rows().size() == 2; }));
        controller.breakWay("pulled");
        settle();
    }
}

TEST_F(ControllerDialogTest, SwitchesTheSharedToolOrARecipesOwn)
{
    palx::pluginNode()->c("global_tool")->copyFrom(nodeFromJson(R"([{"name": "PalletTool1"}])"));
    for (const char *name : {"A", "B"})
        palx::getStack(QLatin1String(name))
            ->c("toolset")
            ->copyFrom(nodeFromJson(R"({"end": {"trans": [0.0, 0.0, 0.3]}})"));
    addRecipe("Shared");
    openLink();
    openDialog();
    auto *choice = child<QComboBox>("cmbTool");
    EXPECT_EQ(choice->itemText(0), "Shared tool PalletTool1");
    EXPECT_EQ(choice->count(), 3) << "a recipe without a tool of its own would bring zeros";
    EXPECT_EQ(text("lblTool"), "Active tool: unknown");
    click("btnTool");
    EXPECT_EQ(message(), "The controller works with the tool PalletTool1.");
    EXPECT_EQ(text("lblTool"), "Active tool: PalletTool1");
    choice->setCurrentIndex(2);
    click("btnTool");
    EXPECT_EQ(message(), "The controller works with the tool B.");
    EXPECT_EQ(controller.seen.back().payload.getString(u"name"), "B");
    addRecipe("C");
    EXPECT_EQ(choice->currentText(), "Tool of B"); // the choice is kept

    toolResult = -1;
    choice->setCurrentIndex(1);
    click("btnTool");
    EXPECT_TRUE(message().startsWith("The controller did not take the tool.")) << message();
    EXPECT_EQ(text("lblTool"), "Active tool: B");
}

// The line while it produces, against a controller whose time the test turns.

#include "ui/run_frame.h"

#include "project/rules/first_project.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/run_recovery.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_file.h"
#include "ui/form_checks.h"
#include "ui/page_fixture.h"
#include "ui/robot_cell.h"
#include "ui/run_side_card.h"
#include "ui/stack_view.h"
#include "ui/start_dialog.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTemporaryDir>

using palx::LineSide;

namespace {

class RunPageTest : public ::testing::Test
{
protected:
    RunPageTest() : cell(stationIn(workspace))
    {
        m("nexo.setting")->set(nullptr, "workspace", workspace.path());
        EXPECT_EQ(palx::loadRecipeFiles(palx::pluginNode(),
                                        {QStringLiteral(PALX_SOURCE_DIR "/examples/global-cell.json")}),
                  QStringList());
    }
    /// Also what the page does at its next turn of the loop.
    void settle()
    {
        cell.settle();
        QCoreApplication::processEvents();
        cell.settle(); // what the page asked for then
    }
    void makeProject()
    {
        cell.presenter.answer(true);
        ASSERT_TRUE(palx::makeFirstProject("Line"));
        settle();
    }
    void openPage()
    {
        page = std::make_unique<RunFrame>(nullptr);
        page->resize(1000, 640);
        page->show();
        settle();
    }
    template <typename T> T *child(LineSide side, const char *name) const
    {
        return partOf<T>(*page->card(side), name);
    }
    QString text(LineSide side, const char *label) const { return child<QLabel>(side, label)->text(); }
    QString look(LineSide side) const
    {
        return child<QLabel>(side, "lblState")->property("state").toString();
    }
    void press(LineSide side, const char *button)
    {
        child<QPushButton>(side, button)->click();
        settle();
    }
    QString message() const { return page->findChild<MessageBar *>()->text(); }
    bool ask(const char *request, const char *payload = "null")
    {
        const XReply reply = xservice()->set(nullptr, QLatin1String(request), nodeFromJson(payload));
        settle();
        return reply.isOk();
    }
    /// Simulated seconds, at a hundred times the speed of real ones.
    void run(double seconds)
    {
        ask("program.speed", R"({"factor":100})");
        cell.pass(seconds / 100);
        settle();
    }
    static qint64 variable(const QString &name) { return RobotCell::variable(name); }
    StartDialog *dialog() const
    {
        for (StartDialog *found : page->findChildren<StartDialog *>())
            if (found->isVisible())
                return found;
        return nullptr;
    }

    /// That the gripper is empty and the piece the right one.
    void confirm(StartDialog *asked)
    {
        partOf<QCheckBox>(*asked, "chkClear")->click();
        EXPECT_EQ(partOf<QLabel>(*asked, "lblReason")->text(), QString());
        partOf<QPushButton>(*asked, "btnOk")->click();
        settle();
    }

    QTemporaryDir workspace;
    RobotCell cell;
    PluginTree tree;
    std::unique_ptr<RunFrame> page;
};

} // namespace

TEST_F(RunPageTest, EnablesASideAndShowsItsStackGrowUntilThePalletIsFull)
{
    makeProject();
    openPage();
    press(LineSide::Left, "btnEnable");
    EXPECT_EQ(variable("enableStackL"), 1);
    EXPECT_EQ(child<QPushButton>(LineSide::Left, "btnEnable")->text(), "Disable");
    EXPECT_EQ(text(LineSide::Left, "lblState"), "Enabled, no program runs");
    ASSERT_TRUE(ask("program.run"));
    run(60);
    EXPECT_EQ(text(LineSide::Left, "lblState"), "Stacking");
    EXPECT_EQ(look(LineSide::Left), "running");
    const qint64 piled = variable("palletCountL");
    EXPECT_GT(piled, 3);
    EXPECT_EQ(text(LineSide::Left, "lblBoxes"), QStringLiteral("%1 / 45").arg(piled));
    EXPECT_EQ(child<StackView>(LineSide::Left, "view")->drawing().pieces(), piled);
    EXPECT_EQ(text(LineSide::Right, "lblState"), "Disabled");
    ASSERT_TRUE(ask("program.pause"));
    EXPECT_TRUE(text(LineSide::Left, "lblState").startsWith("Paused")) << text(LineSide::Left, "lblState");
    EXPECT_EQ(look(LineSide::Left), "attention");
    ASSERT_TRUE(ask("program.run"));
    run(340);
    EXPECT_EQ(variable("flagL"), 1);
    EXPECT_TRUE(text(LineSide::Left, "lblState").startsWith("Pallet full"));
    EXPECT_EQ(text(LineSide::Left, "lblPallets"), "1");
    EXPECT_EQ(child<StackView>(LineSide::Left, "view")->drawing().pieces(), 45);
    cell.presenter.answer(false);
    press(LineSide::Left, "btnReset");
    EXPECT_EQ(variable("totalPalletsL"), 1);
    cell.presenter.answer(true);
    press(LineSide::Left, "btnReset");
    EXPECT_EQ(text(LineSide::Left, "lblPallets"), "0");
}

TEST_F(RunPageTest, StartsAtAnyPieceThatTheRecipeHas)
{
    makeProject();
    openPage();
    press(LineSide::Right, "btnStartAt");
    StartDialog *start = dialog();
    ASSERT_NE(start, nullptr);
    auto *layer = partOf<QSpinBox>(*start, "spnLayer");
    auto *piece = partOf<QSpinBox>(*start, "spnPiece");
    EXPECT_EQ(layer->maximum(), 5);
    EXPECT_EQ(piece->maximum(), 9);
    layer->setValue(3);
    piece->setValue(5);
    EXPECT_EQ(partOf<QLabel>(*start, "lblCount")->text(), "22 of 45 boxes lie on the pallet.");
    EXPECT_EQ(start->findChild<StackView *>()->drawing().pieces(), 22);
    partOf<QPushButton>(*start, "btnOk")->click();
    settle();
    EXPECT_EQ(text(LineSide::Right, "lblLayer"), "3 / 5");
    EXPECT_EQ(text(LineSide::Right, "lblPiece"), "5 / 9");
    EXPECT_EQ(variable("currentLayerL"), 1);
}

TEST_F(RunPageTest, AfterAPowerCutAsksForAnEmptyGripperAndThePiece)
{
    makeProject();
    openPage();
    press(LineSide::Left, "btnEnable");
    ASSERT_TRUE(ask("program.run"));
    run(60);
    EXPECT_EQ(dialog(), nullptr);
    ASSERT_TRUE(ask("cell.fault", R"({"name":"power-cut","on":true})"));
    ASSERT_TRUE(ask("cell.fault", R"({"name":"power-cut","on":false})"));
    StartDialog *asked = dialog();
    ASSERT_NE(asked, nullptr) << "by itself";
    EXPECT_FALSE(partOf<QPushButton>(*asked, "btnOk")->isEnabled());
    asked->reject();
    settle();
    EXPECT_EQ(dialog(), nullptr) << "once";
    EXPECT_EQ(variable("enableStackL"), 0) << "held back";
    EXPECT_TRUE(text(LineSide::Left, "lblState").startsWith("Broken off"));
    EXPECT_EQ(look(LineSide::Left), "attention");

    press(LineSide::Left, "btnEnable");
    EXPECT_EQ(variable("enableStackL"), 0) << "not before the piece is confirmed";
    asked = dialog();
    ASSERT_NE(asked, nullptr);
    const palx::PalletPiece lying = palx::currentRunRecovery().sides[0].lying;
    EXPECT_EQ(asked->piece(), lying);
    confirm(asked);
    EXPECT_EQ(variable("enableStackL"), 1);
    EXPECT_EQ(variable("currentLayerL"), lying.layer);
    EXPECT_EQ(variable("layerCountL"), lying.piece);
    EXPECT_FALSE(palx::needsConfirmation(palx::currentRunRecovery(), 0));
    ASSERT_TRUE(ask("program.run"));
    run(400);
    EXPECT_EQ(m("nexo.cell.pallets.#0.count")->getInt(), 45);
    EXPECT_EQ(m("nexo.cell.violation_count")->getInt(), 0);
}

TEST_F(RunPageTest, ASideThatBreaksOffUnseenIsHeldBackAndComesBackWithTheConfirmation)
{
    makeProject();
    openPage();
    press(LineSide::Left, "btnEnable");
    ASSERT_TRUE(ask("program.run"));
    run(60);
    page->hide();
    ASSERT_TRUE(ask("program.stop"));
    EXPECT_EQ(variable("enableStackL"), 0);
    EXPECT_EQ(dialog(), nullptr);
    ASSERT_TRUE(ask("cell.gripper", R"({"action":"clear"})"));
    page->show();
    settle();
    StartDialog *asked = dialog();
    ASSERT_NE(asked, nullptr);
    confirm(asked);
    EXPECT_EQ(variable("enableStackL"), 1) << "as before";
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(RunPageTest, ShowsThatItWaitsAndWhyItWasRefused)
{
    makeProject();
    openPage();
    cell.carrier->lose(true);
    child<QPushButton>(LineSide::Left, "btnEnable")->click();
    EXPECT_EQ(message(), "Waiting for the controller.");
    EXPECT_FALSE(child<QPushButton>(LineSide::Left, "btnEnable")->isEnabled());
    EXPECT_TRUE(child<QPushButton>(LineSide::Right, "btnEnable")->isEnabled());
    cell.carrier->cut(std::string("the cable is pulled"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(message().startsWith("The controller did not take it")) << message();
    EXPECT_EQ(text(LineSide::Left, "lblState"), "No controller");
    EXPECT_FALSE(child<QPushButton>(LineSide::Left, "btnEnable")->isEnabled());
    EXPECT_EQ(variable("enableStackL"), 0);
}

TEST_F(RunPageTest, ChangesAreTakenTogetherOrNotAtAll)
{
    makeProject();
    QStringList answers;
    QObject context;
    const auto change = [&](const palx::VariableChanges &changes) {
        palx::setValueOfPERSVar(changes, &context, [&answers](const XReply &reply) {
            answers.append(reply.isOk() ? QStringLiteral("done") : reply.error);
        });
        settle();
    };
    change({{QStringLiteral("currentLayerL"), "2"}, {QStringLiteral("cycleTimeL"), "1.5"}});
    change({{QStringLiteral("currentLayerL"), "3"}, {QStringLiteral("noSuch"), "1"}});
    change({{QStringLiteral("currentLayerL"), "4"}, {QStringLiteral("clock0"), "1"}});
    EXPECT_EQ(answers,
              QStringList({QStringLiteral("done"), QStringLiteral("The project has no such variable: noSuch"),
                           QStringLiteral("The project has no such variable: clock0")}));
    EXPECT_EQ(variable("currentLayerL"), 2);
}

TEST_F(RunPageTest, AnotherRecipeIsTakenOnlyWhileTheSideIsDisabled)
{
    palx::copyStack(palx::stacksNode()->cmobj(0), "Second");
    makeProject();
    openPage();
    auto *combo = child<QComboBox>(LineSide::Left, "cmbRecipe");
    ASSERT_EQ(combo->count(), 2);
    const auto choose = [&](int index) {
        combo->setCurrentIndex(index);
        Q_EMIT combo->activated(index);
        settle();
    };
    choose(1);
    EXPECT_EQ(variable("palletIndexL"), 1);
    EXPECT_EQ(combo->currentText(), "Second");
    press(LineSide::Left, "btnEnable");
    choose(0);
    EXPECT_EQ(variable("palletIndexL"), 1);
    EXPECT_EQ(combo->currentText(), "Second");
    EXPECT_TRUE(message().contains("Disable it")) << message();
}

/// As after a panel that ended between an edit and the generation that follows it.
TEST_F(RunPageTest, ARecipeIsStackedOnlyWithPointsOfItsOwnAndLiftsByItsProduct)
{
    makeProject();
    openPage();
    orba::ModuleObject *stack = palx::stacksNode()->cmobj(0);
    stack->set(nullptr, "product_cfg.product.height", stack->getDouble("product_cfg.product.height") + 50);
    press(LineSide::Left, "btnEnable");
    EXPECT_TRUE(message().contains("Generate them again")) << message();
    EXPECT_EQ(variable("enableStackL"), 0);
    const orba::Node patterns = stack->c("patterns")->node();
    for (orba::ModuleObject *pattern : stack->c("patterns")->cmobjs())
        pattern->copyFrom(nodeFromJson("[]"));
    palx::genPointsAndSaveToRC(stack, false);
    press(LineSide::Left, "btnEnable");
    EXPECT_TRUE(message().startsWith("The recipe lays no products")) << message();
    stack->c("patterns")->copyFrom(patterns);
    palx::genPointsAndSaveToRC(stack, false);
    press(LineSide::Left, "btnEnable");
    EXPECT_EQ(variable("enableStackL"), 1);
    EXPECT_EQ(variable("boxHeightL"), stack->getInt("product_cfg.product.height"));
}

TEST_F(RunPageTest, FitsASmallPanelAndAFingerInLongLanguages)
{
    const Looks looks;
    const LongLanguage language;
    makeProject();
    openPage();
    const QSize room(812, 490); // of 1024 x 640 beside navigator, strip and tabs
    page->resize(room);
    settle();
    EXPECT_EQ(page->size(), room);
    expectReadable(page.get(), "run ");
    expectTouchable(page.get(), "run ");
    expectNamed(page.get(), "run ");
    EXPECT_GE(child<QPushButton>(LineSide::Left, "btnEnable")->height(), 96);
    press(LineSide::Left, "btnStartAt");
    ASSERT_NE(dialog(), nullptr);
    expectReadable(dialog(), "start ");
    expectTouchable(dialog(), "start ");
    expectNamed(dialog(), "start ");
    EXPECT_LE(dialog()->width(), 1024);
    EXPECT_LE(dialog()->height(), 640);
}

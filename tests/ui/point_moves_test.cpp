// Points of the set-up page as the robot's: taught where it stands, and driven to.

#include "controller/cell/recipe_plan.h"
#include "support/recipe_tree.h"
#include "ui/page_fixture.h"
#include "ui/point_group.h"
#include "ui/robot_cell.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

namespace {

class PointMoves : public ::testing::Test
{
protected:
    void SetUp() override { cell.settle(); }
    PointGroup *group(const char *name) { return pages.field<PointGroup>(name); }
    QPushButton *button(const char *groupName, const char *name)
    {
        return group(groupName)->findChild<QPushButton *>(QLatin1String(name));
    }
    orba::ModuleObject *stack() { return pages.stack(); }
    MoveToDialog *dialog() { return pages.center.findChild<MoveToDialog *>(); }

    RobotCell cell;
    OpenRecipe pages{OpenRecipe::Waypoints};
};

} // namespace

TEST_F(PointMoves, APointIsTaughtWhereTheRobotStandsAndTakenBack)
{
    const orba::Node before = stack()->r("put.put_p")->node();
    button("grpPutPoint", "btnTeach")->click();
    const orba::Node taught = stack()->r("put.put_p")->node();
    const orba::Node &robot = cell.robot();
    for (const char *list : {"trans", "rot"})
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(taught.find(QString::fromLatin1(list))->number(i),
                      robot.find(u"pose")->find(QString::fromLatin1(list))->number(i));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(taught.find(u"near")->number(i), robot.find(u"joints")->number(i));
    EXPECT_EQ(group("grpPutPoint")->findChild<QDoubleSpinBox *>("dspnX")->value(), 1350);
    EXPECT_EQ(pages.message(), QString());
    pages.setup->undo();
    EXPECT_EQ(stack()->r("put.put_p")->node(), before);
    pages.setup->redo();
    EXPECT_EQ(stack()->r("put.put_p")->node(), taught);

    button("grpGetEnter", "btnClear")->click();
    EXPECT_FALSE(button("grpGetEnter", "btnMove")->isEnabled());
    button("grpGetEnter", "btnTeach")->click();
    EXPECT_EQ(stack()->r("get.enter_p")->node(), taught);
    EXPECT_TRUE(button("grpGetEnter", "btnMove")->isEnabled());
}

TEST_F(PointMoves, NothingIsTaughtWhileTheRobotsPlaceIsNotCertain)
{
    const orba::Node before = stack()->node();
    orba::ModuleObject move("move");
    move.copyFrom(nodeFromJson(R"({"type": "j", "motion": {"toolset": "no use", "speed": 500},
        "point": {"trans": [1.2, 0.4, 0.8], "rot": [3.141592653589793, 0.0, 0.0]}})"));
    ASSERT_TRUE(xservice()->execCommand(nullptr, "motion.start", &move).isOk());
    cell.settle();
    button("grpPutPoint", "btnTeach")->click();
    EXPECT_EQ(pages.message(), "The robot is moving. Teach the point when it stands.");
    cell.carrier->cut("the cable is pulled");
    cell.settle();
    button("grpPutPoint", "btnTeach")->click();
    EXPECT_EQ(pages.message(), "The controller is not connected: where the robot stands is not known.");
    EXPECT_EQ(stack()->node(), before);
}

TEST_F(PointMoves, AGeneratedPointIsDrivenToFromTheTable)
{
    pages.setup->showFrame(OpenRecipe::Points);
    RecipeFrame *frame = pages.setup->frames().at(OpenRecipe::Points);
    auto *move = frame->findChild<QPushButton *>("btnMove");
    auto *table = frame->findChild<QTableView *>("tblPoints");
    frame->findChild<QPushButton *>("btnGenerate")->click();
    EXPECT_FALSE(move->isEnabled());
    const int row = 5 + 6 + 3; // behind the pick side and the first product: "put_p" of the second
    table->selectRow(row);
    EXPECT_TRUE(move->isEnabled());
    move->click();
    cell.settle();
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->findChild<QLabel *>("lblPoseTarget0")->text(),
              QString::number(1000 * stack()->getDouble("points.put.#0.#1.put_p.trans.#0"), 'f', 1));
    table->clearSelection();
    EXPECT_FALSE(move->isEnabled());
    delete dialog();
}

/// Taught and driven to with the recipe's tool on its pallet, as programs go there.
TEST_F(PointMoves, APointOnACalibratedPalletIsWhereProgramsGo)
{
    applyPaths(stack()->node(), R"({
        "calibrate.p1": {"trans": [1.0, 0.2, 0.1], "rot": [3.141592653589793, 0.0, 0.0]},
        "calibrate.p2": {"trans": [1.2, 0.2, 0.1], "rot": [3.141592653589793, 0.0, 0.0]},
        "calibrate.p3": {"trans": [1.0, 0.4, 0.12], "rot": [3.141592653589793, 0.0, 0.0]},
        "toolset": {"end": {"trans": [0.01, 0.0, 0.2], "rot": [0.0, 0.0, 0.5]}}})");
    pages.setup->pageDateRefresh();
    pages.setup->showFrame(OpenRecipe::Points);
    RecipeFrame *frame = pages.setup->frames().at(OpenRecipe::Points);
    frame->findChild<QPushButton *>("btnGenerate")->click();
    frame->findChild<QTableView *>("tblPoints")->selectRow(5 + 3); // "put_p" of the first product
    frame->findChild<QPushButton *>("btnMove")->click();
    cell.settle();
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->findChild<QLabel *>("lblPose")->text(), "Tool in the pallet's frame");
    dialog()->findChild<QPushButton *>("btnJoint")->click();
    dialog()->move()->look();
    cell.settle();
    ASSERT_EQ(dialog()->move()->state(), palx::HeldMove::State::Ready)
        << qPrintable(dialog()->move()->reason());
    dialog()->move()->press();
    cell.settle();
    cell.hold(dialog()->move(), 8); // a link on which nothing is said is soon taken for broken
    ASSERT_EQ(dialog()->move()->state(), palx::HeldMove::State::Arrived)
        << qPrintable(dialog()->move()->reason());
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(dialog()->findChild<QLabel *>(QStringLiteral("lblPosePresent%1").arg(i))->text(),
                  dialog()->findChild<QLabel *>(QStringLiteral("lblPoseTarget%1").arg(i))->text());

    const controller::cell::RecipePlan plan(std::make_shared<orba::Node>(stack()->node()));
    controller::Pose there;
    QString why;
    ASSERT_TRUE(plan.point(controller::script::PalletPoint::Wobj, 1, 1, &there, &why)) << qPrintable(why);
    const ix::calc::Pose flange = ix::calc::toPose(*cell.robot().find(u"pose"));
    EXPECT_TRUE((flange * *plan.tool()).isApprox(there, 1e-4)) << "the controller's own idea of it";

    const orba::Node wished = stack()->r("points.put.#0.#0.put_p")->node();
    pages.setup->showFrame(OpenRecipe::Waypoints);
    button("grpPutPoint", "btnTeach")->click();
    const orba::Node &taught = stack()->r("put.put_p")->node();
    EXPECT_TRUE(ix::calc::toPose(taught).isApprox(ix::calc::toPose(wished), 1e-3))
        << "back to the same numbers";
    delete dialog();
}

// Points of the set-up page as the robot's: taught where it stands, and driven to.

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

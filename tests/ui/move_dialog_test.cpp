#include "ui/movetodialog.h"

#include "ui/hold_button.h"
#include "ui/move_to_point.h"
#include "ui/page_fixture.h"
#include "ui/robot_cell.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

using palx::HeldMove;
using State = HeldMove::State;

namespace {

constexpr const char *kNear = R"({"trans": [1.2, 0.6, 0.5], "rot": [3.141592653589793, 0.0, 0.0]})";
constexpr const char *kFar = R"({"trans": [2.6, 0.6, 0.5], "rot": [3.141592653589793, 0.0, 0.0]})";
/// Behind the robot: no straight way leads there.
constexpr const char *kBehind = R"({"trans": [-1.2, 0.3, 0.8], "rot": [3.141592653589793, 0.0, 0.0]})";

class MoveDialogTest : public ::testing::Test
{
public:
    MoveDialogTest() { page.resize(1024, 640); }
    ~MoveDialogTest() override { delete dialog; }

    void open(const char *json = kNear)
    {
        point.copyFrom(nodeFromJson(json));
        palx::moveToPoint(&point, &button);
        dialog = page.findChild<MoveToDialog *>();
        ASSERT_TRUE(dialog);
        QApplication::setActiveWindow(dialog);
        cell.settle();
    }
    template <typename T> T *child(const char *name) { return dialog->findChild<T *>(QLatin1String(name)); }
    QString text(const char *name) { return child<QLabel>(name)->text(); }
    QString look() { return child<QLabel>("lblStatus")->property("state").toString(); }
    HoldButton *hold() { return child<HoldButton>("btnHold"); }
    HeldMove *move() { return dialog->move(); }
    void press()
    {
        hold()->setFocus();
        QTest::mousePress(hold(), Qt::LeftButton);
        cell.settle();
    }
    void release()
    {
        QTest::mouseRelease(hold(), Qt::LeftButton);
        cell.settle();
    }
    /// Pressed, and on its way.
    void start()
    {
        press();
        cell.hold(move(), 0.5);
        ASSERT_EQ(move()->state(), State::Moving);
    }

    RobotCell cell;
    QWidget page;
    QWidget button{&page};
    orba::ModuleObject point{QStringLiteral("put_p")};
    QPointer<MoveToDialog> dialog;
};

} // namespace

TEST_F(MoveDialogTest, ShowsWhereItGoesAndWhereItIs)
{
    open();
    EXPECT_EQ(text("lblTitle"), "Move to the point: Place");
    const char *const target[] = {"1200.0", "600.0", "500.0", "180.00", "0.00", "0.00"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(text(qPrintable(QStringLiteral("lblPoseTarget%1").arg(i))), QLatin1String(target[i])) << i;
    EXPECT_EQ(text("lblPosePresent0"), "1350.0");
    EXPECT_EQ(text("lblPosePresent2"), "1550.0");
    EXPECT_EQ(text("lblJointPresent4"), "90.00");
    EXPECT_EQ(text("lblJointTarget0"), "26.57"); // atan2(0.6, 1.2)
    EXPECT_FALSE(child<QLabel>("lblJointTarget6")->isVisible()) << "this robot has six";
    EXPECT_TRUE(text("lblStatus").startsWith("Hold the button to move. The way takes ")) << text("lblStatus");
    EXPECT_FALSE(cell.isMoving());
}

TEST_F(MoveDialogTest, MovesWhileTheButtonIsHeldAndArrives)
{
    open();
    start();
    EXPECT_TRUE(cell.isMoving());
    EXPECT_EQ(look(), "manual");
    EXPECT_GT(child<QProgressBar>("prgMove")->value(), 0);
    EXPECT_FALSE(child<QSpinBox>("spnSpeed")->isEnabled());
    cell.hold(move(), 3);
    EXPECT_EQ(move()->state(), State::Arrived);
    EXPECT_EQ(text("lblStatus"), "Arrived.");
    EXPECT_EQ(look(), "running");
    EXPECT_EQ(child<QProgressBar>("prgMove")->value(), child<QProgressBar>("prgMove")->maximum());
    for (int i = 0; i < 6; ++i)
        for (const char *what : {"Pose", "Joint"})
            EXPECT_EQ(text(qPrintable(QStringLiteral("lbl%1Present%2").arg(QLatin1String(what)).arg(i))),
                      text(qPrintable(QStringLiteral("lbl%1Target%2").arg(QLatin1String(what)).arg(i))));
    EXPECT_TRUE(cell.robot().getBool(u"arrived"));
}

// ---------------------------------------------------------------- the end of a hold

namespace {

struct End
{
    const char *name;
    void (*end)(MoveDialogTest &test);
};

void PrintTo(const End &end, std::ostream *out)
{
    *out << end.name;
}

const End kEnds[] = {
    {"Released", [](MoveDialogTest &test) { test.release(); }},
    {"Focus", [](MoveDialogTest &test) { test.child<QPushButton>("btnClose")->setFocus(); }},
    {"AnotherWindow", [](MoveDialogTest &) { QApplication::setActiveWindow(nullptr); }},
    {"Hidden", [](MoveDialogTest &test) { test.dialog->hide(); }},
    {"Closed", [](MoveDialogTest &test) { test.child<QPushButton>("btnClose")->click(); }},
    {"ClosedByItsWindow", [](MoveDialogTest &test) { test.dialog->close(); }},
    {"AnotherOne", [](MoveDialogTest &test) { palx::moveToPoint(&test.point, &test.button); }},
    {"Gone", [](MoveDialogTest &test) { delete test.dialog; }},
    {"Cleared",
     [](MoveDialogTest &test) {
         test.point.copyFrom(orba::Node());
         test.move()->look();
     }},
};

class MoveDialogEnd : public MoveDialogTest, public ::testing::WithParamInterface<End>
{
};

} // namespace

TEST_P(MoveDialogEnd, StopsAtOnce)
{
    open();
    ASSERT_NO_FATAL_FAILURE(start());
    GetParam().end(*this);
    cell.settle();
    cell.pass(0.28); // from 1000 mm/s it brakes for 250 ms, and nobody could miss a sign before 300
    EXPECT_FALSE(cell.isMoving());
    EXPECT_EQ(cell.robot().getString(u"fault"), QString());
    EXPECT_FALSE(cell.robot().getBool(u"arrived"));
    EXPECT_GT(cell.robot().getDouble(u"progress"), 0);
}

INSTANTIATE_TEST_SUITE_P(Ways, MoveDialogEnd, ::testing::ValuesIn(kEnds),
                         [](const auto &end) { return std::string(end.param.name); });

TEST_F(MoveDialogTest, AHeldUpPanelStopsTheRobotAndSaysSo)
{
    open();
    start();
    cell.carrier->pass(0.7); // no events are handled, so no sign leaves
    cell.settle();
    EXPECT_EQ(move()->state(), State::Stopped);
    EXPECT_EQ(text("lblStatus"), "stopped: no sign from the held button for 300 ms");
    EXPECT_EQ(look(), "fault");
    EXPECT_FALSE(hold()->isHeld()) << "the finger must lift first";
    cell.hold(move(), 0.5);
    EXPECT_FALSE(cell.isMoving());
}

TEST_F(MoveDialogTest, ALostLinkIsShownAndMovesNothingWhenItIsBack)
{
    open();
    start();
    cell.carrier->cut("the cable is pulled");
    cell.settle();
    EXPECT_EQ(move()->state(), State::NoLink);
    EXPECT_TRUE(text("lblStatus").contains("the cable is pulled")) << text("lblStatus");
    EXPECT_EQ(look(), "fault");
    EXPECT_FALSE(hold()->isEnabled());
    EXPECT_FALSE(hold()->isHeld());
    EXPECT_EQ(text("lblPosePresent0"), "\u2013") << "it moves on, nobody knows how far";
    cell.pass(0.3);
    EXPECT_FALSE(cell.isMoving());
    cell.carrier->restore();
    cell.settle();
    EXPECT_EQ(move()->state(), State::Ready);
    EXPECT_TRUE(hold()->isEnabled());
    cell.hold(move(), 0.5);
    EXPECT_FALSE(cell.isMoving());
}

TEST_F(MoveDialogTest, ShowsARefusalBeforeAnythingIsPressed)
{
    open(kFar);
    EXPECT_EQ(move()->state(), State::Refused);
    EXPECT_TRUE(text("lblStatus").startsWith("The controller refuses the move: ")) << text("lblStatus");
    EXPECT_TRUE(text("lblStatus").contains("out of reach")) << text("lblStatus");
    EXPECT_EQ(look(), "fault");
    EXPECT_EQ(text("lblJointTarget0"), "\u2013");
    press();
    EXPECT_EQ(move()->state(), State::Refused);
    EXPECT_FALSE(hold()->isHeld());
    EXPECT_FALSE(cell.isMoving());
}

TEST_F(MoveDialogTest, ChoosesTheWayAndTheSpeed)
{
    open(kBehind);
    EXPECT_TRUE(child<QPushButton>("btnLinear")->isChecked());
    EXPECT_EQ(move()->state(), State::Refused) << "straight through the robot itself";
    child<QPushButton>("btnJoint")->click();
    move()->look();
    cell.settle();
    EXPECT_EQ(move()->state(), State::Ready);
    const double seconds = move()->seconds();
    auto *speed = child<QSpinBox>("spnSpeed");
    EXPECT_EQ(speed->value(), 1000);
    enter(speed, 100);
    move()->look();
    cell.settle();
    EXPECT_GT(move()->seconds(), 2 * seconds);
    enter(speed, 1000000);
    EXPECT_EQ(speed->value(), 2500);
    press();
    cell.hold(move(), 10);
    EXPECT_EQ(move()->state(), State::Arrived);
}

TEST_F(MoveDialogTest, ThereIsNoMoveToAPointThatNobodyTaught)
{
    open("null");
    EXPECT_EQ(move()->state(), State::Untaught);
    EXPECT_EQ(text("lblStatus"), "Nobody has taught this point.");
    EXPECT_FALSE(hold()->isEnabled());
    point.copyFrom(nodeFromJson(kNear));
    move()->look();
    cell.settle();
    EXPECT_EQ(move()->state(), State::Ready);
}

TEST_F(MoveDialogTest, ClosesWithItsPoint)
{
    orba::ModuleObject tree;
    orba::ModuleObject *taught = tree.ensure("get_p");
    taught->copyFrom(nodeFromJson(kNear));
    palx::moveToPoint(taught, &page);
    dialog = page.findChild<MoveToDialog *>();
    QApplication::setActiveWindow(dialog);
    cell.settle();
    ASSERT_NO_FATAL_FAILURE(start());
    taught->remove();
    EXPECT_FALSE(dialog && dialog->isVisible());
    cell.pass(0.28);
    EXPECT_FALSE(cell.isMoving());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(dialog);
}

#include "controller/robot.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using namespace controller;
using orba::Node;

namespace {

constexpr const char *kMove = R"({"type":"l","motion":{"toolset":"no use","speed":500},
    "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0],"near":[0,0,0,0,0,0],"conf":[]}})";

constexpr const char *kOtherMove = R"({"type":"j","motion":{"toolset":"no use","speed":500},
    "point":{"trans":[1.2,-0.4,0.8],"rot":[3.1,0,0]}})";
constexpr const char *kFarMove = R"({"type":"j","motion":{"toolset":"no use","speed":500},
    "point":{"trans":[9,0,0.7],"rot":[0,0,0]}})";
constexpr const char *kTooFar =
    "out of reach: the wrist would stand 8702 mm from the shoulder, the arm reaches 2100 mm";

class RobotTest : public ::testing::Test
{
protected:
    QString start(const char *request = kMove) { return robot.start(nodeFromJson(request), tools); }
    /// Time passes, with a sign from the button every 100 ms while it is held.
    void run(double seconds, bool isHeld = true, double factor = 1)
    {
        double sinceSign = 0;
        for (double t = 0; t < seconds - 1e-9; t += 0.005) {
            sinceSign += 0.005;
            if (isHeld && sinceSign >= 0.1) {
                robot.hold();
                sinceSign = 0;
            }
            robot.advance(0.005, factor);
        }
    }
    Node state() const
    {
        Node node;
        robot.publish(&node);
        return node;
    }

    Robot robot;
    Toolsets tools;
};

} // namespace

TEST_F(RobotTest, StopsWhenTheButtonGivesNoSignInRealTime)
{
    for (const double factor : {1.0, 0.1}) { // of speed, not of the button's time
        start();
        run(0.295, false, factor);
        EXPECT_TRUE(robot.isMoving());
        EXPECT_EQ(QString(), state().getString(u"fault")) << "0.3 s are allowed";
        run(0.01, false, factor);
        EXPECT_EQ("stopped: no sign from the held button for 300 ms", state().getString(u"fault"));
        run(0.2, false); // brakes from 500 mm/s with 4 m/s^2 in 0.125 s
        EXPECT_FALSE(robot.isMoving());
        EXPECT_FALSE(state().getBool(u"arrived"));
    }
}

TEST_F(RobotTest, AMoveThatWaitsIsGivenUpWhenTheButtonGivesNoSign)
{
    start(R"({"type":"l","motion":{"toolset":"no use","speed":2500},
        "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0]}})");
    run(0.3);
    robot.stop(QString());
    start();
    run(0.305, false, 0.1); // the arm, ten times slower, brakes still
    EXPECT_TRUE(robot.isMoving());
    run(5, true, 1);
    EXPECT_EQ(1, state().getInt(u"move"));
    EXPECT_FALSE(robot.isMoving());
}

TEST_F(RobotTest, BrakesWithoutAJump)
{
    start();
    run(0.6);
    Vector last = robot.pose().translation();
    double lastSpeed = 0.5;
    robot.stop(QString());
    double way = 0;
    for (int i = 0; i < 400 && robot.isMoving(); ++i) {
        robot.advance(0.001, 1);
        const double speed = (robot.pose().translation() - last).norm() / 0.001;
        EXPECT_LE(speed, lastSpeed + 1e-6);
        EXPECT_GE(speed, lastSpeed - 0.001 * MotionPlan::kMaxAcceleration - 1e-4);
        way += speed * 0.001;
        lastSpeed = speed;
        last = robot.pose().translation();
    }
    EXPECT_FALSE(robot.isMoving());
    EXPECT_NEAR(0.5 * 0.5 / (2 * MotionPlan::kMaxAcceleration), way, 1e-3);
    EXPECT_EQ(QString(), state().getString(u"fault")) << "the operator wanted it";
}

TEST_F(RobotTest, TakesTheNextMoveWhileItBrakes)
{
    start();
    run(0.6);
    robot.stop(QString());
    EXPECT_EQ(QString(), start()) << "released and pressed again";
    EXPECT_EQ(1, state().getInt(u"move")) << "the first one still brakes";
    EXPECT_EQ(2, robot.lastMove());
    run(5);
    EXPECT_TRUE(state().getBool(u"arrived"));
    EXPECT_EQ(2, state().getInt(u"move"));

    start(kOtherMove);
    run(0.6);
    robot.stop(QString());
    start();
    robot.stop(QString()); // and released once more: nothing may start later
    run(5);
    EXPECT_FALSE(state().getBool(u"arrived"));
    EXPECT_FALSE(robot.isMoving());
}

TEST_F(RobotTest, AnotherMoveEndsTheOneThatRunsHoweverItIsHeld)
{
    start();
    run(0.6);
    EXPECT_EQ("the robot is moving already", start());
    run(1); // held, but by whom?
    EXPECT_FALSE(robot.isMoving());
    EXPECT_FALSE(state().getBool(u"arrived"));
    EXPECT_EQ("stopped: another move was asked for", state().getString(u"fault"));

    start();
    run(0.3);
    robot.stop(QString());
    start(); // waits until the robot stands
    EXPECT_EQ("the robot is moving already", start());
    run(1);
    EXPECT_FALSE(robot.isMoving()) << "and the one that waited is given up";
    EXPECT_EQ(2, state().getInt(u"move"));
}

TEST_F(RobotTest, ReckonsAMoveWithoutMovingAndRefusesWithoutChange)
{
    const Node before = state();
    Node result;
    EXPECT_EQ(QString(), robot.check(nodeFromJson(kMove), tools, &result));
    EXPECT_EQ(before, state());
    start();
    run(result.getDouble(u"seconds") - 0.1);
    EXPECT_TRUE(robot.isMoving());
    run(0.2);
    const Node end = state();
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(end.find(u"joints")->number(i), result.find(u"joints")->number(i), 1e-9);
    EXPECT_EQ(kTooFar, robot.check(nodeFromJson(kFarMove), tools, &result));
    EXPECT_EQ(kTooFar, start(kFarMove));
    EXPECT_EQ(end, state());
}

TEST_F(RobotTest, RefusesWhatIsNoMove)
{
    const struct
    {
        const char *json, *why;
    } cases[] = {
        {R"({"type":"l","motion":{"speed":0}})", "\"motion.speed\" is no speed: 0"},
        {R"({"type":"l","motion":{"speed":9},"point":{"trans":[1]}})",
         "in \"point\": \"trans\" is no list of 3 numbers"},
        {R"({"type":"l","motion":{"speed":9,"toolset":"grip"},"point":{"trans":[1,0,1],"rot":[0,0,0]}})",
         "there is no toolset \"grip\""},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(QLatin1String(c.why), start(c.json)) << c.json;
        EXPECT_FALSE(robot.isMoving());
    }
}

TEST_F(RobotTest, MovesTheToolsPointInTheToolsFrame)
{
    EXPECT_EQ(QString(), tools.activate(nodeFromJson(R"({"name":"grip",
        "end":{"trans":[0,0,0.3],"rot":[0,0,0]},"ref":{"trans":[1,0,0.5],"rot":[0,0,1.5707963267948966]},
        "load":{"mass":12,"cog":[0,0,0],"inertia":[0,0,0]}})")));
    EXPECT_EQ("grip", tools.active());
    start(R"({"type":"l","motion":{"toolset":"grip","speed":900},
        "point":{"trans":[0.4,-0.2,0.1],"rot":[3.141592653589793,0,0]}})");
    run(5);
    const Vector flange = robot.pose().translation();
    EXPECT_NEAR(1.2, flange.x(), 1e-9); // 1 + 0.2: the frame is turned by 90 degrees
    EXPECT_NEAR(0.4, flange.y(), 1e-9);
    EXPECT_NEAR(0.9, flange.z(), 1e-9); // the tool hangs 0.3 below the flange
}

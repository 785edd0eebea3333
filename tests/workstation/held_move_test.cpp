#include "workstation/held_move.h"

#include "link/fake_controller.h"

#include <gtest/gtest.h>

#include <memory>

using palx::HeldMove;
using State = HeldMove::State;

namespace {

/// A held move on a link whose controller answers as the test says: at once, or when the test sends the answer.
class HeldMoveTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        motion.copyFrom(nodeFromJson(R"({"type": "l", "motion": {"toolset": "no use", "speed": 1000}})"));
        point.copyFrom(nodeFromJson(R"({"trans": [1.2, 0.4, 0.8], "rot": [3.1, 0.0, 0.0]})"));
        onRequest([this](const host::LinkMessage &message) { answer(message); });
    }
    void make()
    {
        move = std::make_unique<HeldMove>(&motion, &point);
        settle();
    }
    /// Everything up to a running move with number 4.
    void start()
    {
        connectLink();
        make();
        press();
        ASSERT_EQ(move->state(), State::Moving);
        requests.clear();
    }
    void press()
    {
        move->press();
        settle();
    }
    void robot(const char *json)
    {
        controller.update("nexo.robot", json);
        settle();
    }
    void reply(const host::LinkMessage &request, int status, const char *json, const char *text = "")
    {
        host::LinkMessage sent;
        sent.kind = FakeController::Kind::Reply;
        sent.id = request.id;
        sent.status = status;
        sent.text = QString::fromLatin1(text);
        sent.payload = nodeFromJson(json);
        controller.send(sent);
    }
    void answer(const host::LinkMessage &message)
    {
        const QString name = message.name.section(QLatin1Char('.'), 1);
        requests.append(name);
        last[name] = message;
        if (name == QLatin1String("check") && answersChecks)
            reply(message, host::status::kDone,
                  R"({"joints": [0.1, 0.2, 0.3, 0.4, 0.5, 0.6], "seconds": 2.5})");
        if (name == QLatin1String("start") && answersStarts) {
            controller.update("nexo.robot", kMoving);
            reply(message, host::status::kDone, "4");
        }
    }

    static constexpr const char *kMoving =
        R"({"moving": true, "arrived": false, "progress": 0.25, "fault": "", "move": 4})";
    static constexpr const char *kThere =
        R"({"moving": false, "arrived": true, "progress": 1.0, "fault": "", "move": 4})";

    orba::ModuleObject motion;
    orba::ModuleObject point;
    QStringList requests; ///< of moves, without "motion."
    QHash<QString, host::LinkMessage> last;
    bool answersChecks = true;
    bool answersStarts = true;
    std::unique_ptr<HeldMove> move; // ends before its link
};

} // namespace

TEST_F(HeldMoveTest, AsksForTheWayBeforeAnythingMoves)
{
    connectLink();
    answersChecks = false;
    make();
    EXPECT_EQ(requests, QStringList("check"));
    EXPECT_EQ(last["check"].payload,
              nodeFromJson(R"({"type": "l", "motion": {"toolset": "no use", "speed": 1000},
                               "point": {"trans": [1.2, 0.4, 0.8], "rot": [3.1, 0.0, 0.0]}})"));
    EXPECT_EQ(move->state(), State::Ready);
    EXPECT_TRUE(move->targetJoints().isNull());
    reply(last["check"], host::status::kDone, R"({"joints": [0.1, 0.2], "seconds": 2.5})");
    settle();
    EXPECT_EQ(move->targetJoints(), nodeFromJson("[0.1, 0.2]"));
    EXPECT_EQ(move->seconds(), 2.5);

    motion.set(nullptr, "type", QStringLiteral("j"));
    rest();
    settle();
    const host::LinkMessage old = last["check"];
    point.set(nullptr, "trans.#0", 9.0);
    move->look();
    reply(last["check"], host::status::kRefused, "null", "out of reach");
    reply(old, host::status::kDone, R"({"joints": [0.1, 0.2], "seconds": 2.5})");
    settle();
    EXPECT_EQ(move->state(), State::Refused) << "an answer to an old question is none";
    EXPECT_EQ(move->reason(), QStringLiteral("out of reach"));
    EXPECT_TRUE(move->targetJoints().isNull());
    EXPECT_EQ(takeRecords(), QStringList()) << "a no is an answer";
}

TEST_F(HeldMoveTest, HoldsAndStopsInThatOrder)
{
    start();
    move->giveSign();
    move->giveSign();
    move->release();
    move->release();
    move->giveSign(); // of a timer that was late
    EXPECT_EQ(requests, (QStringList{"hold", "hold", "stop"}));
    EXPECT_EQ(move->state(), State::Stopping);
    EXPECT_EQ(move->progress(), 0.25);
    requests.clear();
    robot(R"({"moving": false, "arrived": false, "progress": 0.3, "fault": "", "move": 4})");
    EXPECT_EQ(move->state(), State::Stopped);
    EXPECT_EQ(move->reason(), QString());
    EXPECT_EQ(requests, QStringList("check")) << "from here the way is another one";
}

TEST_F(HeldMoveTest, TheRobotsOwnEndEndsTheHold)
{
    const struct
    {
        const char *robot;
        State state;
        const char *reason;
    } cases[] = {
        {kThere, State::Arrived, ""},
        {R"({"moving": false, "arrived": false, "progress": 0.3, "fault": "stopped: a door is open", "move": 4})",
         State::Stopped, "stopped: a door is open"}};
    connectLink();
    for (const auto &each : cases) {
        make();
        press();
        ASSERT_EQ(move->state(), State::Moving);
        requests.clear();
        robot(each.robot);
        EXPECT_EQ(move->state(), each.state);
        EXPECT_EQ(move->reason(), QLatin1String(each.reason));
        EXPECT_FALSE(move->isHeld());
        move->giveSign();
        EXPECT_FALSE(requests.contains("hold"));
    }
}

TEST_F(HeldMoveTest, TheArrivalOfAnotherMoveIsNotItsOwn)
{
    connectLink();
    robot(R"({"moving": false, "arrived": true, "progress": 1.0, "fault": "", "move": 3})");
    make();
    EXPECT_EQ(move->state(), State::Ready);
    EXPECT_EQ(move->progress(), 0);
    answersStarts = false;
    press();
    reply(last["start"], host::status::kDone, "4"); // what came before the answer was lost
    settle();
    EXPECT_EQ(move->state(), State::Stopped);
    EXPECT_FALSE(move->isHeld());
    EXPECT_TRUE(requests.contains("stop"));
}

TEST_F(HeldMoveTest, WaitsWhileTheRobotBrakesBeforeIt)
{
    connectLink();
    make();
    answersStarts = false;
    robot(R"({"moving": true, "arrived": false, "progress": 0.5, "fault": "", "move": 3})");
    press();
    reply(last["start"], host::status::kDone, "4");
    settle();
    EXPECT_EQ(move->state(), State::Moving);
    EXPECT_EQ(move->progress(), 0);
    robot(kMoving);
    EXPECT_EQ(move->state(), State::Moving);
    robot(kThere);
    EXPECT_EQ(move->state(), State::Arrived);
}

TEST_F(HeldMoveTest, ARefusedStartEndsTheHold)
{
    connectLink();
    make();
    answersStarts = false;
    press();
    EXPECT_EQ(move->state(), State::Starting);
    reply(last["start"], host::status::kRefused, "null", "the robot is moving already");
    settle();
    EXPECT_EQ(move->state(), State::Refused);
    EXPECT_EQ(move->reason(), QStringLiteral("the robot is moving already"));
    EXPECT_FALSE(move->isHeld());
    EXPECT_EQ(requests, (QStringList{"check", "start", "stop"}));
}

TEST_F(HeldMoveTest, AnAnswerToAnEarlierPressIsNotTakenForThisOne)
{
    connectLink();
    make();
    answersStarts = false;
    press();
    const host::LinkMessage first = last["start"];
    move->release();
    press();
    EXPECT_EQ(requests, (QStringList{"check", "start", "stop", "start"}));
    reply(first, host::status::kRefused, "null", "too late");
    settle();
    EXPECT_EQ(move->state(), State::Starting);
    EXPECT_TRUE(move->isHeld());
    controller.update("nexo.robot", kMoving);
    reply(last["start"], host::status::kDone, "4");
    settle();
    EXPECT_EQ(move->state(), State::Moving);
}

TEST_F(HeldMoveTest, AStartWithoutAnAnswerEndsTheHoldInTime)
{
    connectLink();
    make();
    answersStarts = false;
    press();
    controller.ping();
    settle();
    pass(1599);
    EXPECT_EQ(move->state(), State::Starting);
    pass(1);
    EXPECT_EQ(move->state(), State::Stopped);
    EXPECT_NE(move->reason(), QString());
    EXPECT_EQ(requests.last(), QStringLiteral("stop"));
}

TEST_F(HeldMoveTest, ReleasedBeforeTheAnswerItNeverCountsAsHeld)
{
    connectLink();
    make();
    answersStarts = false;
    press();
    move->release();
    EXPECT_EQ(requests, (QStringList{"check", "start", "stop"}));
    controller.update("nexo.robot", kMoving);
    reply(last["start"], host::status::kDone, "4");
    settle();
    EXPECT_EQ(move->state(), State::Stopping);
    robot(R"({"moving": false, "arrived": false, "progress": 0.0, "fault": "", "move": 4})");
    EXPECT_EQ(move->state(), State::Stopped);
    EXPECT_FALSE(requests.contains("hold"));
}

TEST_F(HeldMoveTest, ALostLinkEndsTheHoldAndItsReturnStartsNothing)
{
    start();
    controller.breakWay("pulled");
    settle();
    EXPECT_EQ(move->state(), State::NoLink);
    EXPECT_FALSE(move->isHeld());
    EXPECT_TRUE(move->targetJoints().isNull());
    press();
    EXPECT_FALSE(move->isHeld()) << "there is nothing to hold";
    controller.openWay();
    settle();
    EXPECT_EQ(move->state(), State::Ready);
    EXPECT_EQ(move->targetJoints().size(), 6);
    EXPECT_EQ(requests, QStringList("check"));
}

TEST_F(HeldMoveTest, AnotherTargetStopsTheMove)
{
    start();
    point.set(nullptr, "trans.#2", 0.9);
    move->look();
    EXPECT_FALSE(move->isHeld());
    EXPECT_EQ(requests, (QStringList{"stop", "check"}));
    settle();
    EXPECT_EQ(move->state(), State::Ready);
}

TEST_F(HeldMoveTest, ItsEndStopsTheMove)
{
    start();
    move.reset();
    EXPECT_EQ(requests, QStringList("stop"));
    robot(kThere); // nobody listens any more
}

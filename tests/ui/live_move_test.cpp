// The button, its signs and the controller in real time, over ways that take theirs.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "support/test_support.h"
#include "workstation/held_move.h"

#include <gtest/gtest.h>

using palx::HeldMove;

namespace {

struct SlowWay
{
    const char *name;
    int delayMs; ///< each way
};

void PrintTo(const SlowWay &way, std::ostream *out)
{
    *out << way.name;
}

class LiveMove : public ::testing::TestWithParam<SlowWay>
{
protected:
    LiveMove()
    {
        EXPECT_TRUE(host::buildGlobalNodes());
        controller::Faults faults;
        faults.delay = std::chrono::milliseconds(GetParam().delayMs);
        auto robot = std::make_shared<controller::Controller>(controller::StationOptions());
        link = std::make_unique<host::ControllerLink>(std::make_unique<controller::FaultyCarrier>(
            std::make_unique<controller::InProcessCarrier>(robot), faults));
        link->open();
        motion.copyFrom(nodeFromJson(R"({"type": "l", "motion": {"toolset": "no use", "speed": 250}})"));
        point.copyFrom(nodeFromJson(R"({"trans": [1.35, 0.2, 1.45], "rot": [3.141592653589793, 0.0, 0.0]})"));
    }
    ~LiveMove() override
    {
        link.reset();
        host::removeGlobalNodes();
    }

    ScriptedPresenter presenter;
    std::unique_ptr<host::ControllerLink> link;
    orba::ModuleObject motion;
    orba::ModuleObject point;
};

} // namespace

/// On a machine that is busy with other things a sign may come too late; then the robot has stopped, and the operator
/// presses again.
TEST_P(LiveMove, ArrivesByHolding)
{
    HeldMove move(&motion, &point);
    ASSERT_TRUE(
        waitUntil([&move] { return move.state() == HeldMove::State::Ready && move.seconds() > 0.8; }));
    int presses = 0;
    for (; presses < 20 && move.state() != HeldMove::State::Arrived; ++presses) {
        move.press();
        ASSERT_TRUE(waitUntil([&move] { return !move.isHeld(); }, 20000));
    }
    EXPECT_EQ(move.state(), HeldMove::State::Arrived) << presses << " times: " << move.reason();
    EXPECT_EQ(m("nexo.robot")->getDouble("progress"), 1);
}

TEST_P(LiveMove, StopsAfterTheRelease)
{
    HeldMove move(&motion, &point);
    ASSERT_TRUE(
        waitUntil([&move] { return move.state() == HeldMove::State::Ready && move.seconds() > 0.8; }));
    move.press();
    ASSERT_TRUE(waitUntil([&move] { return move.progress() > 0; }));
    move.release();
    EXPECT_FALSE(move.isHeld());
    ASSERT_TRUE(waitUntil([&move] { return !move.isUnderWay(); }));
    EXPECT_EQ(move.state(), HeldMove::State::Stopped);
    EXPECT_FALSE(m("nexo.robot")->getBool("moving"));
}

INSTANTIATE_TEST_SUITE_P(Ways, LiveMove, ::testing::Values(SlowWay{"Quick", 0}, SlowWay{"Slow", 250}),
                         [](const auto &way) { return std::string(way.param.name); });

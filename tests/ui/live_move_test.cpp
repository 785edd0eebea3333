// The button, its signs and the controller in real time, over a way that takes its own.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "support/test_support.h"
#include "workstation/held_move.h"

#include <gtest/gtest.h>

using palx::HeldMove;

/// On a machine that is busy with other things a sign may come too late; then the robot has stopped, and the operator
/// presses again.
TEST(LiveMove, StopsAfterTheReleaseAndArrivesByHolding)
{
    const ScriptedPresenter presenter;
    ASSERT_TRUE(host::buildGlobalNodes());
    controller::Faults faults;
    faults.delay = std::chrono::milliseconds(250); // each way
    auto link = std::make_unique<host::ControllerLink>(std::make_unique<controller::FaultyCarrier>(
        std::make_unique<controller::InProcessCarrier>(
            std::make_shared<controller::Controller>(controller::StationOptions())),
        faults));
    link->open();
    orba::ModuleObject motion;
    motion.copyFrom(nodeFromJson(R"({"type": "l", "motion": {"toolset": "no use", "speed": 250}})"));
    orba::ModuleObject point;
    point.copyFrom(nodeFromJson(R"({"trans": [1.35, 0.2, 1.45], "rot": [3.141592653589793, 0.0, 0.0]})"));
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
        int presses = 0;
        for (; presses < 20 && move.state() != HeldMove::State::Arrived; ++presses) {
            move.press();
            ASSERT_TRUE(waitUntil([&move] { return !move.isHeld(); }, 20000));
        }
        EXPECT_EQ(move.state(), HeldMove::State::Arrived) << presses << " times: " << move.reason();
        EXPECT_EQ(m("nexo.robot")->getDouble("progress"), 1);
    }
    link.reset();
    host::removeGlobalNodes();
}

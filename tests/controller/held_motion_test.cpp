// The held button over the link: whose signs count, and what stops the robot.

#include "core_panel.h"

#include <gtest/gtest.h>

#include <memory>

using namespace controller;
using orba::Node;
using Kind = host::LinkMessage::Kind;

namespace {

class HeldMotion : public ::testing::Test
{
protected:
    HeldMotion()
    {
        panel->hello();
        EXPECT_EQ(host::status::kDone, panel->request("motion.start", move).status);
        panel->wait(0.2);
    }
    Node robot() { return *core.station().tree().find(u"nexo.robot"); }
    bool isMoving() { return robot().getBool(u"moving"); }

    const Node move = nodeFromJson(R"({"type":"l","motion":{"toolset":"no use","speed":250},
        "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0]}})");
    Core core{StationOptions(), "run-1"};
    std::unique_ptr<CorePanel> panel = std::make_unique<CorePanel>(&core, 1);
};

} // namespace

TEST_F(HeldMotion, AStopWaitsForNoEdit)
{
    EXPECT_EQ(host::status::kBehind, panel->request("motion.hold", Node(), 7).status);
    EXPECT_EQ(host::status::kDone, panel->request("motion.stop", Node(), 7).status);
    panel->wait(0.2);
    EXPECT_FALSE(isMoving());
}

TEST_F(HeldMotion, ANewWayStopsItAndSignsOfTheOldOneCountForNothing)
{
    CorePanel again(&core, 2); // the same panel
    again.hello();
    EXPECT_EQ("stopped: the link to the panel is lost", again.tree.getString(u"nexo.robot.fault"));
    again.wait(0.2);
    EXPECT_FALSE(isMoving());
    again.request("motion.start", move);
    for (int i = 0; i < 4; ++i) {
        host::LinkMessage sign;
        sign.kind = Kind::Request;
        sign.name = "motion.hold";
        panel->send(sign);
        again.wait(0.1);
    }
    EXPECT_EQ("stopped: no sign from the held button for 300 ms", robot().getString(u"fault"));
}

TEST_F(HeldMotion, IsToldFiftyTimesASecond)
{
    panel->wait(0.05);
    panel->request("motion.hold");
    panel->wait(0.2);
    EXPECT_EQ(10, panel->updatePaths().count("nexo.robot"));
    EXPECT_GT(panel->tree.getDouble(u"nexo.robot.progress"), 0);
    panel->request("motion.stop");
    panel->wait(1);
    EXPECT_FALSE(panel->tree.getBool(u"nexo.robot.moving"));
    panel->wait(1);
    EXPECT_EQ(QStringList(), panel->updatePaths());
}

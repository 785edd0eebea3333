#pragma once

// What a controller with a robot must do alike over every way; instantiated like LinkConformance.

#include "link/conformance.h"

namespace conformance {

constexpr const char *kMove = R"({"type": "l", "motion": {"toolset": "no use", "speed": 100},
    "point": {"trans": [1.2, 0.4, 0.8], "rot": [3.141592653589793, 0.0, 0.0]}})";
constexpr const char *kFarMove = R"({"type": "j", "motion": {"toolset": "no use", "speed": 100},
    "point": {"trans": [9.0, 0.0, 0.7], "rot": [0.0, 0.0, 0.0]}})";

} // namespace conformance

class MotionConformance : public LinkConformance
{
protected:
    /// Follows the robot until it stands, and returns its state.
    static orba::Node whenItStands(RawPanel &panel)
    {
        orba::Node robot = conformance::stateAt(panel.greet("one"), "nexo.robot");
        while (robot.getBool(u"moving") && !HasFailure()) {
            const LinkMessage update = panel.next(Kind::Update);
            if (update.name == QLatin1String("nexo.robot"))
                robot = update.payload;
        }
        return robot;
    }
};

TEST_P(MotionConformance, AMoveIsReckonedWithoutMoving)
{
    RawPanel panel(side->carrier());
    const orba::Node before = conformance::stateAt(panel.greet("one"), "nexo.robot");
    const LinkMessage check = panel.ask("motion.check", conformance::kMove);
    EXPECT_EQ(check.status, host::status::kDone) << check.text;
    EXPECT_EQ(check.payload.find(u"joints")->size(), 6);
    EXPECT_GT(check.payload.getDouble(u"seconds"), 1);
    const LinkMessage refused = panel.ask("motion.check", conformance::kFarMove);
    EXPECT_EQ(refused.status, host::status::kRefused);
    EXPECT_TRUE(refused.text.startsWith(QStringLiteral("out of reach: "))) << refused.text;
    EXPECT_EQ(conformance::stateAt(panel.greet("one"), "nexo.robot"), before);
}

TEST_P(MotionConformance, AMoveIsStartedHeldAndStopped)
{
    RawPanel panel(side->carrier());
    panel.greet("one");
    const LinkMessage start = panel.ask("motion.start", conformance::kMove);
    ASSERT_EQ(start.status, host::status::kDone) << start.text;
    EXPECT_EQ(start.payload.toInt(), 1);
    for (double progress = 0; progress < 0.01 && !HasFailure();) {
        panel.ask("motion.hold");
        progress = panel.next(Kind::Update).payload.getDouble(u"progress");
    }
    panel.ask("motion.stop");
    const orba::Node robot = whenItStands(panel);
    EXPECT_EQ(robot.getInt(u"move"), 1);
    EXPECT_FALSE(robot.getBool(u"arrived"));
    EXPECT_LT(robot.getDouble(u"progress"), 1);
    EXPECT_EQ(panel.ask("motion.start", conformance::kFarMove).status, host::status::kRefused);
    EXPECT_EQ(panel.ask("motion.start", conformance::kMove).payload.toInt(), 2);
}

TEST_P(MotionConformance, AMoveEndsWithItsPanel)
{
    {
        RawPanel panel(side->carrier());
        panel.greet("one");
        ASSERT_EQ(panel.ask("motion.start", conformance::kMove).status, host::status::kDone);
    }
    RawPanel panel(side->carrier());
    const orba::Node robot = whenItStands(panel);
    EXPECT_FALSE(robot.getBool(u"arrived"));
    EXPECT_TRUE(robot.getString(u"fault").startsWith(QStringLiteral("stopped: ")))
        << robot.getString(u"fault");
}

#include "controller/cell/conveyor.h"
#include "controller/cell/gripper.h"
#include "controller/cell/signals.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <set>

using namespace controller;
using namespace controller::cell;

namespace {

/// Seconds until a product stands at the stop.
double arrival(Conveyor &belt)
{
    double time = 0;
    for (; !belt.hasProduct() && time < 60; time += 0.01)
        belt.advance(0.01, 1);
    return time;
}

Body box(double x, double y, double top)
{
    Body made;
    made.block.half = Vector(0.2, 0.15, 0.1);
    made.block.pose.translation() = Vector(x, y, top - 0.1);
    return made;
}

Pose toolAt(double x, double y, double z)
{
    return poseOf(Vector(x, y, z), Vector(kPi, 0, 0));
}

/// Events of so many seconds.
std::vector<Gripper::Event> run(Gripper &gripper, double seconds, bool isOn, bool canHold = true)
{
    std::vector<Gripper::Event> events;
    for (double t = 0; t < seconds - 1e-9; t += 0.01) {
        const Gripper::Event event = gripper.advance(0.01, isOn, canHold);
        if (event != Gripper::Event::None)
            events.push_back(event);
    }
    return events;
}

using Events = std::vector<Gripper::Event>;

} // namespace

TEST(Conveyor, BringsProductsAtDistancesThatVaryALittleAndAreKept)
{
    Conveyor belt(5);
    EXPECT_NEAR(Conveyor::kFirstAhead / Conveyor::kSpeed, arrival(belt), 0.02);
    std::set<int> times;
    for (int i = 0; i < 20; ++i) {
        belt.take(0.3);
        const double way = arrival(belt) * Conveyor::kSpeed;
        EXPECT_GE(way, 0.3 + Conveyor::kGap - 0.01);
        EXPECT_LE(way, 0.3 + Conveyor::kGap + Conveyor::kGapSpread + 0.01);
        times.insert(static_cast<int>(way * 1000));
    }
    EXPECT_GT(times.size(), 5u);
    const double ahead = belt.ahead();
    belt.advance(0.5, -1);
    EXPECT_GT(belt.ahead(), ahead);
    Conveyor other(99);
    other.restore(belt.seed(), belt.ahead());
    belt.take(0.3);
    other.take(0.3);
    EXPECT_EQ(belt.ahead(), other.ahead());
}

TEST(Gripper, HoldsAfterAMomentAndLetsGoAfterAMoment)
{
    Gripper gripper;
    EXPECT_EQ(Events{}, run(gripper, 0.19, true));
    EXPECT_EQ(Events{Gripper::Event::Grip}, run(gripper, 0.01, true));
    EXPECT_EQ(Events(2, Gripper::Event::Grip), run(gripper, 0.02, true)) << "as long as it holds nothing";
    gripper.grip(box(1, 0, 0.5), toolAt(1, 0, 0.5));
    EXPECT_TRUE(gripper.hasVacuum());
    EXPECT_EQ(Events{}, run(gripper, 1, true));
    EXPECT_EQ(Events{}, run(gripper, 0.09, false));
    EXPECT_TRUE(gripper.carries());
    EXPECT_EQ(Events{Gripper::Event::LetGo}, run(gripper, 0.02, false));
    gripper.letGo();
    EXPECT_EQ(Events{}, run(gripper, 1, false));
}

TEST(Gripper, WithoutVacuumGripsNothingAndDropsWhatItCarries)
{
    Gripper gripper;
    EXPECT_EQ(Events{}, run(gripper, 1, true, false));
    EXPECT_EQ(Events{Gripper::Event::Grip}, run(gripper, 0.01, true, true)) << "as soon as there is vacuum";
    gripper.grip(box(1, 0, 0.5), toolAt(1, 0, 0.5));
    EXPECT_EQ(Gripper::Event::LetGo, gripper.advance(0.01, true, false));
}

TEST(Gripper, TakesAProductAlongAsItLay)
{
    Gripper gripper;
    gripper.grip(box(1.01, 0.005, 0.499), toolAt(1, 0, 0.5));
    const Body carried = gripper.carriedAt(toolAt(0, 1, 1.5));
    EXPECT_NEAR(0, (carried.block.pose.translation() - Vector(0.01, 1.005, 1.399)).norm(), 1e-12);
}

TEST(Gripper, ReachesWhatIsUnderIt)
{
    const Block block = box(1, 0, 0.5).block;
    EXPECT_TRUE(Gripper::reaches(toolAt(1, 0, 0.5), block));
    EXPECT_TRUE(Gripper::reaches(toolAt(1.02, 0.02, 0.509), block));
    EXPECT_FALSE(Gripper::reaches(toolAt(1.02, 0.025, 0.5), block)) << "32 mm beside the middle";
    EXPECT_FALSE(Gripper::reaches(toolAt(1, 0, 0.511), block));
    EXPECT_FALSE(Gripper::reaches(toolAt(1, 0, 0.489), block));
}

TEST(Signals, TellEachChangeOnceAndEndPulses)
{
    Signals signals;
    QStringList told;
    signals.setListener([&told](bool isOutput, int index, bool on) {
        told.append(QString::fromStdString(script::signalName(isOutput, index)) +
                    (on ? QStringLiteral("+") : QStringLiteral("-")));
    });
    signals.setOutput(out::kSuction, true);
    signals.setOutput(out::kSuction, true);
    signals.setInput(in::kStart, true);
    signals.pulse(script::signalIndex(3, 3), 1);
    signals.pulse(script::signalIndex(3, 1), 2);
    EXPECT_TRUE(signals.hasPulses());
    signals.advance(1);
    signals.setOutput(script::signalIndex(3, 1), true); // ends the pulse, not the light
    signals.advance(2);
    EXPECT_FALSE(signals.hasPulses());
    EXPECT_TRUE(signals.output(script::signalIndex(3, 1)));
    signals.switchOutputsOff();
    EXPECT_EQ("DO2_6+ DI2_0+ DO3_3+ DO3_1+ DO3_3- DO2_6- DO3_1-", told.join(QLatin1Char(' ')));
}

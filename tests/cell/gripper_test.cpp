#include "controller/cell/gripper.h"

#include <gtest/gtest.h>

using namespace controller;
using namespace controller::cell;

namespace {

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

TEST(Gripper, HoldsAfterAMomentAndLetsGoAfterAMoment)
{
    Gripper gripper;
    EXPECT_EQ(Events{}, run(gripper, 0.19, true));
    EXPECT_EQ(Events{Gripper::Event::Grip}, run(gripper, 0.01, true));
    EXPECT_EQ(Events(2, Gripper::Event::Grip), run(gripper, 0.02, true)) << "as long as it holds nothing";
    gripper.grip(box(1.01, 0.005, 0.499), toolAt(1, 0, 0.5));
    EXPECT_TRUE(gripper.hasVacuum());
    const Body carried = gripper.carriedAt(toolAt(0, 1, 1.5)); // as it lay
    EXPECT_NEAR(0, (carried.block.pose.translation() - Vector(0.01, 1.005, 1.399)).norm(), 1e-12);
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

TEST(Gripper, ReachesWhatIsUnderIt)
{
    const Block block = box(1, 0, 0.5).block;
    EXPECT_TRUE(Gripper::reaches(toolAt(1, 0, 0.5), block));
    EXPECT_TRUE(Gripper::reaches(toolAt(1.02, 0.02, 0.509), block));
    EXPECT_FALSE(Gripper::reaches(toolAt(1.02, 0.025, 0.5), block)) << "32 mm beside the middle";
    EXPECT_FALSE(Gripper::reaches(toolAt(1, 0, 0.511), block));
    EXPECT_FALSE(Gripper::reaches(toolAt(1, 0, 0.489), block));
}

#include "controller/cell/drive.h"

#include <gtest/gtest.h>

#include <vector>

using controller::cell::Drive;

namespace {

std::int64_t read(const Drive &drive, const char *name)
{
    std::int64_t value = -12345;
    EXPECT_EQ("", drive.read(name, &value)) << name;
    return value;
}

void write(Drive &drive, const char *name, std::int64_t value)
{
    EXPECT_EQ("", drive.write(name, value)) << name << " = " << value;
}

void control(Drive &drive, std::int64_t word)
{
    write(drive, "ControlwordWrite", word);
}

void run(Drive &drive, double seconds)
{
    for (double t = 0; t < seconds - 1e-9; t += 0.01)
        drive.advance(0.01);
}

void powerOn(Drive &drive)
{
    for (const int word : {6, 7, 15})
        control(drive, word);
    ASSERT_EQ(Drive::State::OperationEnabled, drive.state());
}

/// As a program moves the column: position in units, 50 mm/s.
void moveTo(Drive &drive, std::int64_t position)
{
    write(drive, "ProfileAcceleWrite", -1);
    write(drive, "ProfileDeceWrite", -1);
    write(drive, "ProfileVelocityWrite", 7000 * 50);
    write(drive, "PositionWrite", position);
    control(drive, 31);
}

using State = Drive::State;

struct Transition
{
    const char *name;
    std::vector<int> words;
    State end;
};

class DriveStates : public ::testing::TestWithParam<Transition>
{
};

TEST_P(DriveStates, FollowTheControlWord)
{
    Drive drive;
    for (const int word : GetParam().words) {
        if (word < 0)
            drive.fail();
        else
            control(drive, word);
    }
    EXPECT_STREQ(Drive::stateName(GetParam().end), Drive::stateName(drive.state()));
}

INSTANTIATE_TEST_SUITE_P(
    All, DriveStates,
    ::testing::Values(
        Transition{"Start", {}, State::SwitchOnDisabled}, Transition{"ShutDown", {6}, State::ReadyToSwitchOn},
        Transition{"SwitchOn", {6, 7}, State::SwitchedOn},
        Transition{"Enable", {6, 7, 15}, State::OperationEnabled},
        Transition{"NothingIsSkippedOnTheWayUp", {15}, State::SwitchOnDisabled},
        Transition{"SwitchOnAndEnableInOneWordTakesTwo", {6, 15}, State::SwitchedOn},
        Transition{"EnableAfterTwoWords", {6, 15, 15}, State::OperationEnabled},
        Transition{"NewSetPointStaysEnabled", {6, 7, 15, 31, 15}, State::OperationEnabled},
        Transition{"DisableOperation", {6, 7, 15, 7}, State::SwitchedOn},
        Transition{"ShutDownFromEnabled", {6, 7, 15, 6}, State::ReadyToSwitchOn},
        Transition{"DisableVoltage", {6, 7, 15, 0}, State::SwitchOnDisabled},
        Transition{"QuickStop", {6, 7, 15, 2}, State::SwitchOnDisabled},
        Transition{"FaultHolds", {6, 7, 15, -1, 6, 7, 15}, State::Fault},
        Transition{"FaultReset", {6, 7, 15, -1, 128}, State::SwitchOnDisabled},
        Transition{"ResetNeedsTheBitToRise", {128, -1, 128}, State::Fault},
        Transition{"ResetByTheWordTimes128", {6, 7, 15, -1, 15 * 128, 15}, State::SwitchOnDisabled},
        Transition{"AfterResetUpAgain", {6, 7, 15, -1, 15 * 128, 15, 0, 6, 7, 15}, State::OperationEnabled}),
    [](const auto &test) { return std::string(test.param.name); });

} // namespace

TEST(Drive, GoesToAPositionAndSaysSo)
{
    Drive drive;
    powerOn(drive);
    EXPECT_EQ(1, read(drive, "TargetReached")) << "it stands where it should";
    moveTo(drive, 7000 * 100);
    EXPECT_EQ(1, read(drive, "PointAcknowledge"));
    EXPECT_EQ(0, read(drive, "TargetReached"));
    control(drive, 15);
    EXPECT_EQ(0, read(drive, "PointAcknowledge"));
    run(drive, 1);
    EXPECT_NEAR(50 * 7000, read(drive, "PositionRead"), 10 * 7000) << "50 mm/s, after a short start";
    run(drive, 1.5);
    EXPECT_EQ(7000 * 100, read(drive, "PositionRead"));
    EXPECT_EQ(1, read(drive, "TargetReached"));
    EXPECT_FALSE(drive.needsTime());
}

TEST(Drive, GivesUpItsWayWithoutPowerAndHoldsThePlace)
{
    Drive drive;
    powerOn(drive);
    moveTo(drive, 7000 * 100);
    run(drive, 1);
    control(drive, 0);
    const auto stopped = read(drive, "PositionRead");
    run(drive, 1);
    EXPECT_EQ(stopped, read(drive, "PositionRead"));
    EXPECT_EQ(0, read(drive, "TargetReached"));
    powerOn(drive);
    run(drive, 1);
    EXPECT_EQ(1, read(drive, "TargetReached"))
        << "so that who waits for it goes on and looks at the position";
    EXPECT_EQ(stopped, read(drive, "PositionRead"));
}

TEST(Drive, TakesNoSetPointUnlessItIsEnabledInPositionMode)
{
    Drive drive;
    moveTo(drive, 7000);
    EXPECT_EQ(0, read(drive, "PointAcknowledge"));
    write(drive, "OperationModeWrite", 3);
    EXPECT_EQ(3, read(drive, "ModesOfOperation"));
    powerOn(drive);
    moveTo(drive, 7000);
    EXPECT_EQ(0, read(drive, "PointAcknowledge"));
}

TEST(Drive, RunsAtASpeedUpToTheEndStop)
{
    Drive drive;
    drive.standAt(970);
    write(drive, "OperationModeWrite", 3);
    powerOn(drive);
    write(drive, "VelocityWrite", 7000 * 20);
    run(drive, 1);
    EXPECT_NEAR(990, drive.heightMm(), 1);
    run(drive, 2);
    EXPECT_EQ(Drive::kStrokeMm, drive.heightMm());
    EXPECT_EQ(State::Fault, drive.state());
}

TEST(Drive, LosesItsPower)
{
    Drive drive;
    powerOn(drive);
    moveTo(drive, 7000 * 100);
    run(drive, 1);
    drive.cutPower();
    EXPECT_EQ(State::SwitchOnDisabled, drive.state());
    EXPECT_EQ(0, read(drive, "ControlwordWrite"));
    EXPECT_FALSE(drive.isMoving());
}

TEST(Drive, RefusesWhatItDoesNotHave)
{
    Drive drive;
    std::int64_t value = 0;
    EXPECT_EQ("there is no register \"Statusword\"", drive.read("Statusword", &value));
    EXPECT_EQ("there is no register \"controlwordWrite\"", drive.write("controlwordWrite", 6));
    EXPECT_EQ("the register \"PositionRead\" can only be read", drive.write("PositionRead", 6));
    EXPECT_EQ("the register \"ControlwordWrite\" takes 0 to 65535, not 65536",
              drive.write("ControlwordWrite", 65536));
    EXPECT_EQ("the register \"ProfileAcceleWrite\" takes -1 to 2147483647, not -2",
              drive.write("ProfileAcceleWrite", -2));
}

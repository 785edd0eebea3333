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

} // namespace

TEST(Drive, FollowsTheControlWord)
{
    constexpr int kFail = -1;
    const struct
    {
        std::vector<int> words;
        State end;
    } cases[] = {
        {{6, 7}, State::SwitchedOn},
        {{15}, State::SwitchOnDisabled}, // nothing is skipped on the way up
        {{6, 15, 15}, State::OperationEnabled},
        {{6, 7, 15, 7}, State::SwitchedOn},
        {{6, 7, 15, 2}, State::SwitchOnDisabled}, // quick stop
        {{6, 7, 15, kFail, 6, 7, 15}, State::Fault},
        {{128, kFail, 128}, State::Fault}, // the bit must rise
        {{6, 7, 15, kFail, 15 * 128, 15, 0, 6, 7, 15}, State::OperationEnabled},
    };
    for (const auto &each : cases) {
        Drive drive;
        for (const int word : each.words) {
            if (word == kFail)
                drive.fail();
            else
                control(drive, word);
        }
        EXPECT_STREQ(Drive::stateName(each.end), Drive::stateName(drive.state()))
            << &each - cases << ". case";
    }
}

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

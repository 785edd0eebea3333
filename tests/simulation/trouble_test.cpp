// What goes wrong in a cell, and how work goes on.

#include "line.h"

#include <gtest/gtest.h>

namespace {

using controller::Runner;
using controller::cell::Fault;

class Trouble : public ::testing::Test
{
protected:
    Trouble() : line({0, false, 0, 1}) { line.start(); }
    /// Until so many products lie there and the next one is on its way.
    void carryAfter(std::size_t boxes)
    {
        ASSERT_TRUE(line.runUntil([&] {
            return line.pallet(0).boxes().size() == boxes && line.world().gripper().carries() &&
                   line.world().way().isMoving() && line.world().way().where().line == 27;
        }));
    }
    bool isOn(const char *signal)
    {
        const orba::Node *all = line.station().tree().find(u"nexo.cell.signals");
        for (int i = 0; i < all->size(); ++i)
            if (all->at(i)->getString(u"name") == QLatin1String(signal))
                return all->at(i)->getBool(u"on");
        ADD_FAILURE() << "no signal " << signal;
        return false;
    }
    void expectFullAfterAll(int lost)
    {
        EXPECT_TRUE(line.runUntil([this] { return line.isFull(); })) << line.runner().why();
        EXPECT_TRUE(line.pallet(0).isFull());
        EXPECT_EQ(lost, line.world().lostBoxes());
        EXPECT_EQ("", line.violations());
    }
    /// Sets the counters by what lies on the pallet, as the panel proposes.
    void countWhatLies()
    {
        const orba::Node &pallet = *line.station().tree().find(u"nexo.cell.pallets.#0");
        line.set("currentLayerL", static_cast<int>(pallet.getInt(u"layer")));
        line.set("layerCountL", static_cast<int>(pallet.getInt(u"piece")));
    }

    Line line;
};

} // namespace

TEST_F(Trouble, APauseStopsTheRobotAndNotTheMonitoring)
{
    carryAfter(2);
    EXPECT_EQ("", line.ask("program.pause"));
    line.run(1);
    const auto rest = line.world().way().toolPose().matrix();
    line.world().takePallet(1); // monitoring goes on: a lamp follows
    line.run(5);
    EXPECT_EQ(rest, line.world().way().toolPose().matrix());
    EXPECT_FALSE(line.world().way().isMoving());
    EXPECT_TRUE(line.world().gripper().carries());
    EXPECT_TRUE(isOn("DO3_1")) << "nothing runs: yellow";
    EXPECT_EQ("paused", line.station().tree().getString(u"nexo.cell.program.state"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, TheEmergencyStopHoldsUntilItIsTakenBack)
{
    carryAfter(2);
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"e-stop","on":true})"));
    line.run(2);
    EXPECT_FALSE(line.world().way().isMoving());
    EXPECT_TRUE(isOn("DO3_0") && isOn("DO3_4") && isOn("DO3_7")) << "red, and the buzzer";
    EXPECT_EQ("the emergency stop is pressed", line.ask("program.run"));
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"e-stop","on":false})"));
    line.run(1);
    EXPECT_FALSE(isOn("DO3_0")) << "monitoring sees it";
    EXPECT_FALSE(line.world().way().isMoving()) << "taking it back starts nothing";
    EXPECT_EQ("", line.ask("cell.input", R"({"signal":"DI2_0","seconds":0.5})"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, ACollisionHasToBeReset)
{
    carryAfter(1);
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"collision","on":true})"));
    line.run(2);
    EXPECT_TRUE(isOn("DO3_0"));
    EXPECT_EQ("the robot was stopped by a collision; reset first", line.ask("program.run"));
    EXPECT_EQ("", line.ask("program.reset"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, SomebodyInTheFieldOfTheScannerStopsTheRobot)
{
    carryAfter(1);
    EXPECT_EQ("", line.ask("cell.input", R"({"signal":"DI2_10","on":false})"));
    line.run(1);
    EXPECT_EQ(Runner::State::Paused, line.runner().state());
    EXPECT_EQ("somebody stands in the field of scanner 1", line.ask("program.run"));
    EXPECT_EQ("", line.ask("cell.input", R"({"signal":"DI2_10","on":true})"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, WithoutVacuumTheProgramPausesAndTheProductIsNotCounted)
{
    ASSERT_TRUE(line.runUntil([this] { return line.pallet(0).boxes().size() == 3; }));
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"no-vacuum","on":true})"));
    ASSERT_TRUE(line.runUntil([this] { return line.runner().state() == Runner::State::Paused; }, 30));
    EXPECT_TRUE(isOn("DO3_1"));
    EXPECT_FALSE(line.number("grabbing"));
    EXPECT_EQ(3u, line.pallet(0).boxes().size());
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"no-vacuum","on":false})"));
    EXPECT_EQ("", line.ask("program.stop"));
    line.run(1);
    countWhatLies();
    EXPECT_EQ(4, line.number("layerCountL"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, ALostProductIsFetchedAgain)
{
    carryAfter(2);
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"lost-box","on":true})"));
    ASSERT_TRUE(line.runUntil([this] { return line.runner().state() == Runner::State::Paused; }, 30));
    EXPECT_EQ(1, line.world().lostBoxes());
    EXPECT_FALSE(line.world().hasFault(Fault::LostBox)) << "it happens once";
    EXPECT_EQ("", line.ask("program.stop"));
    line.run(1);
    countWhatLies();
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(1);
}

TEST_F(Trouble, APulledPalletPausesAndComesBackAsItWas)
{
    carryAfter(2);
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"pallet-pulled","on":true})"));
    line.run(2);
    EXPECT_EQ(Runner::State::Paused, line.runner().state());
    EXPECT_TRUE(line.runner().why().startsWith(QStringLiteral("paused by the program, task4 main.mod:")))
        << line.runner().why();
    EXPECT_FALSE(isOn("DI2_5"));
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"pallet-pulled","on":false})"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, AJammedConveyorMakesTheRobotWait)
{
    ASSERT_TRUE(line.runUntil([this] { return line.pallet(0).boxes().size() == 2; }));
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"conveyor-jam","on":true})"));
    line.run(60);
    EXPECT_LE(line.pallet(0).boxes().size(), 3u) << "one may lie at the stop already";
    EXPECT_EQ(Runner::State::Running, line.runner().state());
    EXPECT_TRUE(isOn("DO3_8"));
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"conveyor-jam","on":false})"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, TheStopButtonPausesAndTheStartButtonGoesOn)
{
    carryAfter(1);
    EXPECT_EQ("", line.ask("cell.input", R"({"signal":"DI2_1","seconds":0.5})"));
    line.run(2);
    EXPECT_EQ("the stop button was pressed", line.runner().why());
    EXPECT_EQ("", line.ask("cell.input", R"({"signal":"DI2_0","seconds":0.5})"));
    line.run(1);
    EXPECT_EQ(Runner::State::Running, line.runner().state());
    expectFullAfterAll(0);
}

TEST_F(Trouble, APowerCutKeepsWhatLiesAndWhatIsPersistent)
{
    carryAfter(3);
    const double time = line.world().now();
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"power-cut","on":true})"));
    EXPECT_EQ(Runner::State::Stopped, line.runner().state());
    EXPECT_EQ("the power was cut", line.runner().why());
    EXPECT_EQ(1, line.world().lostBoxes()) << "what was in the air";
    EXPECT_FALSE(isOn("DO2_6"));
    line.restart();
    EXPECT_LT(line.world().now(), time) << "another run";
    const orba::Node &tree = line.station().tree();
    EXPECT_EQ(3, tree.getInt(u"nexo.cell.pallets.#0.count"));
    EXPECT_EQ(1, tree.getInt(u"nexo.cell.pallets.#0.layer"));
    EXPECT_EQ(4, tree.getInt(u"nexo.cell.pallets.#0.piece"));
    EXPECT_EQ(4, line.number("layerCountL")) << "persistent";
    EXPECT_EQ(0, line.number("flagLL")) << "not persistent";
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(1);
}

TEST_F(Trouble, ACutAfterLettingGoShowsInWhatLiesThere)
{
    ASSERT_TRUE(line.runUntil([this] { return line.pallet(0).boxes().size() == 3; }));
    EXPECT_EQ(3, line.number("layerCountL")) << "lies there and is not counted yet";
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"power-cut","on":true})"));
    countWhatLies();
    EXPECT_EQ(4, line.number("layerCountL"));
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

TEST_F(Trouble, AProductPlacedTwiceIsACollision)
{
    ASSERT_TRUE(line.runUntil([this] { return line.pallet(0).boxes().size() == 3; }));
    line.run(2);
    line.set("layerCountL", 3); // the same place again
    line.runUntil([this] { return !line.world().violations().empty(); }, 30);
    ASSERT_FALSE(line.world().violations().empty());
    const auto &violation = line.world().violations().front();
    EXPECT_EQ("task0", violation.where.task);
    EXPECT_EQ("ZuoMaduo.mod", violation.where.file);
    EXPECT_EQ(1, violation.layer);
    EXPECT_EQ(3, violation.piece);
    EXPECT_EQ("carried box", violation.bodies[0]);
    EXPECT_EQ("box 3 of layer 1 on the left pallet", violation.bodies[1]);
    line.station().publishAll();
    EXPECT_EQ(1, line.station().tree().getInt(u"nexo.cell.violation_count"));
}

TEST_F(Trouble, OneStepIsOneMove)
{
    carryAfter(1);
    EXPECT_EQ("the program runs; pause it first", line.ask("program.step"));
    EXPECT_EQ("", line.ask("program.pause"));
    line.run(1);
    int last = 0;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ("", line.ask("program.step"));
        ASSERT_TRUE(line.runUntil([this] { return line.runner().state() == Runner::State::Paused; }, 30));
        const int now = line.runner().scheduler()->motion()->location().line;
        EXPECT_NE(last, now);
        last = now;
    }
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(0);
}

// What goes wrong in a cell, and how work goes on.

#include "line.h"

namespace {

using controller::Runner;

class Trouble : public ::testing::Test
{
protected:
    Trouble() : line({0, false, 0, 1, 1, 4}) { line.start(); }
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

    Line line;
};

/// Requests are given with their payload: "cell.input {...}".
struct Halt
{
    const char *name, *cause;
    const char *why;     ///< begin of what the runner says
    const char *light;   ///< that is on then
    const char *refusal; ///< of running on before it is mended
    const char *mend, *goOn;
};

const char kStartButton[] = R"(cell.input {"signal":"DI2_0","seconds":0.5})";

const Halt kHalts[] = {
    {"Pause", "program.pause", "paused at the panel", "DO3_1", "", "", "program.run"},
    {"StopButton", R"(cell.input {"signal":"DI2_1","seconds":0.5})", "the stop button was pressed", "", "",
     "", kStartButton},
    {"EmergencyStop", R"(cell.fault {"name":"e-stop","on":true})", "", "DO3_0",
     "the emergency stop is pressed", R"(cell.fault {"name":"e-stop","on":false})", kStartButton},
    {"Collision", R"(cell.fault {"name":"collision","on":true})", "", "DO3_0",
     "the robot was stopped by a collision; reset first", "program.reset", "program.run"},
    {"Scanner", R"(cell.input {"signal":"DI2_10","on":false})", "", "",
     "somebody stands in the field of scanner 1", R"(cell.input {"signal":"DI2_10","on":true})",
     "program.run"},
    {"PulledPallet", R"(cell.fault {"name":"pallet-pulled","on":true})",
     "paused by the program, task4 main.mod:", "", "", R"(cell.fault {"name":"pallet-pulled","on":false})",
     "program.run"},
};

class Halted : public Trouble, public ::testing::WithParamInterface<Halt>
{
protected:
    QString ask(const QByteArray &what)
    {
        const QList<QByteArray> parts = what.split(' ');
        return line.ask(parts.first().constData(), parts.size() > 1 ? parts.last().constData() : "null");
    }
};

} // namespace

TEST_P(Halted, StandsUntilItIsMendedAndGoesOn)
{
    const Halt &halt = GetParam();
    carryAfter(2);
    EXPECT_EQ("", ask(halt.cause));
    line.run(2);
    const auto rest = line.world().way().toolPose().matrix();
    EXPECT_EQ(Runner::State::Paused, line.runner().state());
    EXPECT_TRUE(line.runner().why().startsWith(QLatin1String(halt.why))) << line.runner().why();
    EXPECT_TRUE(!*halt.light || isOn(halt.light)) << "monitoring goes on";
    EXPECT_EQ(halt.refusal, *halt.refusal ? ask("program.run") : QString());
    EXPECT_EQ("", *halt.mend ? ask(halt.mend) : QString());
    line.run(2);
    EXPECT_EQ(rest, line.world().way().toolPose().matrix()) << "mending starts nothing";
    EXPECT_TRUE(line.world().gripper().carries());
    EXPECT_EQ("", ask(halt.goOn));
    line.run(1);
    EXPECT_EQ(Runner::State::Running, line.runner().state());
    expectFullAfterAll(0);
}

INSTANTIATE_TEST_SUITE_P(Every, Halted, ::testing::ValuesIn(kHalts),
                         [](const auto &test) { return std::string(test.param.name); });

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

TEST_F(Trouble, APowerCutKeepsWhatLiesAndWhatIsPersistent)
{
    carryAfter(3);
    EXPECT_EQ("", line.ask("cell.fault", R"({"name":"power-cut","on":true})"));
    EXPECT_EQ(Runner::State::Stopped, line.runner().state());
    EXPECT_EQ("the power was cut", line.runner().why());
    EXPECT_EQ(1, line.world().lostBoxes()) << "what was in the air";
    EXPECT_FALSE(isOn("DO2_6"));
    orba::Node edited = *line.station().pallets().at(0); // which changes nothing of what lies there
    const double height = edited.getDouble(u"product_cfg.product.height");
    edited.find(u"product_cfg.product.height")->setDouble(height / 2);
    EXPECT_EQ("", line.station().request("pallet.set.one", edited).refusal);
    line.restart();
    EXPECT_NEAR(line.station().tree().find(u"nexo.cell.pallets.#0.boxes.#0")->number(6), height, 1e-6);
    edited = *line.station().pallets().at(0);
    edited.find(u"product_cfg.product.height")->setDouble(height);
    EXPECT_EQ("", line.station().request("pallet.set.one", edited).refusal);
    const orba::Node &pallet = *line.station().tree().find(u"nexo.cell.pallets.#0");
    EXPECT_EQ(3, pallet.getInt(u"count"));
    EXPECT_EQ(1, pallet.getInt(u"layer"));
    EXPECT_EQ(4, pallet.getInt(u"piece"));
    EXPECT_EQ(4, line.number("layerCountL")) << "persistent";
    EXPECT_EQ(0, line.number("flagLL")) << "not persistent";
    EXPECT_EQ("", line.ask("program.run"));
    expectFullAfterAll(1);
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
}

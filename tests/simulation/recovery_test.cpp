// Work is broken off at many moments of a cycle. Afterwards the stack is complete, nothing lies there twice, and the
// counters agree with what lies there.

#include "cli/cell_operator.h"
#include "expect_stack.h"

namespace {

using controller::Runner;

#if defined(__SANITIZE_ADDRESS__)
constexpr int kMoments = 5;
constexpr int kColumnMoments = 2;
#else
constexpr int kMoments = 50;
constexpr int kColumnMoments = 10;
#endif
constexpr double kCycle = 7;       // [s] a little more than one
constexpr double kColumnTime = 14; // [s] that it needs to rise, with its drive's switching

struct Disturbance
{
    const char *name;
    const char *request;
    const char *payload;
    bool isRestart; ///< the controller itself loses its power
};

const Disturbance kStops[] = {
    {"StopButton", "cell.input", R"({"signal":"DI2_1","seconds":0.5})", false},
    {"PanelStop", "program.stop", "null", false},
    {"EmergencyStop", "cell.fault", R"({"name":"e-stop","on":true})", false},
    {"PowerCut", "cell.fault", R"({"name":"power-cut","on":true})", true},
};
const Disturbance kLosses[] = {
    {"NoVacuum", "cell.fault", R"({"name":"no-vacuum","on":true})", false},
    {"LostBox", "cell.fault", R"({"name":"lost-box","on":true})", false},
    {"PulledPallet", "cell.fault", R"({"name":"pallet-pulled","on":true})", false},
};

/// The counters of the left side name the piece that is missing on its pallet, and as many as lie there.
void expectCountersAgree(Line &line)
{
    int layer = 0;
    int piece = 0;
    line.pallet(0).nextPiece(&layer, &piece);
    EXPECT_EQ(layer, line.number("currentLayerL"));
    EXPECT_EQ(piece, line.number("layerCountL"));
    EXPECT_EQ(static_cast<qint64>(line.pallet(0).boxes().size()), line.number("palletCountL"));
}

/// Until the programs stand or count on what is not there, as an operator sees it, or the pallet is full.
void runUntilTrouble(Line &line, double bound)
{
    cli::CellOperator person(&line.station(), {0});
    const double end = line.world().now() + bound;
    while (line.world().now() < end && line.runner().state() == Runner::State::Running && !line.isFull() &&
           !person.seesMiscount())
        line.station().simulate(0.5);
}

void disturb(Line &line, const Disturbance &disturbance)
{
    EXPECT_EQ("", line.ask(disturbance.request, disturbance.payload));
    if (disturbance.isRestart)
        line.restart();
    runUntilTrouble(line, 30);
}

/// Mends whatever came about, until the pallet is full.
void fillUp(Line &line)
{
    cli::CellOperator person(&line.station(), {0});
    for (int repairs = 0; repairs < 3 && !line.isFull(); ++repairs) {
        line.run(1); // until somebody is there
        ASSERT_EQ(QString(), person.recover());
        if (line.number("palletStatus") == 0) // confirmed, and nothing has moved yet
            expectCountersAgree(line);
        runUntilTrouble(line, 3000);
    }
    ASSERT_TRUE(line.isFull()) << line.runner().why();
}

/// Only what a pallet that is pulled away under a product makes of it.
bool isExpected(const controller::cell::Violation &violation, const Disturbance &disturbance)
{
    return std::string(disturbance.name) == "PulledPallet" && violation.what.rfind("the box falls ", 0) == 0;
}

void expectFull(Line &line, int layers, const Disturbance &disturbance)
{
    for (const auto &violation : line.world().violations())
        EXPECT_TRUE(isExpected(violation, disturbance)) << violation.what;
    expectWellStacked(line, 0, layers);
    expectFullCounters(line, 0, layers, 1);
}

using BrokenOff = ::testing::TestWithParam<Disturbance>;
using ColumnBrokenOff = ::testing::TestWithParam<Disturbance>;

std::string nameOf(const ::testing::TestParamInfo<Disturbance> &test)
{
    return test.param.name;
}

TEST_P(BrokenOff, AtAnyMomentOfACycle)
{
    for (int moment = 0; moment < kMoments && !HasFailure(); ++moment) {
        SCOPED_TRACE("moment " + std::to_string(moment) + " of " + std::to_string(kMoments));
        Line line({0, false, 0, 1, 1, 4});
        line.start();
        ASSERT_TRUE(line.runUntil([&line] { return line.pallet(0).boxes().size() == 1; }));
        line.run(kCycle * moment / kMoments);
        disturb(line, GetParam());
        fillUp(line);
        expectFull(line, 1, GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(ByStop, BrokenOff, ::testing::ValuesIn(kStops), nameOf);
INSTANTIATE_TEST_SUITE_P(ByLoss, BrokenOff, ::testing::ValuesIn(kLosses), nameOf);

TEST_P(ColumnBrokenOff, OnItsWay)
{
    for (int moment = 0; moment < kColumnMoments && !HasFailure(); ++moment) {
        SCOPED_TRACE("moment " + std::to_string(moment) + " of " + std::to_string(kColumnMoments));
        Line line({0, true, 0, 2, 1, 3});
        line.set("SetZ", 400);
        line.start();
        ASSERT_TRUE(line.runUntil(
            [&line] { return line.number("currentLayerL") == 2 && line.number("use_rise") == 1; }));
        line.run(kColumnTime * moment / kColumnMoments);
        disturb(line, GetParam());
        fillUp(line);
        expectFull(line, 2, GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(ByStop, ColumnBrokenOff, ::testing::ValuesIn(kStops), nameOf);

/// The last product lies there, and the power goes before it is counted.
TEST(FullPalletBrokenOff, IsReplacedAndNotStackedOn)
{
    Line line({0, false, 0, 1, 1, 4});
    line.start();
    ASSERT_TRUE(line.runUntil([&line] { return line.pallet(0).isFull(); }));
    EXPECT_EQ(4, line.number("layerCountL"));
    disturb(line, kStops[3]);
    cli::CellOperator person(&line.station(), {0});
    EXPECT_EQ(QString(), person.recover());
    EXPECT_EQ(0, line.number("enableStackL")) << "nothing is to be stacked";
    line.run(30);
    EXPECT_EQ(4u, line.pallet(0).boxes().size());
    EXPECT_EQ(4, line.number("layerCountL"));
    line.ask("program.stop");
    line.ask("cell.pallet", R"({"side":0,"action":"bring"})");
    EXPECT_EQ(QString(), person.recover());
    expectCountersAgree(line);
    ASSERT_TRUE(line.runUntil([&line] { return line.isFull(); }));
    expectFull(line, 1, kStops[3]);
}

} // namespace

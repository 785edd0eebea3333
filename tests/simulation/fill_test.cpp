// Whole pallets with the program templates, in every kind of cell that they are for.

#include "expect_stack.h"

#include <gtest/gtest.h>

namespace {

bool isStacked(const LineSetup &setup, int side)
{
    return setup.scheme == 2 || setup.scheme == side;
}

class Fill : public ::testing::TestWithParam<LineSetup>
{
};

TEST_P(Fill, WholePalletsTwice)
{
    LineSetup setup = GetParam();
    Line line(setup);
    if (setup.hasLift)
        line.set("SetZ", 400); // so that the upper layer needs the column
    line.start();
    for (int pallet = 1; pallet <= 2; ++pallet) {
        ASSERT_TRUE(line.runUntil([&line] { return line.isFull(); })) << line.runner().why();
        EXPECT_EQ("", line.violations());
        EXPECT_EQ(0, line.number("palletStatus"));
        for (const int side : {0, 1}) {
            if (!isStacked(setup, side))
                continue;
            expectWellStacked(line, side, setup.layers);
            expectFullCounters(line, side, setup.layers, pallet);
        }
        line.run(1);
        EXPECT_EQ(setup.scheme == 2, line.number("flagL1") == 1 && line.number("flagR1") == 1)
            << "both were full";
        if (setup.hasLift) {
            EXPECT_EQ(0, line.number("rise"));
            EXPECT_EQ(0, line.number("use_rise"));
            EXPECT_NEAR(1, line.world().drive().heightMm(), 0.2);
        }
        for (const int side : {0, 1})
            if (isStacked(setup, side) && pallet == 1)
                line.exchangePallet(side);
    }
    EXPECT_EQ(controller::Runner::State::Running, line.runner().state());
}

INSTANTIATE_TEST_SUITE_P(Every, Fill, ::testing::ValuesIn(everyLine()), nameOfLine);

class Lines : public controller::cell::TraceSink
{
public:
    void line(const std::string &text) override { all += text + '\n'; }
    std::string all;
};

std::string traceOf(std::uint64_t seed, double step)
{
    LineSetup setup{2, true, 0, 1, seed};
    Line line(setup);
    Lines trace;
    line.runner().cell().setTrace(&trace);
    line.start();
    for (int i = 0; i * step < 120; ++i)
        line.station().simulate(step);
    line.runner().cell().setTrace(nullptr);
    return trace.all;
}

} // namespace

TEST(Determinism, TheSameSeedGivesTheSameTraceHoweverTimeIsCut)
{
    const std::string trace = traceOf(7, 0.5);
    EXPECT_GT(trace.size(), 10000u);
    EXPECT_EQ(trace, traceOf(7, 0.5));
    EXPECT_EQ(trace, traceOf(7, 0.125));
    EXPECT_NE(trace, traceOf(8, 0.5)) << "products come at other distances";
}

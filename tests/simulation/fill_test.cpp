// Whole pallets with the program templates, in every kind of cell that they are for.

#include "expect_stack.h"

namespace {

bool isStacked(const LineSetup &setup, int side)
{
    return setup.scheme == 2 || setup.scheme == side;
}

void expectFullPallets(Line &line, const LineSetup &setup, int pallets)
{
    ASSERT_TRUE(line.runUntil([&line] { return line.isFull(); })) << line.runner().why();
    EXPECT_EQ("", line.violations());
    for (const int side : {0, 1})
        if (isStacked(setup, side)) {
            expectWellStacked(line, side, setup.layers);
            expectFullCounters(line, side, setup.layers, pallets);
        }
    line.run(1);
    EXPECT_EQ(setup.scheme == 2, line.number("flagL1") == 1 && line.number("flagR1") == 1)
        << "both were full";
    if (setup.hasLift) {
        EXPECT_EQ(0, line.number("rise"));
        EXPECT_EQ(0, line.number("use_rise"));
        EXPECT_NEAR(1, line.world().drive().heightMm(), 0.2);
    }
}

/// Every scheme, with and without the lift column, with work objects that look forward and backwards. The whole recipe is
/// stacked in the largest cell, a part of it in the others.
std::vector<LineSetup> everyLine()
{
    std::vector<LineSetup> all;
    for (const int scheme : {0, 1, 2})
        for (const bool hasLift : {true, false})
            for (const int towards : {0, 1}) {
                const bool isWhole = scheme == 2 && hasLift && towards == 0;
                all.push_back({scheme, hasLift, towards, 2, 1, isWhole ? 0 : 3});
            }
    return all;
}

std::string nameOfLine(const ::testing::TestParamInfo<LineSetup> &line)
{
    static const char *const schemes[] = {"Left", "Right", "Both"};
    return std::string(schemes[line.param.scheme]) + (line.param.hasLift ? "WithLift" : "") +
           (line.param.towards == 0 ? "Forward" : "Backwards");
}

class Fill : public ::testing::TestWithParam<LineSetup>
{
};

TEST_P(Fill, PalletsWithTheTemplatesOfItsKind)
{
    const LineSetup setup = GetParam();
    Line line(setup);
    if (setup.hasLift)
        line.set("SetZ", 400); // so that the upper layer needs the column
    line.start();
    EXPECT_EQ(setup.hasLift ? 6 : 5, line.station().tree().find(u"nexo.cell.tasks")->size());
    expectFullPallets(line, setup, 1);
    for (const int side : {0, 1})
        if (isStacked(setup, side))
            line.exchangePallet(side);
    expectFullPallets(line, setup, 2);
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
    Line line({2, true, 0, 1, seed});
    Lines trace;
    line.runner().cell().setTrace(&trace);
    line.start();
    for (int i = 0; i * step < 60; ++i)
        line.station().simulate(step);
    line.runner().cell().setTrace(nullptr);
    return trace.all;
}

} // namespace

TEST(Determinism, TheSameSeedGivesTheSameTraceHoweverTimeIsCut)
{
    const std::string trace = traceOf(7, 0.5);
    EXPECT_GT(trace.size(), 5000u);
    EXPECT_EQ(trace, traceOf(7, 0.125));
    EXPECT_NE(trace, traceOf(8, 0.5)) << "products come at other distances";
}

// Automatic layouts against their floor: writing the same number of plain items.

#include "pattern/rules/auto_layout.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <random>
#include <vector>

namespace {

palx::LayoutInput layoutInput(double length, double width, double palletLength, double palletWidth)
{
    palx::LayoutInput input;
    input.length = length;
    input.width = width;
    input.palletLength = palletLength;
    input.palletWidth = palletWidth;
    return input;
}

/// About 200 products, as many as a pattern may hold.
const palx::LayoutInput kFull = layoutInput(80, 60, 1200, 800);

void fullPattern(benchmark::State &state)
{
    qint64 count = 0;
    for (auto _ : state)
        count = palx::generateLayout(kFull, palx::StackingPattern(int(state.range(0)))).count;
    state.counters["products"] = double(count);
}
BENCHMARK(fullPattern)->ArgName("kind")->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

/// The floor: as many items, copied with their places into a list.
void plainItems(benchmark::State &state)
{
    palx::PatternItem model;
    model.directionText = QStringLiteral("Middle");
    for (auto _ : state) {
        QVector<palx::PatternItem> items;
        for (int i = 0; i < 200; ++i) {
            model.x = i * 60;
            model.y = i * 80;
            items.append(model);
        }
        benchmark::DoNotOptimize(items.data());
    }
}
BENCHMARK(plainItems)->Unit(benchmark::kMicrosecond);

/// The ring over all that the fields take: sizes on a logarithmic scale, every second room for some hundred
/// products, which are the ones that are searched longest. "slowest" is the longest single run.
void spiralOverAllFields(benchmark::State &state)
{
    std::mt19937 random(1);
    const auto size = [&random](double low, double high) {
        return std::exp(std::uniform_real_distribution<double>(std::log(low), std::log(high))(random));
    };
    std::vector<palx::LayoutInput> inputs;
    for (int i = 0; i < 2000; ++i) {
        palx::LayoutInput input = layoutInput(size(1, 5000), size(1, 5000), size(1, 10000), size(1, 10000));
        const double fit =
            std::sqrt(input.palletLength * input.palletWidth / (input.length * input.width) / size(150, 900));
        if (i % 2 == 1) {
            input.length = std::clamp(input.length * fit, 1.0, 5000.0);
            input.width = std::clamp(input.width * fit, 1.0, 5000.0);
        }
        input.spacing = i % 3 == 0 ? size(1, 50) : 0;
        inputs.push_back(input);
    }
    double slowest = 0;
    for (auto _ : state) {
        for (const palx::LayoutInput &input : inputs) {
            const std::clock_t start = std::clock(); // processor time: others may run beside
            benchmark::DoNotOptimize(palx::generateSpiralPattern(input).count);
            slowest = std::max(slowest, double(std::clock() - start) / CLOCKS_PER_SEC);
        }
    }
    state.counters["slowest_ms"] = slowest * 1000;
    state.SetItemsProcessed(state.iterations() * qint64(inputs.size()));
}
BENCHMARK(spiralOverAllFields)->Unit(benchmark::kMillisecond);

/// Rooms that make the search try as much as it ever does: strips and squares just below its limit.
void spiralWorst(benchmark::State &state)
{
    const palx::LayoutInput inputs[] = {layoutInput(4, 6, 802, 10), layoutInput(54, 89, 6279, 426),
                                        layoutInput(47, 41, 1000, 1000), layoutInput(26.2, 26, 3061, 162),
                                        layoutInput(1, 1, 10000, 10000)};
    for (auto _ : state)
        benchmark::DoNotOptimize(palx::generateSpiralPattern(inputs[state.range(0)]).count);
}
BENCHMARK(spiralWorst)->ArgName("case")->DenseRange(0, 4)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();

// A whole pallet in the simulated cell: 8 layers of 10 boxes with the lift column, made into a project and run by its robot
// programs. The longest turn of the clock; beside it the floor, which only reckons where the robot stands and compares heights.

#include "cli/simulation_run.h"
#include "controller/arm.h"

#include <QApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <sys/resource.h>

namespace {

constexpr double kTick = controller::cell::World::kTick;

const cli::SimulateRequest &request()
{
    static const cli::SimulateRequest made = [] {
        cli::SimulateRequest wanted;
        wanted.recipes.file = QStringLiteral(PALX_SOURCE_DIR "/examples/lift-pair.xml");
        wanted.scheme = QStringLiteral("left");
        wanted.withLift = true;
        return wanted;
    }();
    return made;
}

cli::SimulationProject &project()
{
    static cli::SimulationProject made;
    static const bool isMade = made.make(request());
    if (!isMade)
        qFatal("no project was made");
    return made;
}

double residentMb()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void wholePallet(benchmark::State &state)
{
    double simulated = 0;
    double real = 0;
    for (auto _ : state) {
        cli::SimulationResult result;
        if (!cli::runSimulation(project(), request(), &result) || !result.isGood())
            qFatal("the pallet was not filled");
        state.SetIterationTime(result.wallSeconds);
        simulated += result.seconds;
        real += result.wallSeconds;
        state.counters["boxes"] = result.boxes;
    }
    state.counters["times_real"] = simulated / real;
    state.counters["resident_mb"] = residentMb();
}
BENCHMARK(wholePallet)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The programs from the start on, tick by tick, until the pallet is full or ten minutes are over.
void longestTick(benchmark::State &state)
{
    double longest = 0;
    std::int64_t ticks = 0;
    for (auto _ : state) {
        controller::Station station(project().options());
        orba::Node nothing;
        station.request(QStringLiteral("program.run"), nothing);
        const auto &world = station.desk().runner().cell().world();
        while (!world.pallet(0).isFull() && world.now() < 600) {
            QElapsedTimer clock;
            clock.start();
            station.simulate(kTick);
            longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
            ++ticks;
        }
        state.counters["boxes"] = static_cast<double>(world.pallet(0).boxes().size());
    }
    state.counters["longest_ms"] = longest;
    state.counters["ticks"] =
        benchmark::Counter(static_cast<double>(ticks), benchmark::Counter::kAvgIterations);
}
BENCHMARK(longestTick)->Unit(benchmark::kMillisecond);

/// What any simulation of that pallet has to do for each tick, without programs, signals, moves or collisions.
void floorOfAPallet(benchmark::State &state)
{
    const std::vector<double> heights(80, 0.2);
    constexpr int kTicks = 50000; // of 500 s
    for (auto _ : state) {
        double sum = 0;
        controller::Joints joints{};
        for (int i = 0; i < kTicks; ++i) {
            joints[0] = 1e-5 * i;
            const double height = controller::arm::forward(joints).translation().z();
            for (const double top : heights)
                sum += top > height ? 1 : 0;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(floorOfAPallet)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

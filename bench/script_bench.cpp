// Robot programs: reading and checking all templates, beside a bare pass of the same bytes; steps of a task a second,
// beside the same arithmetic in a compiled loop; a monitoring task that has nothing to do.

#include "controller/script/executor.h"
#include "controller/script/program.h"
#include "project/rules/program_template.h"
#include "tests/controller/script_recorder.h"
#include "tests/support/cell_variables.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

using namespace controller::script;

namespace {

[[noreturn]] void giveUp(const std::string &why)
{
    std::fprintf(stderr, "script_bench: %s\n", why.c_str());
    std::exit(1);
}

std::string textOf(const QString &path)
{
    QByteArray text;
    QString why;
    if (!palx::readProgramTemplate(path, &text, &why))
        giveUp(why.toStdString());
    return text.toStdString();
}

/// Every template as a task of its own, with what it calls beside it.
std::vector<std::vector<Source>> tasksOfTemplates()
{
    const std::string helper = textOf(QStringLiteral("/helper/bollard_helper.mod"));
    std::string others;
    for (const char *name : {"BackHome", "Init", "ZuoMaDuo", "YouMaDuo"})
        others += std::string("GLOBAL PROC ") + name + "()\nENDPROC\n";
    std::vector<std::vector<Source>> tasks;
    for (const QString &path : palx::programTemplates()) {
        const std::string text = textOf(path);
        std::vector<Source> &task = tasks.emplace_back();
        task.push_back({path.toStdString(), text});
        if (text.find("PROC powerOn") == std::string::npos)
            task.push_back({"Helper.mod", helper});
        if (path.contains(QLatin1String("/main/")))
            task.push_back({"others.mod", others});
        else if (text.find("PROC main()") == std::string::npos)
            task.push_back({"start.mod", "PROC main()\nENDPROC\n"});
    }
    return tasks;
}

void checkTemplates(benchmark::State &state)
{
    const auto tasks = tasksOfTemplates();
    const auto variables = cellVariables();
    for (auto _ : state)
        for (const std::vector<Source> &task : tasks) {
            const Built built = build({"task0", TaskKind::Motion}, task, variables);
            if (!built.program)
                giveUp(toText(built.problems.front()));
        }
    std::size_t bytes = 0;
    for (const std::vector<Source> &task : tasks)
        for (const Source &source : task)
            bytes += source.text.size();
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(checkTemplates)->Unit(benchmark::kMillisecond);

/// The floor: the same bytes looked at once, each compared with what ends a word.
void passTemplates(benchmark::State &state)
{
    const auto tasks = tasksOfTemplates();
    for (auto _ : state) {
        std::size_t words = 0;
        for (const std::vector<Source> &task : tasks)
            for (const Source &source : task)
                for (const char c : source.text)
                    words += c == ' ' || c == '\n' || c == '(' || c == ')' || c == ',' ? 1 : 0;
        benchmark::DoNotOptimize(words);
    }
}
BENCHMARK(passTemplates)->Unit(benchmark::kMillisecond);

std::shared_ptr<const Program> programOf(const std::string &text)
{
    Built built = build({"task2", TaskKind::Normal}, {{"main.mod", text}}, cellVariables());
    if (!built.program)
        giveUp(toText(built.problems.front()));
    return built.program;
}

constexpr std::int64_t kRounds = 100000;

/// About 20 steps a round; a turn makes 1000.
void runSteps(benchmark::State &state)
{
    const auto program = programOf("PROC main()\nVAR int i\nFOR n FROM 1 TO 100000\ni := i * 3 - n\n"
                                   "IF i > 1000000 OR i < -1000000\ni := n\nENDIF\nENDFOR\nENDPROC\n");
    ScriptRecorder world(cellVariables());
    Executor executor(program, &world);
    for (auto _ : state) {
        executor.restart();
        while (executor.turn() != Activity::Ended)
            if (executor.activity() == Activity::Failed)
                giveUp(executor.fault().what);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kRounds);
}
BENCHMARK(runSteps)->Unit(benchmark::kMillisecond);

void runCompiled(benchmark::State &state)
{
    for (auto _ : state) {
        std::int64_t i = 0;
        for (std::int64_t n = 1; n <= kRounds; ++n) {
            i = i * 3 - n;
            if (i > 1000000 || i < -1000000)
                i = n;
            benchmark::DoNotOptimize(i);
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kRounds);
}
BENCHMARK(runCompiled)->Unit(benchmark::kMillisecond);

/// One look of a monitoring loop at a cell where nothing happens.
void watch(benchmark::State &state)
{
    ScriptRecorder world(cellVariables());
    Executor executor(programOf(textOf(QStringLiteral("/semi_static/palletizing_status_detection.mod"))),
                      &world);
    executor.turn();
    for (auto _ : state)
        if (executor.turn() != Activity::Idle)
            giveUp("the monitoring task is not idle");
}
BENCHMARK(watch);

} // namespace

BENCHMARK_MAIN();

#include "controller/script/program.h"

#include "controller/script/emitter.h"
#include "controller/script/limits.h"
#include "controller/script/parser.h"

#include <algorithm>
#include <iterator>

namespace controller::script {

namespace {

std::vector<Problem> allOf(const Unit &unit)
{
    std::vector<Problem> all;
    for (const Problems &file : unit.problems) {
        std::vector<Problem> sorted = file.sorted();
        std::move(sorted.begin(), sorted.end(), std::back_inserter(all));
    }
    all.resize(std::min(all.size(), kMaxProblems));
    return all;
}

/// Why there are too many files or procedures; empty when there are not.
std::string tooMany(const Unit &unit)
{
    const std::size_t files = unit.problems.size();
    if (files > kMaxFiles)
        return "the task has " + std::to_string(files) + " files, " + std::to_string(kMaxFiles) +
               " are allowed";
    if (unit.procedures.size() > kMaxProcedures)
        return "the task has " + std::to_string(unit.procedures.size()) + " procedures, " +
               std::to_string(kMaxProcedures) + " are allowed";
    return {};
}

void read(const std::vector<Source> &sources, Unit *unit)
{
    for (const Source &source : sources)
        unit->problems.emplace_back(source.file);
    if (unit->problems.empty())
        unit->problems.emplace_back(unit->task.name); // something to hang a problem on
    for (std::size_t i = 0; i < sources.size() && i < kMaxFiles; ++i)
        for (Procedure &procedure : parse(sources[i].text, static_cast<int>(i), &unit->problems[i]))
            unit->procedures.push_back(std::move(procedure));
}

} // namespace

Built build(const TaskInfo &task, const std::vector<Source> &sources,
            const std::vector<VariableInfo> &variables)
{
    Unit unit;
    unit.task = task;
    unit.variables = &variables;
    read(sources, &unit);
    const std::string fault = tooMany(unit);
    if (fault.empty())
        check(&unit);
    else
        unit.problems.front().add({}, fault);
    Built built{nullptr, allOf(unit)};
    if (built.problems.empty())
        built.program = emit(unit);
    return built;
}

} // namespace controller::script

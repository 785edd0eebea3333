// The reader of robot programs: whatever text comes, it refuses it with places and reasons, or makes a program of it.
// A line "!@ file NAME" begins another file of the task.

#include "controller/script/limits.h"
#include "controller/script/program.h"
#include "tests/support/cell_variables.h"

#include <algorithm>
#include <cstdlib>

using namespace controller::script;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

std::vector<Source> sourcesOf(std::string text)
{
    std::vector<Source> sources{{"main.mod", {}}};
    const std::string mark = "!@ file ";
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark)) {
        sources.back().text = text.substr(0, at);
        text.erase(0, at + mark.size());
        sources.push_back({"other.mod", {}});
    }
    sources.back().text = std::move(text);
    return sources;
}

bool isPlace(const Problem &problem, const std::vector<Source> &sources)
{
    return std::any_of(sources.begin(), sources.end(), [&problem](const Source &source) {
        const auto lines = std::count(source.text.begin(), source.text.end(), '\n') + 1;
        return source.file == problem.file && problem.line >= 1 && problem.line <= lines &&
               problem.column >= 1;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const TaskInfo task{"task0", static_cast<TaskKind>(size % 3)};
    const std::vector<Source> sources = sourcesOf(std::string(reinterpret_cast<const char *>(data), size));
    const Built built = build(task, sources, cellVariables());
    require((built.program == nullptr) == !built.problems.empty());
    require(built.problems.size() <= kMaxProblems);
    for (const Problem &problem : built.problems)
        require(isPlace(problem, sources) && !problem.what.empty());
    return 0;
}

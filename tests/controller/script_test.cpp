#include "controller/script_recorder.h"

#include "controller/script/program.h"

#include <QDir>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

/// Programs that say themselves what they must do. In tests/controller/scripts stand, besides comments:
///
///   !@ task KIND             motion when nothing is said
///   !@ var TYPE NAME [VALUE] a variable of the project
///   !@ at TIME NAME VALUE    an input, a state or a variable (bool, int) changes
///   !@ until TIME            seconds to run, 100 when nothing is said
///   !@ file NAME             the next file of the task begins in the next line
///   ... !> EVENT; EVENT      what this line does, in the order of time; see ScriptRecorder
///   ... !! COLUMN WHAT | COLUMN WHAT     the problems of this line, and none elsewhere
namespace {

using namespace controller::script;
using Lines = std::map<std::pair<std::string, int>, std::string>;

struct Script
{
    TaskInfo task{"task0", TaskKind::Motion};
    std::vector<Source> sources;
    std::vector<VariableInfo> variables;
    std::vector<Value> values;
    struct Event
    {
        double time;
        std::string name;
        int value;
    };
    std::vector<Event> events;
    double until = 100;
    Lines trace;
    Lines problems;
};

std::string trimmed(const std::string &text)
{
    const std::size_t first = text.find_first_not_of(" \r");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \r") - first + 1);
}

Value valueOfText(Type type, const std::string &text)
{
    if (type == Type::Bool)
        return text == "true";
    if (type == Type::Int)
        return std::int64_t{std::stoi(text)};
    if (type == Type::Double)
        return std::stod(text);
    return text;
}

void readDirective(const std::string &line, Script *script)
{
    std::istringstream words(line);
    std::string word, type, name, value;
    words >> word >> word;
    if (word == "task") {
        words >> type;
        ASSERT_TRUE(taskKindOfName(type, &script->task.kind)) << line;
    } else if (word == "var") {
        words >> type >> name >> value;
        VariableInfo info{name, Type::Bool};
        ASSERT_TRUE(typeOfName(type, &info.type)) << line;
        script->variables.push_back(info);
        script->values.push_back(value.empty() ? firstValue(info.type) : valueOfText(info.type, value));
    } else if (word == "at") {
        Script::Event event{};
        words >> event.time >> event.name >> event.value;
        script->events.push_back(event);
    } else if (word == "until") {
        words >> script->until;
    } else {
        ADD_FAILURE() << line;
    }
}

Script readScript(const std::string &path)
{
    Script script;
    script.sources.push_back({"main.mod", {}});
    std::ifstream file(path);
    std::string line;
    int number = 0;
    const auto expectation = [&](const char *mark, Lines *lines) {
        const std::size_t at = line.find(mark);
        if (at != std::string::npos)
            (*lines)[{script.sources.back().file, number}] = trimmed(line.substr(at + 2));
    };
    while (std::getline(file, line)) {
        if (line.rfind("!@ file ", 0) == 0) {
            script.sources.push_back({trimmed(line.substr(8)), {}});
            number = 0;
            continue;
        }
        ++number;
        script.sources.back().text += line + '\n';
        if (line.rfind("!@", 0) == 0)
            readDirective(line, &script);
        expectation("!>", &script.trace);
        expectation("!!", &script.problems);
    }
    return script;
}

std::string listing(const Lines &lines)
{
    std::string text;
    for (const auto &[where, what] : lines)
        text += where.first + ':' + std::to_string(where.second) + "  " + what + '\n';
    return text;
}

Lines byLine(const std::vector<Problem> &problems)
{
    Lines lines;
    for (const Problem &problem : problems) {
        std::string &line = lines[{problem.file, problem.line}];
        line += (line.empty() ? "" : " | ") + std::to_string(problem.column) + ' ' + problem.what;
    }
    return lines;
}

/// An input, a state or a variable of the script takes a value.
void change(const Script &script, ScriptRecorder *world, const Script::Event &event)
{
    const std::vector<std::string> states{"estop0", "collision", "relax", "move"};
    for (std::size_t i = 0; i < states.size(); ++i)
        if (event.name == states[i])
            return world->setState(static_cast<State>(i), event.value != 0);
    for (int i = 0; i < kSignals; ++i)
        if (event.name == signalName(false, i))
            return world->setInput(i, event.value != 0);
    for (std::size_t i = 0; i < script.variables.size(); ++i)
        if (event.name == script.variables[i].name) {
            world->variables[i] = std::int64_t{event.value};
            if (script.variables[i].type == Type::Bool)
                world->variables[i] = event.value != 0;
            return;
        }
    ADD_FAILURE() << event.name;
}

using ScriptFile = testing::TestWithParam<std::string>;

TEST_P(ScriptFile, doesWhatItSays)
{
    const Script script = readScript(std::string(PALX_SOURCE_DIR "/tests/controller/scripts/") + GetParam());
    const Built built = build(script.task, script.sources, script.variables);
    EXPECT_EQ(listing(byLine(built.problems)), listing(script.problems));
    ASSERT_EQ(built.program == nullptr, !script.problems.empty());
    if (!built.program)
        return;
    ScriptRecorder world(script.variables);
    world.variables = script.values;
    for (const Script::Event &event : script.events)
        world.at(event.time, [&script, &world, event] { change(script, &world, event); });
    Executor executor(built.program, &world);
    EXPECT_EQ(listing(world.run(&executor, script.until)), listing(script.trace));
}

std::vector<std::string> scriptFiles()
{
    std::vector<std::string> names;
    for (const QString &name :
         QDir(QStringLiteral(PALX_SOURCE_DIR "/tests/controller/scripts")).entryList(QDir::Files))
        names.push_back(name.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Scripts, ScriptFile, testing::ValuesIn(scriptFiles()),
                         [](const auto &test) { return test.param.substr(0, test.param.find('.')); });

} // namespace

#pragma once

#include "controller/script/machine.h"

#include <memory>
#include <vector>

namespace controller::script {

/// How a task runs. Only motion tasks move the robot; they stand still while the program is paused. When `main` ends, a
/// motion task is over, and the others start again.
enum class TaskKind { Motion, SemiStatic, Normal };

/// "motion", "semi_static", "normal", as a task's record says it. False when there is no such kind.
bool taskKindOfName(const std::string &name, TaskKind *kind);

/// A program file of a task.
struct Source
{
    std::string file; ///< name for messages, with its ending
    std::string text; ///< UTF-8
};

/// What stands in the way of running a program.
struct Problem
{
    std::string file;
    int line = 0;   ///< from 1
    int column = 0; ///< from 1, in characters
    std::string what;
};
/// "main.mod:3:7: there is no name \"flagX\"".
std::string toText(const Problem &problem);

/// The task that a program is for.
struct TaskInfo
{
    std::string name;
    TaskKind kind = TaskKind::Motion;
};

class Program;

/// Either a program or what is wrong with it, in the order of files and lines.
struct Built
{
    std::shared_ptr<const Program> program; ///< null when there are problems
    std::vector<Problem> problems;
};

/// Reads and checks all files of a task as a whole. `variables` are those of the project; the program refers to them by
/// index. Limits: see limits.h. Nothing is run.
Built build(const TaskInfo &task, const std::vector<Source> &sources,
            const std::vector<VariableInfo> &variables);

} // namespace controller::script

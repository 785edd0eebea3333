#pragma once

#include "controller/script/program.h"
#include "orba/node.h"

#include <vector>

namespace controller {

/// A task of a project, ready to run.
struct LoadedTask
{
    script::TaskInfo info;
    QString description;
    int priority = 0; ///< the higher one has its turn first
    std::shared_ptr<const script::Program> program;
};

/// What is wrong with a program file, and of which task it is.
struct TaskProblem
{
    std::string task;
    script::Problem problem;
};
/// "task0/main.mod:3:7: there is no name \"flagX\""
QString toText(const TaskProblem &problem);

/// The programs of a project, or everything that stands in the way of running them.
struct LoadedPrograms
{
    std::vector<LoadedTask> tasks;
    std::vector<TaskProblem> problems; ///< empty: all tasks can run
};

/// Reads and checks the program files of all tasks. `tasks` is the project's list ("quill.project.task._list"): each with
/// "name", "type", "priority" and "files", whose entries have "name" and "type". A file lies in `folder`/task under its
/// name and type, or its name and "mod".
LoadedPrograms loadPrograms(const orba::Node &tasks, const QString &folder,
                            const std::vector<script::VariableInfo> &variables);

} // namespace controller

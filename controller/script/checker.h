#pragma once

#include "controller/script/syntax.h"

namespace controller::script {

/// All files of a task, read and on the way to a program.
struct Unit
{
    TaskInfo task;
    const std::vector<VariableInfo> *variables = nullptr; ///< of the project
    std::vector<Procedure> procedures;
    std::vector<Problems> problems; ///< by file
    int entry = -1;                 ///< the procedure `main`
};

/// Finds what every name means and whether every statement can be run, and writes it into the unit. What was read only
/// in part is left out; nothing is reported for what may be missing because of that.
void check(Unit *unit);

} // namespace controller::script

#pragma once

#include "controller/script/checker.h"
#include "controller/script/code.h"

namespace controller::script {

/// Turns a unit without problems into a program.
std::shared_ptr<const Program> emit(const Unit &unit);

} // namespace controller::script

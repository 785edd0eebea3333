#pragma once

#include "controller/script/syntax.h"

namespace controller::script {

/// Reads a program file. What cannot be read is reported; reading goes on with the next line, so that one pass tells all.
/// `file` is the number that its procedures get.
std::vector<Procedure> parse(std::string_view text, int file, Problems *problems);

} // namespace controller::script

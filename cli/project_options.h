#pragma once

#include <CLI/CLI.hpp>

#include <functional>

namespace cli {

/// Adds "project" with its own commands. The chosen one is put into `command`, which must outlive the parsing.
void addProjectCommands(CLI::App &app, std::function<int()> *command);

} // namespace cli

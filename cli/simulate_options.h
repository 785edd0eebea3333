#pragma once

#include <CLI/CLI.hpp>

#include <functional>

namespace cli {

/// Adds "simulate". When it is chosen, it is put into `command`, which must outlive the parsing.
void addSimulateCommand(CLI::App &app, std::function<int()> *command);

} // namespace cli

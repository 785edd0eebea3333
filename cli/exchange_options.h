#pragma once

#include <CLI/CLI.hpp>

#include <functional>

namespace cli {

/// Adds "export" and "import". The chosen one is put into `command`, which must outlive the parsing.
void addExchangeCommands(CLI::App &app, std::function<int()> *command);

} // namespace cli

#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace cli {

/// The commands `layout` and `template`; the chosen one is set as `command`, to be run once an application is
/// there.
void addLayoutCommands(CLI::App &app, std::function<int()> *command);

} // namespace cli

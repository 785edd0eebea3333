#pragma once

#include "orba/plugin_api.h"
#include "shell/problem.h"

namespace host {

/// Loads a plug-in library for the rest of the process and checks that it is one: it exports
/// `orba_plugin_api`, was built for this framework's interface, and has registered a module factory and a
/// version under the name it tells. Returns what it tells, or null; `problem` then says what, where and why.
/// Loading a library twice is harmless.
PALX_API const orba::PluginApi *loadPlugin(const QString &file, Problem *problem);

/// Whether the plug-in of that name has registered what the host needs; `why` is told else.
PALX_API bool isRegistered(const QString &name, QString *why);

} // namespace host

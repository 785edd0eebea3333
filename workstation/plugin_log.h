#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// Writes one line to the plug-in's own log, "./log/palx_workstation.log", and to the console. GUI thread.
PALX_API void writePluginLog(const QString &text);

/// Writes one line of information to the console only. GUI thread.
PALX_API void writePluginInfo(const QString &text);

} // namespace palx

#pragma once

#include "orba/export.h"

#include <QStringList>

namespace orba {

/// What a plug-in library tells the host before the host touches anything else of it. `abi` stays the first
/// member and grows with every incompatible change of this layout or of the framework's headers.
struct PluginApi
{
    int abi;          ///< kPluginAbi of the headers that the library was compiled with
    const char *name; ///< the key under which it registered its module factory and its version
    /// Fills the plug-in's data, bound already, from example files; does nothing when there is data. Tells
    /// what failed, one sentence per file. Null: the plug-in has no examples.
    QStringList (*loadExamples)(const QStringList &files);
};

constexpr int kPluginAbi = 1;

} // namespace orba

/// The one entry that a plug-in library exports by its C name. The answer lives as long as the process.
extern "C" PALX_API const orba::PluginApi *orba_plugin_api();

#pragma once

#include "shell/host_session.h"

namespace panel {

/// What the panel was asked on its command line.
struct PanelOptions
{
    host::SessionOptions session;
    QString refusal; ///< why the command line is wrong; empty when it is right
    QString helpText;
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// `arguments` with the program's name first. Without "--data" the store lies in the user's application data;
/// without
/// "--plugin" every library of "../plugins" beside `programFolder` is loaded.
PanelOptions parseOptions(const QStringList &arguments, const QString &programFolder);

} // namespace panel

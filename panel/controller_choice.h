#pragma once

#include "shell/host_session.h"

#include <QString>

#include <functional>
#include <memory>

namespace host {
class Carrier;
}

namespace panel {

/// Where the controller is: "inprocess", "spawn", "none" or "HOST:PORT".
struct ControllerChoice
{
    enum Kind { InProcess, Spawn, None, Tcp } kind = InProcess;
    QString hostName; ///< for Tcp
    quint16 port = 0; ///< for Tcp

    /// False, with nothing changed, when the text is none of these.
    static bool parse(const QString &text, ControllerChoice *choice);
};

/// What makes the way to the chosen controller; empty for None. A simulated controller keeps its state in "controller"
/// below the data folder, or nothing without one, and shares the workspace of the panel's settings.
/// `programFolder` holds the program palx_controller.
std::function<std::unique_ptr<host::Carrier>()>
carrierFactory(const ControllerChoice &choice, const QString &dataFolder, const QString &programFolder);

} // namespace panel

#pragma once

#include "session.h"

#include <memory>

namespace cli {

/// The folders and the controller of a panel that a command works on instead of the operator.
struct PanelPlaces
{
    QString dataFolder;                               ///< the panel's data; made when missing
    QString workspaceFolder;                          ///< empty: as the panel's settings say
    QString controller = QStringLiteral("inprocess"); ///< as for the panel
};

/// Brings the plug-in up on these places and waits for the robot. Questions are accepted: who gives the command has decided.
/// Null when the reason has been said.
std::unique_ptr<Session> openPanel(const PanelPlaces &places);

/// Waits until the controller has taken what was changed, which goes out when the event loop rests, and saves the panel's
/// data. False when the reason has been said.
bool settlePanel(Session *session);

} // namespace cli

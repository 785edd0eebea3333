#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Opens the dialog that drives the robot over `window`, with a controller of its own whose time is stepped, and shows it in
/// one state after another: `take` gets the dialog and a name for its picture. False when the controller did not answer.
bool showMoves(QWidget *window, const std::function<void(QWidget *dialog, const QString &name)> &take);

} // namespace cli

#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace panel {
class PanelWindow;
}

namespace cli {

/// Has a line work on a controller of its own whose time is stepped, and shows the home page and the page of the cell in one
/// state after another: without a project, both sides running, the parts of the cell's page, broken off by a power cut, and
/// the dialogs for the piece to go on with. `take` gets a widget and a name for its picture. False when the line did not
/// come to run.
bool showRun(panel::PanelWindow *window,
             const std::function<void(QWidget *widget, const QString &name)> &take);

} // namespace cli

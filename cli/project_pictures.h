#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Opens the project manager from the home page, which is shown in `window`, with a controller of its own, makes a project
/// on it, and shows its parts and the dialogs that bring projects out and in: `take` gets a widget and a name for its picture. False when
/// the page or the controller does not do what it should.
bool showProjects(QWidget *window, const std::function<void(QWidget *widget, const QString &name)> &take);

} // namespace cli

#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Opens the project manager from the home page, which is shown in `window`, with a controller of its own, makes a project
/// on it, and shows its parts: `take` gets a name for a picture of the window. False when the page or the controller does not
/// do what it should.
bool showProjects(QWidget *window, const std::function<void(const QString &name)> &take);

} // namespace cli

#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Shows the file dialog over `window` in its ways, on a disk that is made up and without one, and the dialog of long work:
/// `take` gets the dialog and a name for its picture. False when the disk cannot be made up.
bool showFileDialogs(QWidget *window, const std::function<void(QWidget *dialog, const QString &name)> &take);

} // namespace cli

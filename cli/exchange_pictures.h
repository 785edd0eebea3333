#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace cli {

/// Opens the dialogs that import and export recipes over the home page, with an exchange file that holds recipes of every
/// fate, and hands each over when it is to be seen. False when one did not come up.
bool showExchange(QWidget *window, const std::function<void(QWidget *dialog, const QString &name)> &take);

} // namespace cli

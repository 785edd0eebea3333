#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace cli {

/// What `screenshots` is asked.
struct ScreenshotRequest
{
    QString folder; ///< made when missing
    QString language;
    QSize size;       ///< of the panel's window, pixels
    QString examples; ///< folder of the recipes that fill the pages
};

/// The recipe files of a folder, sorted by name; empty with a reason when there are none.
QStringList exampleFiles(const QString &folder, QString *error);

/// Writes every page and dialog of the panel as a PNG. Needs a QApplication. Returns the exit code.
int runScreenshots(const ScreenshotRequest &request);

} // namespace cli

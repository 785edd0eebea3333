#pragma once

#include <QString>

namespace cli {

/// The whole path on the example recipes, told on standard output; pictures go to `folder`. Needs a
/// QApplication. Returns the exit code.
int runDemo(const QString &folder, const QString &examples);

} // namespace cli

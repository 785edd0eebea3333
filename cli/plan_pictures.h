#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace cli {

/// Shows the plan of the pattern page of `window` in one state of editing after another; `take` gets a name for
/// the picture of each. Nothing of it is written to the recipe. False when the page is not shown.
bool showPlanEdits(QWidget *window, const std::function<void(const QString &name)> &take);

} // namespace cli

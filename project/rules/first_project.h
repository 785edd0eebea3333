#pragma once

#include "orba/export.h"

#include <QString>

#include <functional>

namespace palx {

/// Makes a project of the recipes that are there and switches to it, so that a line can run that nobody has set up yet: a
/// side for each that has recipes, without lift column, its first recipe in use and no side enabled. Recipes without points
/// get them, and the controller gets all recipes and the shared tool. Asks before it begins, as `addProject` does; false,
/// after the message, when it was refused or failed. `showProgress` is told when work begins that handles no events, and when it
/// has ended.
PALX_API bool makeFirstProject(const QString &name,
                               const std::function<void(bool isRunning)> &showProgress = {});

} // namespace palx

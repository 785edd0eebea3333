#pragma once

#include "recipe_commands.h"

namespace cli {

/// The generated points of recipes as JSON: metres and radians, shortest exact numbers; layout in
/// docs/command-line.md. Empty with a reason when a number is not finite.
QByteArray pointsJson(const RecipeList &stacks, const QVector<LogRecord> &log, QString *error);

/// The same for people: millimetres and degrees, one line per point.
QByteArray pointsTable(const RecipeList &stacks);

} // namespace cli

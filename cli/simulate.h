#pragma once

#include "recipe_commands.h"

#include <QVector>

namespace cli {

/// A fault of the cell and when it comes about.
struct PlannedFault
{
    QString name;
    double time = 0; ///< [s] of simulated time
};

struct SimulateRequest
{
    RecipeRequest recipes;
    QString scheme; ///< "left", "right", "both"; empty: the sides that have recipes
    bool withLift = false;
    QVector<PlannedFault> faults;
    QString traceFile; ///< empty: none
    int seed = 1;
};

/// Makes a project of the recipes in a workspace of its own, runs its programs in the simulated cell until the pallets are
/// full, and prints what came of it. Returns the exit code: kDone only when every product lies on its pallet and nothing
/// was violated.
int runSimulate(const SimulateRequest &request);

/// Reads "NAME@TIME". False with a reason when there is no such fault or the time is none.
bool readFault(const QString &text, PlannedFault *fault, QString *why);

} // namespace cli

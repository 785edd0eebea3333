#pragma once

#include "session.h"

namespace cli {

using RecipeList = QList<orba::ModuleObject *>;

enum class Output { Table, Json };

/// What `points` and `check` are asked.
struct RecipeRequest
{
    QString file;
    QString stack; ///< name of one recipe; empty: all
    Output output = Output::Table;
};

/// Reads a file's recipes into the plug-in and says what was added to them; false when the reason has been
/// said.
bool loadRecipes(const QString &file);

/// Brings the plug-in up and the wanted recipes into it; false when the reason has been said.
bool openRecipes(Session &session, const RecipeRequest &request, RecipeList *stacks);

/// Regenerates all points of the recipes in a file and prints them. Returns the exit code.
int runPoints(const RecipeRequest &request);
/// Checks the recipes in a file and prints repairs, refusals and warnings. Returns the exit code.
int runCheck(const RecipeRequest &request);

} // namespace cli

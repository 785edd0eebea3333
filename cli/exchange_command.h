#pragma once

#include "panel_data.h"
#include "recipe_commands.h"
#include "stack/recipe_exchange.h"

namespace cli {

struct ExportRequest
{
    PanelPlaces places;
    QString file;
    QStringList names; ///< of recipes; empty: all
    Output output = Output::Table;
};

struct ImportRequest
{
    PanelPlaces places;
    QString file;
    palx::RecipeClash onClash = palx::RecipeClash::Rename;
    Output output = Output::Table;
};

/// Writes recipes of a panel to an exchange file and prints which. Returns the exit code.
int runExport(const ExportRequest &request);
/// Merges the recipes of an exchange file into those of a panel and prints what became of each. Returns the exit code.
int runImport(const ImportRequest &request);

} // namespace cli

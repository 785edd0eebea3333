#pragma once

#include "project/rules/run_recovery.h"
#include "stack/recipe_exchange.h"
#include "stack/recipe_import.h"
#include "stack/recipe_match.h"

#include <QStringList>

/// Imports put recipes to other places of the list, and robot programs take a recipe by its place.
namespace palx {

/// Why an import must not be done, for the operator: it would replace a recipe that must keep its name and place
/// (`whyNotMove`). Empty when it may.
PALX_API QString whyNotImport(const RunRecovery &run, const orba::Node &stacks,
                              const std::vector<ImportStep> &steps);
/// Why the panel's list must not be sent, by how the controller holds it: programs run, and it would bring recipes to other
/// places. Empty when it may.
PALX_API QString whyNotSend(const RunRecovery &run, const std::vector<RecipeMatch> &matches);
/// Why the last import must not be taken back.
PALX_API QString whyNotTakeBack(const RunRecovery &run, const orba::Node &stacks, const LastImport &import);

/// Why no recipe may come to that place of the list. Empty when it may.
PALX_API QString whyNotInsert(const RunRecovery &run, const orba::Node &stacks, int place);

/// The recipes of the sides of the current project, by their names, so that the sides stay with them when the list becomes
/// another one. GUI thread.
class PALX_API KeptRecipes
{
public:
    /// As they are now.
    KeptRecipes();
    /// Tells the controller where they are by now. A side whose recipe is gone stays at its place.
    void follow() const;

private:
    QStringList names_; ///< by side
};

} // namespace palx

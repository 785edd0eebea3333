#pragma once

#include "link/recipe_summary.h"

#include <QString>

#include <vector>

/// Whether the controller holds the recipes that the panel holds. Compared are the points and the taught pick side, by the
/// summaries that the controller tells ("pallet.get.list"), and the places in the list, because robot programs take a
/// recipe by its place.
namespace palx {

enum class RecipePlace {
    Same,    ///< the controller has these points at this place
    Moved,   ///< the same points at another place
    Other,   ///< other points under this name
    Missing, ///< not on the controller
    Extra,   ///< only on the controller
};

struct PALX_API RecipeMatch
{
    QString name;
    RecipePlace place = RecipePlace::Missing;
    host::RecipeSummary panel;      ///< of the panel's recipe; unset for Extra
    host::RecipeSummary controller; ///< of the controller's; unset for Missing
    int panelIndex = -1;            ///< in the panel's list
    int controllerIndex = -1;       ///< in the controller's list
};

/// The controller's answer as summaries. False when it is no such list; `told` is then empty.
PALX_API bool readSummaries(const orba::Node &answer, std::vector<host::RecipeSummary> *told);

/// The panel's recipes in their order, then those that only the controller has, in its order.
PALX_API std::vector<RecipeMatch> matchRecipes(const std::vector<host::RecipeSummary> &panel,
                                               const std::vector<host::RecipeSummary> &told);
/// Whether the controller's recipes would get other places if it took the panel's list: programs take the next recipe by its
/// place.
PALX_API bool wouldMove(const std::vector<RecipeMatch> &matches);
/// How many of them are not the same on both sides.
PALX_API int countDiffering(const std::vector<RecipeMatch> &matches);

} // namespace palx

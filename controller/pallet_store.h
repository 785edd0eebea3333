#pragma once

#include "controller/record_files.h"
#include "link/recipe_summary.h"

#include <vector>

namespace controller {

/// The controller's own copy of the recipes, as the panel sent them and in its order. Names are unique.
///
/// The functions that change something return why they refuse, empty when done; a refusal changes nothing. What is stored
/// is taken out of the argument, because copying all recipes would take as long as reading them.
class PalletStore
{
public:
    /// With what was kept.
    explicit PalletStore(const std::vector<KeptRecord> &kept = {});

    /// Stores a recipe by its "name": in the place of one of that name, else at the end.
    QString setOne(orba::Node &recipe);
    /// A list of recipes takes the place of all.
    QString setAll(orba::Node &list);
    /// {"index", "name", "desc"}: names the recipe at that place.
    QString setName(const orba::Node &request);

    int count() const { return static_cast<int>(recipes_.size()); }
    /// Null when there is none of that name or index.
    const orba::Node *find(const QString &name) const;
    const orba::Node *at(int index) const;
    /// The same, to be held on to: a recipe that is stored anew is another object.
    std::shared_ptr<const orba::Node> shared(const QString &name) const;
    /// One entry for each recipe, see host::RecipeSummary.
    orba::Node summaries() const;

    /// All recipes, to be kept by their names.
    std::vector<KeptRecord> snapshot() const;

private:
    struct Recipe
    {
        std::shared_ptr<const orba::Node> data;
        host::RecipeSummary summary;
    };
    static Recipe makeRecipe(std::shared_ptr<const orba::Node> data);
    static Recipe takeRecipe(orba::Node &data);
    int indexOf(const QString &name) const;

    std::vector<Recipe> recipes_;
};

} // namespace controller

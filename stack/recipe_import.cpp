#include "stack/recipe_import.h"

#include "workstation/progress.h"

#include <QCoreApplication>

#include <algorithm>

namespace palx {

using orba::ModuleObject;
using orba::Name;
using orba::Node;

namespace {

struct ImportText
{
    Q_DECLARE_TR_FUNCTIONS(ImportText)
};

/// Copies of the ticked recipes, null ones for the others; false when it was cancelled.
bool copyRecipes(const Node &content, const std::vector<bool> &ticked, Progress &progress,
                 std::vector<Node> *copies)
{
    const std::vector<int> recipes = recipeIndexes(content);
    copies->resize(recipes.size());
    for (std::size_t i = 0; i < recipes.size() && i < ticked.size(); ++i) {
        if (!ticked[i])
            continue;
        const Node &recipe = *content.at(recipes[i]);
        progress.step(static_cast<int>(i), static_cast<int>(recipes.size()),
                      ImportText::tr("Merging the recipes"));
        if (progress.isCancelled())
            return false;
        (*copies)[i].setName(recipe.name());
        (*copies)[i].assign(recipe);
    }
    return true;
}

} // namespace

LastImport::LastImport(ModuleObject *list) : QObject(list), list_(list) {}

LastImport *LastImport::of(ModuleObject *list)
{
    return list->findChild<LastImport *>(QString(), Qt::FindDirectChildrenOnly);
}

QStringList LastImport::addedNames() const
{
    QStringList names;
    for (const QPointer<ModuleObject> &recipe : added_)
        if (recipe)
            names << recipe->getString("name");
    return names;
}

void LastImport::takeBack()
{
    Node &list = list_->node();
    for (const QPointer<ModuleObject> &recipe : added_)
        if (const int at = recipe ? list.indexOf(&recipe->node()) : -1; at >= 0)
            list.removeAt(at);
    for (Removed &removed : removed_) {
        QString name = removed.recipe.getString(u"name");
        while (recipeOfName(list, name) >= 0)
            name = nextRecipeName(name);
        if (name != removed.recipe.getString(u"name"))
            removed.recipe.ensureChild(Name(u"name"))->setString(name);
        Node *back = list.insert(std::min(removed.index, list.size()), removed.recipe.name());
        back->take(removed.recipe);
    }
    setParent(nullptr); // what follows the list finds no import any more
    list_->announceStructure();
    deleteLater();
}

void LastImport::add(Node *copy, const ImportStep &step)
{
    Node *recipe = list_->node().add(copy->name());
    recipe->take(*copy);
    if (step.arrival == ImportStep::Renamed)
        recipe->ensureChild(Name(u"name"))->setString(step.name);
    added_.emplace_back(ModuleObject::of(recipe));
}

void LastImport::remove(std::vector<int> children)
{
    Node &list = list_->node();
    std::sort(children.begin(), children.end());
    removed_.reserve(children.size()); // growing would copy the recipes again
    for (const int child : children)
        removed_.push_back({*list.at(child), child});
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        list.removeAt(*child);
}

bool importRecipes(ModuleObject *list, const Node &content, const std::vector<bool> &ticked,
                   RecipeClash onClash, Progress &progress)
{
    std::vector<Node> copies;
    if (list->isEmptyMobj() || !copyRecipes(content, ticked, progress, &copies) || !progress.enterLastPart())
        return false;
    const std::vector<ImportStep> steps = planImport(list->node(), content, ticked, onClash);
    if (std::none_of(steps.begin(), steps.end(), [](const ImportStep &step) { return step.arrives(); }))
        return true;
    delete LastImport::of(list);
    auto *import = new LastImport(list);
    std::vector<int> gone;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].arrives())
            import->add(&copies[i], steps[i]);
        if (steps[i].replaced >= 0)
            gone.push_back(steps[i].replaced);
    }
    import->remove(gone);
    list->announceStructure();
    return true;
}

} // namespace palx

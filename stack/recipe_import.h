#pragma once

#include "orba/module_object.h"
#include "stack/recipe_exchange.h"

#include <QPointer>

namespace palx {

/// What an import did to a list of recipes. It lives with the list, so the last import can be taken back until the panel
/// ends. GUI thread.
class PALX_API LastImport : public QObject
{
    Q_OBJECT

public:
    /// That of a list; null when nothing was imported, or it was taken back.
    static LastImport *of(orba::ModuleObject *list);

    /// Recipes that came and are still there.
    int addedCount() const { return addedNames().size(); }
    QStringList addedNames() const;
    /// Recipes that were replaced.
    int removedCount() const { return static_cast<int>(removed_.size()); }
    /// Removes what came, whatever was changed in it since, and puts back what was replaced, to its place and under its name
    /// or, if that is taken by now, under a free one. Announces the list once. Ends this.
    void takeBack();

private:
    friend PALX_API bool importRecipes(orba::ModuleObject *, const orba::Node &, const std::vector<bool> &,
                                       RecipeClash, Progress &);
    struct Removed
    {
        orba::Node recipe;
        int index; ///< among the children of the list, when all that were removed were there
    };

    explicit LastImport(orba::ModuleObject *list);
    void add(orba::Node *copy, const ImportStep &step);
    void remove(std::vector<int> children);

    orba::ModuleObject *list_;
    std::vector<QPointer<orba::ModuleObject>> added_;
    std::vector<Removed> removed_; ///< by index
};

/// Carries out `planImport`: new recipes are added at the end, and a replaced one goes when its successor stands. Announces the
/// list once and becomes its last import; one that adds nothing leaves the last one. False when it was cancelled; nothing has
/// then changed.
PALX_API bool importRecipes(orba::ModuleObject *list, const orba::Node &content,
                            const std::vector<bool> &ticked, RecipeClash onClash, Progress &progress);

} // namespace palx

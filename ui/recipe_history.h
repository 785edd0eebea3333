#pragma once

#include "orba/module_object.h"

#include <QList>
#include <QPointer>

/// What an undo step keeps: a recipe's content without the generated points, and the tools and work objects that all recipes
/// share.
struct PALX_API RecipeState
{
    orba::Node recipe;
    orba::Node tools; ///< "global_tool"
    orba::Node wobjs; ///< "global_wobj"

    bool hasSameShared(const RecipeState &other) const { return tools == other.tools && wobjs == other.wobjs; }
    bool operator==(const RecipeState &other) const { return recipe == other.recipe && hasSameShared(other); }
};

/// Undo and redo of edits to one recipe and to what it shares, by whole copies. Restoring writes values in place, so fields
/// tied to nodes follow.
class PALX_API RecipeHistory
{
public:
    static constexpr int kSteps = 100;

    /// Forgets everything and takes the recipe as it is now; null: no recipe.
    void start(orba::ModuleObject *stack);
    /// Makes a step of whatever changed since the last one; false when nothing did.
    bool commit();
    /// Takes over what was computed from the recipe since the last step, without a step of its own.
    void absorb();
    /// Each first makes a step of changes that were not committed. False when there is nothing to take back
    /// or repeat.
    bool undo();
    bool redo();
    bool canUndo() const { return !undo_.isEmpty(); }
    bool canRedo() const { return !redo_.isEmpty(); }
    /// Before and after the last successful commit, undo or redo.
    const RecipeState &before() const { return before_; }
    const RecipeState &present() const { return present_; }
    /// As the recipe is now.
    RecipeState now() const;
    /// Back to a state that `now` or `present` gave; no step of its own.
    void restore(const RecipeState &state);

private:
    bool step(QList<RecipeState> *from, QList<RecipeState> *to);

    QPointer<orba::ModuleObject> stack_;
    RecipeState before_;
    RecipeState present_;
    QList<RecipeState> undo_;
    QList<RecipeState> redo_;
};

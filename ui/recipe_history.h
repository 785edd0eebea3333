#pragma once

#include "orba/module_object.h"

#include <QList>
#include <QPointer>

/// Undo and redo of edits to one recipe, by whole copies of its content without the generated points.
/// Restoring writes values in place, so fields tied to nodes follow.
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
    /// The recipe's content before and after the last successful commit, undo or redo.
    const orba::Node &before() const { return before_; }
    const orba::Node &present() const { return present_; }

private:
    bool step(QList<orba::Node> *from, QList<orba::Node> *to);

    QPointer<orba::ModuleObject> stack_;
    orba::Node before_;
    orba::Node present_;
    QList<orba::Node> undo_;
    QList<orba::Node> redo_;
};

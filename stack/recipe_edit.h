#pragma once

#include "orba/module_object.h"

/// Rules for editing the list of recipes (stacks). No widgets: pages call these and show what they return. A
/// refusal is a sentence for the operator, empty when there is nothing to refuse.
namespace palx {

constexpr int kMaxRecipeName = 64; // fits a string variable of the controller and one line of the recipe list

/// Why a recipe must not be called `name`; empty when it may. `self` is the recipe that is being renamed and
/// may keep its name.
PALX_API QString recipeNameProblem(const orba::Node &stacks, const QString &name,
                                   const orba::Node *self = nullptr);
/// `wanted` when it may be used, else the first free name with its trailing number counted up ("Box9" leads
/// to "Box10", "Box" to "Box1"), shortened to fit.
PALX_API QString proposeRecipeName(const orba::Node &stacks, const QString &wanted);

/// A copy of the whole recipe, points included, behind all others, so that none gets another place.
PALX_API orba::ModuleObject *copyStack(orba::ModuleObject *stack, const QString &name);
/// Writes "name" and "desc", which old recipes may lack.
PALX_API void renameStack(orba::ModuleObject *stack, const QString &name, const QString &desc);

/// A recipe taken off the list, and where it stood.
struct PALX_API RemovedStack
{
    orba::Node node;
    int index = -1; ///< -1: nothing was removed
    bool isSet() const { return index >= 0; }
};
/// Ends the recipe's node and returns its content.
PALX_API RemovedStack removeStack(orba::ModuleObject *stack);
/// Puts a removed recipe back to its place, under its name or, if that is taken by now, under a free one.
PALX_API orba::ModuleObject *restoreStack(orba::ModuleObject *stacks, const RemovedStack &removed);

/// Adds what a recipe of an older version lacks: keys of the prototype (the template stack), the place side's
/// offsets of both sides, "name" and "desc", each layer's "pattern" and "h_offset". Values that are there
/// stay. Returns whether something was added.
PALX_API bool ensureRecipeKeys(orba::ModuleObject *stack, const orba::Node &prototype);

/// The recipe without its generated points and without what the dialogs of templates and automatic layouts were
/// last told: what an undo step keeps. Two such copies are equal when no edit lies between.
PALX_API orba::Node recipeContent(const orba::Node &stack);
/// Makes the recipe equal to `content` by writing values in place, so that fields tied to nodes follow. Nodes
/// are added and removed only where the structure differs; what `recipeContent` leaves out stays.
PALX_API void restoreContent(orba::ModuleObject *stack, const orba::Node &content);
/// The same for any node below a recipe.
PALX_API void restoreNode(orba::ModuleObject *target, const orba::Node &source);

} // namespace palx

#pragma once

#include "orba/module_object.h"

#include <QStringList>

/// Rules for the plane patterns of a recipe and the products (items) in them. No widgets.
///
/// An item's "x" is its centre across the pallet's width, "y" its centre along the pallet's length; an item
/// without rotation covers "w" across and "h" along. Millimetres and degrees. Points follow the order of a
/// pattern's children, so every change of order renumbers "index" from 1.
namespace palx {

constexpr int kMaxPatternName = 32;
constexpr int kMaxItems = 200; // per pattern, a limit of the controller's pallet data

/// Names of the feeding directions in the order of their codes.
PALX_API const QStringList &directionNames();
/// The name as it stands in `directionNames`, whatever its case; empty when there is none.
PALX_API QString directionName(const QString &text);

/// Why a pattern that is not there yet must not be called `name` among `patterns`: blank, longer than
/// kMaxPatternName, taken or reserved, the first that holds. Which letters there are is the field's business.
PALX_API QString newPatternProblem(const orba::Node &patterns, const QString &name);
/// The first single character from "A" on that no pattern is called; after "Z" the character codes go on.
PALX_API QString firstFreeLetter(const orba::Node &patterns);
/// A new pattern among `patterns`, empty or with the items of `cloneOf`; the empty node when the name is
/// refused.
PALX_API orba::ModuleObject *createPattern(orba::ModuleObject *patterns, const QString &name,
                                           const QString &cloneOf = QString());

/// Why a pattern must not be called `name`, letters included; empty when it may.
PALX_API QString patternNameProblem(const orba::Node &stack, const QString &name);
/// The first free single letter from "A", then "A1", "A2", ...
PALX_API QString proposePatternName(const orba::Node &stack);
PALX_API QStringList patternNames(const orba::Node &stack);
/// The items of a pattern; null when there is none of that name.
PALX_API const orba::Node *findPattern(const orba::Node &stack, const QString &name);
/// How many layers use the pattern.
PALX_API int patternUse(const orba::Node &stack, const QString &name);

/// The same with the rules of `patternNameProblem`.
PALX_API orba::ModuleObject *addPattern(orba::ModuleObject *stack, const QString &name,
                                        const QString &cloneOf = QString());
/// Renames the pattern and every layer that uses it; false when there is none or the new name is refused.
PALX_API bool renamePattern(orba::ModuleObject *stack, const QString &name, const QString &newName);
/// Why the pattern should not be removed: the layers that use it; empty when none does.
PALX_API QString patternRemovalProblem(const orba::Node &stack, const QString &name);
/// Removes the pattern; layers that use it keep its name and are reported by `layerProblems`.
PALX_API bool removePattern(orba::ModuleObject *stack, const QString &name);

/// Appends a product of the recipe's size at the next place of a row by row filling; -1 when the pattern is
/// full.
PALX_API int addItem(orba::ModuleObject *stack, const QString &pattern);
PALX_API bool removeItem(orba::ModuleObject *stack, const QString &pattern, int index);
PALX_API bool moveItem(orba::ModuleObject *stack, const QString &pattern, int from, int to);
/// How many items have another size than the recipe's product, as after the product was changed.
PALX_API int otherSizedItems(const orba::Node &stack, const QString &pattern);
/// Gives every item the size of the recipe's product; places and turns stay.
PALX_API void applyProductSize(orba::ModuleObject *stack, const QString &pattern);
/// Numbers the items 1, 2, ... in their order.
PALX_API void renumberItems(orba::ModuleObject *pattern);

} // namespace palx

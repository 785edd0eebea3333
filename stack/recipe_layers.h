#pragma once

#include "orba/module_object.h"

#include <QStringList>
#include <QVector>

/// Rules for the layer sequence of a recipe: editing, heights, totals, what is wrong with it. No widgets.
namespace palx {

/// The two patterns that every recipe has: a separator sheet, and the end of the stack.
PALX_API extern const QString kSheetPattern;
PALX_API extern const QString kEmptyPattern;

/// One layer as point generation sees it.
struct PALX_API LayerFacts
{
    QString pattern;
    int products = 0;
    double bottomMm = 0; ///< above the pallet's deck, "h_offset" included
    double topMm = 0;
    bool reached = true; ///< false behind the first layer without a pattern, where generation stops
};
/// Every layer in order; "empty" layers have no height.
PALX_API QVector<LayerFacts> layerFacts(const orba::Node &stack);

/// What the whole recipe amounts to, as far as generation reaches. Millimetres and kilograms.
struct PALX_API RecipeTotals
{
    int layers = 0; ///< with products
    int sheets = 0;
    int products = 0;
    double loadHeightMm = 0; ///< without the pallet
    double heightMm = 0;     ///< with the pallet
    double loadWeightKg = 0; ///< products and sheets
    double weightKg = 0;     ///< with the pallet
};
PALX_API RecipeTotals recipeTotals(const orba::Node &stack);

/// What keeps the sequence from giving the points one expects, one sentence each, in the order of layers.
PALX_API QStringList layerProblems(const orba::Node &stack);

/// Inserts a layer before `index` (or at the end when it is out of range); the new layer, or the empty node.
PALX_API orba::ModuleObject *insertLayer(orba::ModuleObject *stack, int index, const QString &pattern,
                                         double heightOffsetMm = 0);
/// Gives a layer a pattern of the recipe, the separator sheet or the end of the stack; false, without a change,
/// for another name or a layer that is not there.
PALX_API bool setLayerPattern(orba::ModuleObject *stack, int index, const QString &pattern);
PALX_API bool removeLayer(orba::ModuleObject *stack, int index);
/// Moves a layer to another place; false when one of the places does not exist.
PALX_API bool moveLayer(orba::ModuleObject *stack, int from, int to);

} // namespace palx

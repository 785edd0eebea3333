#pragma once

#include "orba/module_object.h"
#include "pattern/rules/pattern_items.h"
#include "stack/layer_series.h"

/// Mirrored and turned copies of patterns, for layers that are to lock into each other. GUI thread only.
namespace palx {

enum class PatternImage {
    LeftRight, ///< mirrored across the pallet's width
    FrontBack, ///< mirrored along the pallet's length
    HalfTurn,  ///< turned by 180 degrees about the pallet's middle
};

/// The items of a pattern as their image: same order and numbers, other places, turns and directions.
PALX_API QVector<PatternItem> imageItems(QVector<PatternItem> items, PatternImage image,
                                         const QSizeF &pallet);
/// The name of a pattern that is that image of another: one that is there already, which may be the pattern
/// itself, else a new one, whose name is made from the old. Empty when there is no such pattern.
PALX_API QString imageOfPattern(orba::ModuleObject *stack, const QString &pattern, PatternImage image);
/// Gives every layer of the set the image of its pattern; layers without products stay. Returns how many were
/// changed.
PALX_API int imageLayers(orba::ModuleObject *stack, const QVector<int> &layers, PatternImage image);
/// Lays the series with its first pattern and that pattern's image in turn. False, without a change, when it
/// cannot be laid.
PALX_API bool layImageSeries(orba::ModuleObject *stack, LayerSeries series, PatternImage image);

} // namespace palx

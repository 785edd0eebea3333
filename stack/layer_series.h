#pragma once

#include "orba/module_object.h"

#include <QStringList>
#include <QVector>

/// Rules that edit several layers of a recipe at once. Layers are counted from 0 at the pallet; a set of layers
/// is ascending, each once, and numbers of layers that do not exist are left out. No widgets.
namespace palx {

constexpr int kMaxLayers = 200; ///< more would be a slip of the finger

using LayerSet = QVector<int>;

/// Where a layer goes that is laid on top of the stack: before the first layer that ends it (empty or without a
/// pattern), else behind all.
PALX_API int stackEnd(const orba::Node &stack);

/// A separator sheet onto each of the layers that holds products and has no sheet on it; switches separator
/// sheets on. Returns how many were laid; none when there would be too many layers.
PALX_API int insertSheets(orba::ModuleObject *stack, const LayerSet &layers);
/// Returns how many were removed.
PALX_API int removeLayers(orba::ModuleObject *stack, const LayerSet &layers);
/// Each layer one place up (later) or down (earlier); those that would leave the sequence stay, and so do those
/// that stand against them. Returns where they are then.
PALX_API LayerSet moveLayers(orba::ModuleObject *stack, const LayerSet &layers, bool up);
/// Lays copies of the layers on top, in their order. Returns how many were laid; none when there would be too
/// many layers.
PALX_API int repeatLayers(orba::ModuleObject *stack, const LayerSet &layers);

/// Layers that take turns.
struct PALX_API LayerSeries
{
    QStringList patterns; ///< in turn; at least one
    int count = 1;        ///< layers of products
    int sheetEvery = 0;   ///< a separator sheet after so many of them, not after the last; 0: none
    int from = -1;        ///< replaces the layers from here on; -1: goes on top
};
/// The layer list as it will be; without children when the series cannot be laid (see `seriesProblem`).
PALX_API orba::Node seriesLayers(const orba::Node &stack, const LayerSeries &series);
/// Why the series cannot be laid; empty when it can.
PALX_API QString seriesProblem(const orba::Node &stack, const LayerSeries &series);
/// Lays it; layers that stay keep their nodes. Switches separator sheets on when there are some. False, without
/// a change, when it cannot be laid.
PALX_API bool laySeries(orba::ModuleObject *stack, const LayerSeries &series);

} // namespace palx

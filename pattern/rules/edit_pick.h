#pragma once

#include "pattern/rules/edit_move.h"

/// Which products a finger or a frame on the plan means. Millimetres, in the plan's frame.
namespace palx {

/// The items under a point, uppermost (placed last) first; when there are none, the nearest one whose bounds
/// lie within `reachMm`.
PALX_API QVector<int> itemsAt(const QVector<PatternItem> &items, const QPointF &point, double reachMm = 0);
/// The items whose middles lie in a frame.
PALX_API Selection itemsInFrame(const QVector<PatternItem> &items, const QRectF &frame);
/// Adds a place, or takes it out when it is there.
PALX_API Selection toggled(Selection selection, int place);
/// Ascending, each once, only places below `count`.
PALX_API Selection tidied(Selection selection, int count);

} // namespace palx

#pragma once

#include "pattern/rules/edit_move.h"

/// Which products a finger or a frame on the plan means. Millimetres, in the plan's frame.
namespace palx {

/// The items under a point, uppermost (placed last) first; when there are none, the nearest one whose bounds
/// lie within `reachMm`.
PALX_API QVector<int> itemsAt(const QVector<PatternItem> &items, const QPointF &point, double reachMm = 0);
/// How far beside a product a finger may touch and still mean it, where a pixel of the view is `pixelMm`: 0 when
/// every product is larger than a fingertip.
PALX_API double fingerReachMm(const QVector<PatternItem> &items, double pixelMm);
/// The items whose middles lie in a frame.
PALX_API Selection itemsInFrame(const QVector<PatternItem> &items, const QRectF &frame);
/// Adds a place, or takes it out when it is there.
PALX_API Selection toggled(Selection selection, int place);
/// Ascending, each once, only places below `count`.
PALX_API Selection tidied(Selection selection, int count);

} // namespace palx

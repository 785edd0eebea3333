#pragma once

#include "pattern/rules/edit_move.h"

/// Orders of placing. An order lists the present places (from 0) in their new sequence; every item is in it once.
namespace palx {

enum class PlanCorner { TopLeft, TopRight, BottomLeft, BottomRight };

/// The tapped items first, as they were tapped; the others follow in their present order. Places that do not exist
/// or come twice are left out.
PALX_API QVector<int> orderByTaps(int count, const QVector<int> &taps);
/// Row by row from a corner of the plan, rows running along `run`; each row starts on the corner's side. A row
/// is what has its middle beside the row's item that lies nearest to the corner's edge.
PALX_API QVector<int> orderByRows(const QVector<PatternItem> &items, PlanCorner corner, PlanAxis run);
/// By the distance of the items' middles from the outermost point of the pattern in that corner; equally far
/// ones keep their order.
PALX_API QVector<int> orderFromCorner(const QVector<PatternItem> &items, PlanCorner corner);

/// The items in that order, numbered from 1.
PALX_API QVector<PatternItem> reordered(const QVector<PatternItem> &items, const QVector<int> &order);
/// Numbers the items from 1 in their sequence.
PALX_API void numberItems(QVector<PatternItem> *items);

} // namespace palx

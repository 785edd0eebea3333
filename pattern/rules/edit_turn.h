#pragma once

#include "pattern/rules/edit_move.h"

/// Turning and mirroring products of a pattern. Angles are whole degrees, clockwise seen from above, and end up
/// between 0 and 359.
///
/// The sides from which products come, with their offsets, turn and mirror along whenever the products keep
/// their places among each other: mirroring, turning the whole pattern, turning several products by a multiple of
/// 90 degrees. A single product that turns keeps its neighbours, so it keeps its side.
namespace palx {

/// Turns the selected items as one body about the middle of the area around them.
PALX_API void turnItems(QVector<PatternItem> *items, const Selection &selection, int degrees);
/// The mirror image of the whole pattern on the pallet. `axis` is the one along which places are exchanged:
/// across, left and right. Label sides come to lie on the mirrored side too, for which products turn.
PALX_API void mirrorPattern(QVector<PatternItem> *items, PlanAxis axis, const QSizeF &pallet);
/// The whole pattern by 180 degrees about the pallet's middle.
PALX_API void turnPattern(QVector<PatternItem> *items, const QSizeF &pallet);

} // namespace palx

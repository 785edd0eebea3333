#pragma once

#include "pattern/rules/item_geometry.h"

/// Moving, aligning and distributing products of a pattern. Millimetres, in the plan's frame. New positions are
/// rounded to 0.01 mm, which is what recipes keep.
namespace palx {

/// Places in the placing order, from 0, ascending.
using Selection = QVector<int>;

/// The axes of the plan: across is the pallet's width (x), along its length (y).
enum class PlanAxis { Across, Along };

constexpr double kPositionStepMm = 0.01;
PALX_API double roundedMm(double mm);

/// Around the selected items; null without any.
PALX_API QRectF selectionBounds(const QVector<PatternItem> &items, const Selection &selection);
PALX_API void shiftItem(PatternItem *item, const QPointF &shift);
PALX_API void moveItems(QVector<PatternItem> *items, const Selection &selection, const QPointF &shift);

enum class Alignment { Left, CentreAcross, Right, Top, CentreAlong, Bottom };
/// Brings the selected items' edges or middles onto one line: of the area around all of them, or of `frame`
/// when only one is selected.
PALX_API void alignItems(QVector<PatternItem> *items, const Selection &selection, Alignment alignment,
                         const QRectF &frame);
/// Equal gaps between the selected items along an axis; the two outer ones stay. False, without a change, for
/// fewer than three.
PALX_API bool distributeItems(QVector<PatternItem> *items, const Selection &selection, PlanAxis axis);

} // namespace palx

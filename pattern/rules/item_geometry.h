#pragma once

#include "pattern/rules/pattern_items.h"

#include <QPointF>
#include <QRectF>

#include <array>

/// What items cover on the plan, and where they collide or stick out. Millimetres, in the plan's frame.
namespace palx {

/// Items that reach into each other by no more than this only touch: absorbs the rounding of typed values and
/// lies far below what a gripper can place.
constexpr double kContactMm = 0.01;

/// The four corners in turning order, beginning with the one that is upper left while the item is not turned.
using Corners = std::array<QPointF, 4>;

/// A vector turned clockwise as seen on the plan; exact for multiples of 90 degrees.
PALX_API QPointF turned(const QPointF &vector, int degrees);
PALX_API Corners itemCorners(const PatternItem &item);
/// The direction, as long as the edge, that looks away from the edge after that corner.
PALX_API QPointF outwardsOf(const Corners &outline, int edge);
/// The smallest upright rectangle around the item.
PALX_API QRectF itemBounds(const PatternItem &item);
/// Around all items; null without items.
PALX_API QRectF itemsBounds(const QVector<PatternItem> &items);
/// Whether the item's sides are parallel to the pallet's.
PALX_API bool isUpright(const PatternItem &item);

/// How deep two items reach into each other (the shortest way apart); 0 when they only touch or are apart.
PALX_API double overlapMm(const Corners &a, const Corners &b);
/// The gap between two items, measured square to one of their sides: past a corner it is the longer of the two
/// ways. Negative: how deep they reach into each other.
PALX_API double gapMm(const Corners &a, const Corners &b);

/// How far something reaches over each edge of the pallet; 0 where it stays inside.
struct PALX_API Overhang
{
    double left = 0, top = 0, right = 0, bottom = 0;
    bool any() const { return left > 0 || top > 0 || right > 0 || bottom > 0; }
};
PALX_API Overhang overhangOf(const QRectF &bounds, const QSizeF &pallet);

struct PALX_API Overlap
{
    int first = 0, second = 0; ///< places in the placing order, from 0; first < second
    double depthMm = 0;
};

/// From so many pairs on, only items that are not yet known to overlap are looked at: a heap of boxes in one
/// spot has millions of pairs and nothing more to say.
constexpr int kMaxListedOverlaps = 500;

/// Whatever collides or sticks out in one layer.
struct PALX_API LayoutFindings
{
    QVector<Overhang> overhangs; ///< one per item
    QVector<Overlap> overlaps;   ///< sorted by first, then second
    Overhang worst;              ///< the farthest over each edge
    QVector<bool> overlapping;   ///< one per item
    int overhangCount() const;
};
/// `pallet` is its size across and along.
PALX_API LayoutFindings judgeLayout(const QVector<PatternItem> &items, const QSizeF &pallet);

} // namespace palx

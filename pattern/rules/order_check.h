#pragma once

#include "pattern/rules/approach.h"
#include "pattern/rules/item_geometry.h"

/// Whether every product of a layer reaches its place in its order without touching one that lies there
/// already. Millimetres, in the plan's frame.
///
/// A product comes straight from its approach's shift to its place, at the height of the layer; products placed
/// before it stand in its way, later ones do not. One whose direction is "Middle" (or unknown) comes from above
/// and hits nothing, as does one whose shift is 0.
namespace palx {

/// The product at `item` touches the one at `placed` on its way. Places in the placing order, from 0.
struct PALX_API OrderHit
{
    int item = 0, placed = 0; ///< placed < item
    double depthMm = 0;       ///< how deep its path leads into the other
};
inline bool operator==(const OrderHit &a, const OrderHit &b)
{
    return a.item == b.item && a.placed == b.placed && a.depthMm == b.depthMm;
}

/// From so many hits on, only one is looked for per product: a heap of boxes has nothing more to say.
constexpr int kMaxListedHits = 500;

struct PALX_API OrderFindings
{
    QVector<OrderHit> hits; ///< sorted by item, then placed
    QVector<bool> blocked;  ///< one per item: its path hits something
};
PALX_API OrderFindings checkOrder(const QVector<PatternItem> &items, const ApproachFrame &frame);

/// How deep the path of a product that comes from `shift` (as in `Approach::shift`) leads into one that lies
/// there; 0 when it passes. Products that overlap at their places anyway count only when the path leads deeper.
PALX_API double pathDepthMm(const Corners &item, const QPointF &shift, const Corners &placed);

} // namespace palx

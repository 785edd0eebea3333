#pragma once

#include "pattern/rules/approach.h"
#include "pattern/rules/item_geometry.h"

#include <QPoint>

#include <optional>

/// Proposes from which side each product of a layer comes: from its open side, away from those that lie there
/// before it in the placing order. Millimetres, in the plan's frame; later layers and edges of the pallet do not
/// matter.
///
/// Steps, for each product in its order: a side of the plan is closed when a product that came straight from
/// it, as far as the offset, would touch one already placed. The product comes from opposite the closed sides:
/// beside one neighbour straight away from it, in a corner on the diagonal. With no side closed it comes from
/// above ("Middle"). Where that way is barred (a neighbour on the diagonal, neighbours on opposite sides) the
/// open side farthest from what is placed is taken; with no open side the product comes from above and is
/// reported as hemmed in.
namespace palx {

struct PALX_API FeedingOffsets
{
    double dx = 100, dy = 100; ///< along and across the plan, as in an item; for products whose own is 0
};

struct PALX_API Feeding
{
    Direction direction = Direction::Middle;
    double dx = 0, dy = 0; ///< 0 from above, where offsets would move the product sideways
    bool hemmedIn = false; ///< every side is closed: it must come from above, between its neighbours
};
inline bool operator==(const Feeding &a, const Feeding &b)
{
    return a.direction == b.direction && a.dx == b.dx && a.dy == b.dy && a.hemmedIn == b.hemmedIn;
}

/// One proposal per item. Negative offsets count as their size.
PALX_API QVector<Feeding> proposeFeeding(const QVector<PatternItem> &items, const ApproachFrame &frame,
                                         const FeedingOffsets &offsets = FeedingOffsets());

/// The direction that brings a product from a side of the plan (-1, 0 or 1 across and along); "Middle" for (0, 0),
/// and when no direction leads there. Which word that is depends on the pallet's frame.
PALX_API Direction directionFrom(const QPoint &side, const ApproachFrame &frame);
/// From which side of the plan the product comes; (0, 0) from above.
PALX_API QPoint sideOf(const PatternItem &item, const ApproachFrame &frame);

/// Takes over direction and offsets; "dz" stays.
PALX_API void applyFeeding(PatternItem *item, const Feeding &feeding);

/// What is set by hand, for one product or for many; what is not there stays.
struct FeedingEdit
{
    std::optional<Direction> direction;
    std::optional<double> dx, dy, dz;
};
PALX_API void editFeeding(PatternItem *item, const FeedingEdit &edit);

} // namespace palx

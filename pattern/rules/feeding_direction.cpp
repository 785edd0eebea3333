#include "pattern/rules/feeding_direction.h"

#include "pattern/rules/order_check.h"
#include "stack/recipe_patterns.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

int sign(double value)
{
    return value > kContactMm ? 1 : value < -kContactMm ? -1 : 0;
}

void setDirection(PatternItem *item, Direction direction)
{
    item->direction = direction;
    item->directionText = directionNames().at(static_cast<int>(direction));
    item->faults.setFlag(ItemFault::UnknownDirection, false);
}

double ownOr(double own, double offset)
{
    return std::abs(own) > kContactMm ? std::abs(own) : std::abs(offset);
}

constexpr int kSides = 4;
const std::array<QPoint, kSides> kSide{QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)};

/// One product looking for its way in.
class WayIn
{
public:
    WayIn(PatternItem item, const ApproachFrame &frame, const QVector<Corners> &placed,
          const FeedingOffsets &offsets)
        : item_(std::move(item)), frame_(frame), placed_(placed), corners_(itemCorners(item_))
    {
        item_.dx = ownOr(item_.dx, offsets.dx);
        item_.dy = ownOr(item_.dy, offsets.dy);
        for (int i = 0; i < kSides; ++i)
            closed_[i] = !isOpen(kSide[i]);
    }

    Feeding find() const
    {
        for (const QPoint &side : sidesToTry()) {
            if (isOpen(side))
                return from(side);
        }
        Feeding above;
        above.hemmedIn = closedCount() == kSides;
        return above;
    }

private:
    /// The product with the direction that brings it from that side of the plan.
    PatternItem comingFrom(const QPoint &side) const
    {
        PatternItem item = item_;
        setDirection(&item, directionFrom(side, frame_));
        return item;
    }

    bool isOpen(const QPoint &side) const
    {
        const QPointF shift = approachOf(comingFrom(side), frame_).shift;
        return std::none_of(placed_.begin(), placed_.end(),
                            [&](const Corners &other) { return pathDepthMm(corners_, shift, other) > 0; });
    }
    int closedCount() const { return static_cast<int>(std::count(closed_.begin(), closed_.end(), true)); }

    Feeding from(const QPoint &side) const
    {
        const PatternItem item = comingFrom(side);
        return {item.direction, item.dx, item.dy, false};
    }

    /// None when the product has room all around it.
    QVector<QPoint> sidesToTry() const
    {
        if (closedCount() == 0)
            return {};
        QVector<QPoint> sides;
        QPoint opposite;
        for (int i = 0; i < kSides; ++i) {
            sides.append(kSide[i]);
            if (closed_[i])
                opposite -= kSide[i];
        }
        const QPointF away = awayFromPlaced();
        std::stable_sort(sides.begin(), sides.end(), [&](const QPoint &a, const QPoint &b) {
            return QPointF::dotProduct(away, a) > QPointF::dotProduct(away, b);
        });
        if (!opposite.isNull())
            sides.prepend(opposite);
        return sides;
    }

    QPointF awayFromPlaced() const
    {
        QPointF sum;
        for (const Corners &other : placed_)
            sum += corners_[0] + corners_[2] - other[0] - other[2];
        return sum;
    }

    PatternItem item_;
    const ApproachFrame &frame_;
    const QVector<Corners> &placed_;
    Corners corners_;
    std::array<bool, kSides> closed_{};
};

} // namespace

QVector<Feeding> proposeFeeding(const QVector<PatternItem> &items, const ApproachFrame &frame,
                                const FeedingOffsets &offsets)
{
    QVector<Feeding> proposals;
    QVector<Corners> placed;
    for (const PatternItem &item : items) {
        proposals.append(WayIn(item, frame, placed, offsets).find());
        placed.append(itemCorners(item));
    }
    return proposals;
}

Direction directionFrom(const QPoint &side, const ApproachFrame &frame)
{
    for (int i = 0; i < static_cast<int>(Direction::Middle); ++i) {
        PatternItem item;
        setDirection(&item, static_cast<Direction>(i));
        if (sideOf(item, frame) == side)
            return item.direction;
    }
    return Direction::Middle;
}

QPoint sideOf(const PatternItem &item, const ApproachFrame &frame)
{
    const QPointF side = approachOf(item, frame).side;
    return QPoint(sign(side.x()), sign(side.y()));
}

void applyFeeding(PatternItem *item, const Feeding &feeding)
{
    setDirection(item, feeding.direction);
    item->dx = feeding.dx;
    item->dy = feeding.dy;
}

void editFeeding(PatternItem *item, const FeedingEdit &edit)
{
    if (edit.direction)
        setDirection(item, *edit.direction);
    item->dx = edit.dx.value_or(item->dx);
    item->dy = edit.dy.value_or(item->dy);
    item->dz = edit.dz.value_or(item->dz);
}

} // namespace palx

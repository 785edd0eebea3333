#include "pattern/rules/order_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace palx {

namespace {

double dot(const QPointF &a, const QPointF &b)
{
    return a.x() * b.x() + a.y() * b.y();
}

/// A convex figure's shadow on an axis; `shift` not null: of the figure swept along it.
struct Shadow
{
    double low, high;
    Shadow(const Corners &figure, const QPointF &axis, const QPointF &shift = QPointF())
        : low(dot(figure[0], axis)), high(low)
    {
        for (const QPointF &corner : figure) {
            low = std::min(low, dot(corner, axis));
            high = std::max(high, dot(corner, axis));
        }
        low += std::min(0.0, dot(shift, axis));
        high += std::max(0.0, dot(shift, axis));
    }
};

QPointF unit(const QPointF &vector)
{
    return vector / std::max(std::hypot(vector.x(), vector.y()), kContactMm);
}

/// The swept figure is convex: its sides are the figure's own and two along the shift.
double sweptDepth(const Corners &figure, const QPointF &shift, const Corners &placed)
{
    const std::array<QPointF, 5> axes{unit(figure[1] - figure[0]), unit(figure[3] - figure[0]),
                                      unit(placed[1] - placed[0]), unit(placed[3] - placed[0]),
                                      unit(QPointF(-shift.y(), shift.x()))};
    double depth = std::numeric_limits<double>::infinity();
    for (const QPointF &axis : axes) {
        const Shadow path(figure, axis, shift);
        const Shadow other(placed, axis);
        depth = std::min({depth, path.high - other.low, other.high - path.low});
        if (depth <= kContactMm)
            return 0;
    }
    return depth;
}

QRectF boundsOf(const Corners &figure)
{
    const Shadow across(figure, QPointF(1, 0));
    const Shadow along(figure, QPointF(0, 1));
    return QRectF(QPointF(across.low, along.low), QPointF(across.high, along.high));
}

bool comesFromAbove(const PatternItem &item, const QPointF &shift)
{
    return item.direction == Direction::Middle || std::hypot(shift.x(), shift.y()) <= kContactMm;
}

void findHits(int item, const QPointF &shift, const QVector<Corners> &corners, const QVector<QRectF> &bounds,
              OrderFindings *findings)
{
    const QRectF path = bounds[item] | bounds[item].translated(shift);
    for (int placed = 0; placed < item; ++placed) {
        if (!path.intersects(bounds[placed]))
            continue;
        const double depth = pathDepthMm(corners[item], shift, corners[placed]);
        if (depth <= 0)
            continue;
        findings->hits.append({item, placed, depth});
        findings->blocked[item] = true;
        if (findings->hits.size() >= kMaxListedHits)
            return;
    }
}

} // namespace

double pathDepthMm(const Corners &item, const QPointF &shift, const Corners &placed)
{
    const double depth = sweptDepth(item, shift, placed);
    return depth > overlapMm(item, placed) + kContactMm ? depth : 0;
}

OrderFindings checkOrder(const QVector<PatternItem> &items, const ApproachFrame &frame)
{
    OrderFindings findings;
    QVector<Corners> corners;
    QVector<QRectF> bounds;
    for (int i = 0; i < items.size(); ++i) {
        corners.append(itemCorners(items[i]));
        bounds.append(boundsOf(corners.last()));
        findings.blocked.append(false);
        const QPointF shift = approachOf(items[i], frame).shift;
        if (!comesFromAbove(items[i], shift))
            findHits(i, shift, corners, bounds, &findings);
    }
    return findings;
}

} // namespace palx

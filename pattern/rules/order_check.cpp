#include "pattern/rules/order_check.h"

#include "pattern/rules/shadows.h"

namespace palx {

namespace {

Shadow swept(Shadow shadow, double shift)
{
    return {shadow.low + std::min(0.0, shift), shadow.high + std::max(0.0, shift)};
}

/// The swept figure is convex: its sides are the figure's own and two along the shift.
double sweptDepth(const Corners &figure, const QPointF &shift, const Corners &placed)
{
    const auto own = axesOf(figure);
    const auto others = axesOf(placed);
    double depth = std::numeric_limits<double>::infinity();
    for (const QPointF &axis :
         {own[0], own[1], others[0], others[1], unitOf(QPointF(-shift.y(), shift.x()))}) {
        const Shadow path = swept(shadowOf(figure, axis), QPointF::dotProduct(shift, axis));
        depth = std::min(depth, commonMm(path, shadowOf(placed, axis)));
        if (depth <= kContactMm)
            return 0;
    }
    return depth;
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

#include "pattern/rules/item_geometry.h"

#include "pattern/rules/shadows.h"

namespace palx {

namespace {

double over(double distance)
{
    return distance > kContactMm ? distance : 0;
}

void widen(Overhang *worst, const Overhang &one)
{
    worst->left = std::max(worst->left, one.left);
    worst->top = std::max(worst->top, one.top);
    worst->right = std::max(worst->right, one.right);
    worst->bottom = std::max(worst->bottom, one.bottom);
}

void findOverlaps(const QVector<Corners> &corners, const QVector<QRectF> &bounds, LayoutFindings *findings)
{
    eachNearPair(bounds, 0, [&](int first, int second) {
        const bool known = findings->overlapping[first] && findings->overlapping[second];
        if (known && findings->overlaps.size() >= kMaxListedOverlaps)
            return;
        const double depth = overlapMm(corners[first], corners[second]);
        if (depth <= 0)
            return;
        findings->overlaps.append({first, second, depth});
        findings->overlapping[first] = findings->overlapping[second] = true;
    });
    std::sort(findings->overlaps.begin(), findings->overlaps.end(), [](const Overlap &a, const Overlap &b) {
        return a.first != b.first ? a.first < b.first : a.second < b.second;
    });
}

} // namespace

QPointF turned(const QPointF &vector, int degrees)
{
    switch ((degrees % 360 + 360) % 360) {
    case 0:
        return vector;
    case 90:
        return QPointF(-vector.y(), vector.x());
    case 180:
        return -vector;
    case 270:
        return QPointF(vector.y(), -vector.x());
    default:
        break;
    }
    const double angle = degrees * 3.141592653589793 / 180;
    return QPointF(vector.x() * std::cos(angle) - vector.y() * std::sin(angle),
                   vector.x() * std::sin(angle) + vector.y() * std::cos(angle));
}

Corners itemCorners(const PatternItem &item)
{
    const QPointF centre(item.x, item.y);
    const QPointF across = turned(QPointF(item.w / 2, 0), item.r);
    const QPointF along = turned(QPointF(0, item.h / 2), item.r);
    return {centre - across - along, centre + across - along, centre + across + along,
            centre - across + along};
}

QPointF outwardsOf(const Corners &outline, int edge)
{
    const QPointF along = outline[(edge + 1) % 4] - outline[edge];
    return QPointF(along.y(), -along.x()); // corners go round clockwise
}

QRectF itemBounds(const PatternItem &item)
{
    return boundsOf(itemCorners(item));
}

QRectF itemsBounds(const QVector<PatternItem> &items)
{
    QRectF all;
    for (const PatternItem &item : items)
        all |= itemBounds(item);
    return all;
}

bool isUpright(const PatternItem &item)
{
    return item.r % 90 == 0;
}

double overlapMm(const Corners &a, const Corners &b)
{
    return over(-gapMm(a, b));
}

double gapMm(const Corners &a, const Corners &b)
{
    double common = std::numeric_limits<double>::infinity();
    for (const Corners *figure : {&a, &b}) {
        for (const QPointF &axis : axesOf(*figure))
            common = std::min(common, commonMm(shadowOf(a, axis), shadowOf(b, axis)));
    }
    return -common;
}

Overhang overhangOf(const QRectF &bounds, const QSizeF &pallet)
{
    return {over(-bounds.left()), over(-bounds.top()), over(bounds.right() - pallet.width()),
            over(bounds.bottom() - pallet.height())};
}

int LayoutFindings::overhangCount() const
{
    return static_cast<int>(
        std::count_if(overhangs.begin(), overhangs.end(), [](const Overhang &o) { return o.any(); }));
}

LayoutFindings judgeLayout(const QVector<PatternItem> &items, const QSizeF &pallet)
{
    LayoutFindings findings;
    QVector<Corners> corners;
    QVector<QRectF> bounds;
    for (const PatternItem &item : items) {
        corners.append(itemCorners(item));
        bounds.append(boundsOf(corners.last()));
        findings.overhangs.append(overhangOf(bounds.last(), pallet));
        findings.overlapping.append(false);
        widen(&findings.worst, findings.overhangs.last());
    }
    findOverlaps(corners, bounds, &findings);
    return findings;
}

} // namespace palx

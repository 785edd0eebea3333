#pragma once

#include "pattern/rules/item_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

/// Shadows of convex figures on axes, by which the rules of this folder find overlaps, gaps and paths.
namespace palx {

struct Shadow
{
    double low, high;
};

inline Shadow shadowOf(const Corners &figure, const QPointF &axis)
{
    Shadow shadow{QPointF::dotProduct(figure[0], axis), QPointF::dotProduct(figure[0], axis)};
    for (const QPointF &corner : figure) {
        shadow.low = std::min(shadow.low, QPointF::dotProduct(corner, axis));
        shadow.high = std::max(shadow.high, QPointF::dotProduct(corner, axis));
    }
    return shadow;
}

/// How far two shadows lie in each other; negative: the gap between them.
inline double commonMm(const Shadow &a, const Shadow &b)
{
    return std::min(a.high - b.low, b.high - a.low);
}

inline QPointF unitOf(const QPointF &vector)
{
    return vector / std::max(std::hypot(vector.x(), vector.y()), kContactMm);
}

/// Unit vectors along the two sides of a rectangle.
inline std::array<QPointF, 2> axesOf(const Corners &figure)
{
    return {unitOf(figure[1] - figure[0]), unitOf(figure[3] - figure[0])};
}

inline QRectF boundsOf(const Corners &figure)
{
    const Shadow across = shadowOf(figure, QPointF(1, 0));
    const Shadow along = shadowOf(figure, QPointF(0, 1));
    return QRectF(QPointF(across.low, along.low), QPointF(across.high, along.high));
}

/// Calls `pair(i, j)`, i < j, for the rectangles that may come closer than `gapMm` across, sweeping them from
/// left to right.
template <typename Pair> void eachNearPair(const QVector<QRectF> &bounds, double gapMm, Pair pair)
{
    QVector<int> order(bounds.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) { return bounds[a].left() < bounds[b].left(); });
    for (int i = 0; i < order.size(); ++i) {
        const double reach = bounds[order[i]].right() + gapMm;
        for (int j = i + 1; j < order.size() && bounds[order[j]].left() < reach; ++j)
            pair(std::min(order[i], order[j]), std::max(order[i], order[j]));
    }
}

} // namespace palx

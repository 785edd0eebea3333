#include "pattern/rules/edit_order.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace palx {

namespace {

/// The items' bounds as seen from a corner: both axes lead away from it.
QVector<QRectF> seenFrom(const QVector<PatternItem> &items, PlanCorner corner)
{
    const bool right = corner == PlanCorner::TopRight || corner == PlanCorner::BottomRight;
    const bool bottom = corner == PlanCorner::BottomLeft || corner == PlanCorner::BottomRight;
    QVector<QRectF> seen;
    for (const PatternItem &item : items) {
        const QRectF bounds = itemBounds(item);
        seen.append(QRectF(right ? -bounds.right() : bounds.left(), bottom ? -bounds.bottom() : bounds.top(),
                           bounds.width(), bounds.height()));
    }
    return seen;
}

QVector<int> identity(int count)
{
    QVector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

template <typename Key> void sortBy(QVector<int> *order, Key key)
{
    std::stable_sort(order->begin(), order->end(), [&](int a, int b) { return key(a) < key(b); });
}

} // namespace

QVector<int> orderByTaps(int count, const QVector<int> &taps)
{
    QVector<bool> taken(count, false);
    QVector<int> order;
    const auto take = [&](int place) {
        if (place < 0 || place >= count || taken[place])
            return;
        taken[place] = true;
        order.append(place);
    };
    for (const int place : taps)
        take(place);
    for (int place = 0; place < count; ++place)
        take(place);
    return order;
}

QVector<int> orderByRows(const QVector<PatternItem> &items, PlanCorner corner, PlanAxis run)
{
    QVector<QRectF> seen = seenFrom(items, corner);
    if (run == PlanAxis::Along) {
        for (QRectF &bounds : seen)
            bounds = QRectF(bounds.y(), bounds.x(), bounds.height(), bounds.width());
    }
    QVector<int> left = identity(items.size());
    sortBy(&left, [&](int i) { return seen[i].left(); });
    sortBy(&left, [&](int i) { return seen[i].top(); });
    QVector<int> order;
    while (!left.isEmpty()) {
        const double end = seen[left.first()].bottom();
        const auto rest = std::stable_partition(left.begin(), left.end(),
                                                [&](int i) { return seen[i].center().y() < end; });
        QVector<int> row(static_cast<int>(rest - left.begin()));
        std::copy(left.begin(), rest, row.begin());
        left.erase(left.begin(), rest);
        sortBy(&row, [&](int i) { return seen[i].center().x(); });
        order += row;
    }
    return order;
}

QVector<int> orderFromCorner(const QVector<PatternItem> &items, PlanCorner corner)
{
    const QVector<QRectF> seen = seenFrom(items, corner);
    QRectF all;
    for (const QRectF &bounds : seen)
        all |= bounds;
    QVector<int> order = identity(items.size());
    sortBy(&order, [&](int i) {
        const QPointF way = seen[i].center() - all.topLeft();
        return std::round(std::hypot(way.x(), way.y()) / kPositionStepMm); // rounding must not part equals
    });
    return order;
}

QVector<PatternItem> reordered(const QVector<PatternItem> &items, const QVector<int> &order)
{
    QVector<PatternItem> result;
    for (const int place : order)
        result.append(items[place]);
    numberItems(&result);
    return result;
}

void numberItems(QVector<PatternItem> *items)
{
    for (int i = 0; i < items->size(); ++i) {
        (*items)[i].index = i + 1;
        (*items)[i].faults.setFlag(ItemFault::NumberOutOfOrder, false);
    }
}

} // namespace palx

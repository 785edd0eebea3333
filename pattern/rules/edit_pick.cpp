#include "pattern/rules/edit_pick.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

/// Of a point from the nearest point of an area; 0 inside.
double distanceTo(const QRectF &area, const QPointF &point)
{
    const double across = std::max({area.left() - point.x(), 0.0, point.x() - area.right()});
    const double along = std::max({area.top() - point.y(), 0.0, point.y() - area.bottom()});
    return std::hypot(across, along);
}

bool covers(const PatternItem &item, const QPointF &point)
{
    const QPointF own = turned(point - QPointF(item.x, item.y), -item.r);
    return std::abs(own.x()) <= item.w / 2 && std::abs(own.y()) <= item.h / 2;
}

} // namespace

QVector<int> itemsAt(const QVector<PatternItem> &items, const QPointF &point, double reachMm)
{
    QVector<int> found;
    int nearest = -1;
    double least = reachMm;
    for (int i = items.size() - 1; i >= 0; --i) {
        if (covers(items[i], point))
            found.append(i);
        const double distance = distanceTo(itemBounds(items[i]), point);
        if (distance > 0 && distance <= least) {
            least = distance;
            nearest = i;
        }
    }
    if (found.isEmpty() && nearest >= 0)
        found.append(nearest);
    return found;
}

double fingerReachMm(const QVector<PatternItem> &items, double pixelMm)
{
    constexpr double kFingertipPixels = 40;
    constexpr double kReachPixels = 12;
    const bool small = std::any_of(items.begin(), items.end(), [pixelMm](const PatternItem &item) {
        return std::min(item.w, item.h) < kFingertipPixels * pixelMm;
    });
    return small ? kReachPixels * pixelMm : 0;
}

Selection itemsInFrame(const QVector<PatternItem> &items, const QRectF &frame)
{
    Selection selection;
    for (int i = 0; i < items.size(); ++i) {
        if (frame.contains(QPointF(items[i].x, items[i].y)))
            selection.append(i);
    }
    return selection;
}

Selection toggled(Selection selection, int place)
{
    if (!selection.removeOne(place))
        selection.insert(std::lower_bound(selection.begin(), selection.end(), place), place);
    return selection;
}

Selection tidied(Selection selection, int count)
{
    std::sort(selection.begin(), selection.end());
    selection.erase(std::unique(selection.begin(), selection.end()), selection.end());
    selection.erase(std::remove_if(selection.begin(), selection.end(),
                                   [count](int place) { return place < 0 || place >= count; }),
                    selection.end());
    return selection;
}

} // namespace palx

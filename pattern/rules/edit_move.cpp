#include "pattern/rules/edit_move.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

double &centre(PatternItem &item, PlanAxis axis)
{
    return axis == PlanAxis::Across ? item.x : item.y;
}

/// Low and high end of an item or area along an axis.
struct Extent
{
    double low, high;
    Extent(const QRectF &area, PlanAxis axis)
        : low(axis == PlanAxis::Across ? area.left() : area.top()),
          high(axis == PlanAxis::Across ? area.right() : area.bottom())
    {
    }
    double length() const { return high - low; }
};

PlanAxis axisOf(Alignment alignment)
{
    return alignment <= Alignment::Right ? PlanAxis::Across : PlanAxis::Along;
}

/// How far an extent must go to align with another.
double alignShift(Alignment alignment, const Extent &extent, const Extent &to)
{
    switch (alignment) {
    case Alignment::Left:
    case Alignment::Top:
        return to.low - extent.low;
    case Alignment::Right:
    case Alignment::Bottom:
        return to.high - extent.high;
    default:
        return (to.low + to.high - extent.low - extent.high) / 2;
    }
}

void shiftAlong(PatternItem *item, PlanAxis axis, double shift)
{
    double &value = centre(*item, axis);
    if (std::abs(shift) > kPositionStepMm / 2) // what lies there already keeps its digits
        value = roundedMm(value + shift);
}

} // namespace

double roundedMm(double mm)
{
    return std::round(mm / kPositionStepMm) / (1 / kPositionStepMm);
}

QRectF selectionBounds(const QVector<PatternItem> &items, const Selection &selection)
{
    QRectF bounds;
    for (const int i : selection)
        bounds |= itemBounds(items[i]);
    return bounds;
}

void shiftItem(PatternItem *item, const QPointF &shift)
{
    shiftAlong(item, PlanAxis::Across, shift.x());
    shiftAlong(item, PlanAxis::Along, shift.y());
}

void moveItems(QVector<PatternItem> *items, const Selection &selection, const QPointF &shift)
{
    for (const int i : selection)
        shiftItem(&(*items)[i], shift);
}

void alignItems(QVector<PatternItem> *items, const Selection &selection, Alignment alignment,
                const QRectF &frame)
{
    const PlanAxis axis = axisOf(alignment);
    const QRectF area = selection.size() == 1 ? frame : selectionBounds(*items, selection);
    for (const int i : selection) {
        PatternItem &item = (*items)[i];
        shiftAlong(&item, axis, alignShift(alignment, Extent(itemBounds(item), axis), Extent(area, axis)));
    }
}

bool distributeItems(QVector<PatternItem> *items, const Selection &selection, PlanAxis axis)
{
    if (selection.size() < 3)
        return false;
    Selection sorted = selection;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](int a, int b) { return centre((*items)[a], axis) < centre((*items)[b], axis); });
    const auto extent = [&](int i) { return Extent(itemBounds(items->at(i)), axis); };
    double inner = 0;
    for (int k = 1; k + 1 < sorted.size(); ++k)
        inner += extent(sorted[k]).length();
    double at = extent(sorted.first()).high;
    const double gap = (extent(sorted.last()).low - at - inner) / (sorted.size() - 1);
    for (int k = 1; k + 1 < sorted.size(); ++k) {
        const Extent own = extent(sorted[k]);
        shiftAlong(&(*items)[sorted[k]], axis, at + gap - own.low);
        at += gap + own.length();
    }
    return true;
}

} // namespace palx

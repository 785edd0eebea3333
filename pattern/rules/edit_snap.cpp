#include "pattern/rules/edit_snap.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace palx {

namespace {

struct Span
{
    double low, high;
    double middle() const { return (low + high) / 2; }
};

Span spanOf(const QRectF &area, PlanAxis axis)
{
    return axis == PlanAxis::Across ? Span{area.left(), area.right()} : Span{area.top(), area.bottom()};
}

PlanAxis otherAxis(PlanAxis axis)
{
    return axis == PlanAxis::Across ? PlanAxis::Along : PlanAxis::Across;
}

/// How far two areas lie in each other on an axis; negative when they are apart.
double commonOn(const QRectF &a, const QRectF &b, PlanAxis axis)
{
    const Span one = spanOf(a, axis);
    const Span two = spanOf(b, axis);
    return std::min(one.high, two.high) - std::max(one.low, two.low);
}

/// Whether two areas lie side by side along the other axis.
bool abreast(const QRectF &a, const QRectF &b, PlanAxis axis)
{
    return commonOn(a, b, otherAxis(axis)) > kContactMm;
}

/// Looks for the nearest line on one axis.
class AxisSnapper
{
public:
    AxisSnapper(const SnapField &field, const QRectF &area, PlanAxis axis, double reachMm)
        : field_(field), area_(area), axis_(axis), reach_(reachMm), own_(spanOf(area, axis))
    {
        tryGaps();
        tryFrame(SnapKind::Edge, field.pallet);
        if (field.inside != field.pallet)
            tryFrame(SnapKind::Margin, field.inside);
        tryNeighbours();
        offer(SnapKind::Middle, own_.middle(), spanOf(field.pallet, axis).middle(), reach_ / 2, field.pallet);
    }

    bool found() const { return found_; }
    double adjust() const { return found_ ? adjust_ : 0; }
    /// Drawn along the area, where it ended up, and what it snapped to.
    SnapGuide guide(const QRectF &area) const
    {
        const Span one = spanOf(area, otherAxis(axis_));
        const Span two = spanOf(partner_, otherAxis(axis_));
        SnapGuide guide = guide_;
        guide.from = std::min(one.low, two.low);
        guide.to = std::max(one.high, two.high);
        return guide;
    }

private:
    void tryGaps()
    {
        for (int i = 0; i < field_.others.size(); ++i) {
            const QRectF &other = field_.others[i];
            if (!abreast(area_, other, axis_))
                continue;
            const Span span = spanOf(other, axis_);
            offer(SnapKind::Gap, own_.low, span.high, reach_, other, i, field_.spacingMm);
            offer(SnapKind::Gap, own_.high, span.low, reach_, other, i, -field_.spacingMm);
        }
    }

    void tryFrame(SnapKind kind, const QRectF &frame)
    {
        const Span span = spanOf(frame, axis_);
        offer(kind, own_.low, span.low, reach_, frame);
        offer(kind, own_.high, span.high, reach_, frame);
    }

    void tryNeighbours()
    {
        for (int i = 0; i < field_.others.size(); ++i) {
            const Span span = spanOf(field_.others[i], axis_);
            offer(SnapKind::Neighbour, own_.low, span.low, reach_ / 2, field_.others[i], i);
            offer(SnapKind::Neighbour, own_.high, span.high, reach_ / 2, field_.others[i], i);
            offer(SnapKind::Neighbour, own_.middle(), span.middle(), reach_ / 2, field_.others[i], i);
        }
    }

    /// Brings the place `from` of the area to `distance` beyond the line at `at`, if that is nearest so far.
    void offer(SnapKind kind, double from, double at, double reach, const QRectF &partner, int other = -1,
               double distance = 0)
    {
        const double adjust = at + distance - from;
        const double least = found_ ? std::abs(adjust_) - kContactMm : reach;
        if (std::abs(adjust) > reach || std::abs(adjust) > least)
            return;
        found_ = true;
        adjust_ = adjust;
        partner_ = partner;
        guide_ = {kind, axis_, at, 0, 0, std::abs(distance), other < 0 ? -1 : field_.places[other]};
    }

    const SnapField &field_;
    const QRectF area_;
    const PlanAxis axis_;
    const double reach_;
    const Span own_;
    bool found_ = false;
    double adjust_ = 0;
    QRectF partner_;
    SnapGuide guide_;
};

/// Areas face each other across an axis when they lie abreast of it and, if they overlap, less deep on this
/// axis than on the other.
bool faces(const QRectF &a, const QRectF &b, PlanAxis axis)
{
    return abreast(a, b, axis) && commonOn(a, b, axis) <= commonOn(a, b, otherAxis(axis));
}

/// The nearest facing thing on one side; `sign` -1 for the low side of the axis.
SideGap sideGap(const SnapField &field, const QRectF &area, PlanAxis axis, int sign)
{
    const Span own = spanOf(area, axis);
    const Span edge = spanOf(field.pallet, axis);
    const double from = sign < 0 ? own.low : own.high;
    double to = sign < 0 ? edge.low : edge.high;
    QRectF partner = field.pallet;
    SideGap gap;
    bool found = false;
    for (int i = 0; i < field.others.size(); ++i) {
        const Span span = spanOf(field.others[i], axis);
        const double near = sign < 0 ? span.high : span.low;
        const bool onThisSide = (span.middle() - own.middle()) * sign > 0;
        if (!onThisSide || !faces(area, field.others[i], axis) || (found && (near - to) * sign >= 0))
            continue;
        found = true;
        to = near;
        partner = field.others[i];
        gap.neighbour = field.places[i];
    }
    const Span one = spanOf(area, otherAxis(axis));
    const Span two = spanOf(partner, otherAxis(axis));
    gap.axis = axis;
    gap.low = sign < 0 ? to : from;
    gap.high = sign < 0 ? from : to;
    gap.beside = (std::max(one.low, two.low) + std::min(one.high, two.high)) / 2;
    return gap;
}

} // namespace

bool operator==(const SnapGuide &a, const SnapGuide &b)
{
    const auto all = [](const SnapGuide &g) {
        return std::tie(g.kind, g.axis, g.at, g.from, g.to, g.distanceMm, g.neighbour);
    };
    return all(a) == all(b);
}

bool operator==(const SideGap &a, const SideGap &b)
{
    const auto all = [](const SideGap &g) { return std::tie(g.axis, g.low, g.high, g.beside, g.neighbour); };
    return all(a) == all(b);
}

SnapField snapField(const QVector<PatternItem> &items, const Selection &moving, const QSizeF &pallet,
                    const QRectF &inside, double spacingMm)
{
    SnapField field;
    field.moved = selectionBounds(items, moving);
    field.pallet = QRectF(QPointF(), pallet);
    field.inside = inside;
    field.spacingMm = spacingMm;
    for (int i = 0; i < items.size(); ++i) {
        if (std::binary_search(moving.begin(), moving.end(), i))
            continue;
        field.others.append(itemBounds(items[i]));
        field.places.append(i);
    }
    return field;
}

Snap snapMove(const SnapField &field, const QPointF &wanted, double reachMm)
{
    const QRectF area = field.moved.translated(wanted);
    Snap snap;
    snap.shift = wanted;
    const AxisSnapper across(field, area, PlanAxis::Across, reachMm);
    const AxisSnapper along(field, area, PlanAxis::Along, reachMm);
    snap.shift += QPointF(across.adjust(), along.adjust());
    for (const AxisSnapper *snapper : {&across, &along}) {
        if (snapper->found())
            snap.guides.append(snapper->guide(field.moved.translated(snap.shift)));
    }
    return snap;
}

QVector<SideGap> gapsAround(const SnapField &field, const QPointF &shift)
{
    const QRectF area = field.moved.translated(shift);
    QVector<SideGap> gaps;
    for (const PlanAxis axis : {PlanAxis::Across, PlanAxis::Along}) {
        for (const int sign : {-1, 1})
            gaps.append(sideGap(field, area, axis, sign));
    }
    return gaps;
}

} // namespace palx

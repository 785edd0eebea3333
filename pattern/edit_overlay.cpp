#include "pattern/edit_overlay.h"

#include "pattern/plan_style.h"

#include <algorithm>

namespace palx {

namespace {

using namespace plan_style;

constexpr double kSelectionPixels = 4;
constexpr double kTextPixels = 15;
constexpr int kMostShown = 40; // more marks cannot be told apart

QPolygonF outlineOf(const Corners &corners)
{
    return QPolygonF(QVector<QPointF>(corners.begin(), corners.end()));
}

QPointF onPlan(PlanAxis axis, double own, double other)
{
    return axis == PlanAxis::Across ? QPointF(own, other) : QPointF(other, own);
}

void label(QPainter *painter, const QPointF &at, const QString &text, QRgb color)
{
    const PixelScope pixels(painter, at);
    painter->setFont(font(kTextPixels, true));
    painter->setPen(QColor::fromRgba(color));
    drawText(painter, QPointF(), text, Qt::AlignCenter, true);
}

/// The convex outline of a product together with itself at the begin of its way.
QPolygonF wayOutline(const Corners &corners, const QPointF &shift)
{
    QPolygonF points;
    for (const QPointF &corner : corners)
        points << corner << corner + shift;
    std::sort(points.begin(), points.end(), [](const QPointF &a, const QPointF &b) {
        return a.x() != b.x() ? a.x() < b.x() : a.y() < b.y();
    });
    QPolygonF hull;
    const auto turnsLeft = [&hull](const QPointF &next) {
        const QPointF a = hull[hull.size() - 1] - hull[hull.size() - 2];
        const QPointF b = next - hull[hull.size() - 1];
        return a.x() * b.y() - a.y() * b.x() > 0;
    };
    const auto half = [&](auto begin, auto end) { // one side of Andrew's monotone chain
        const int base = hull.size();
        for (auto it = begin; it != end; ++it) {
            while (hull.size() >= base + 2 && !turnsLeft(*it))
                hull.removeLast();
            hull << *it;
        }
        hull.removeLast();
    };
    half(points.cbegin(), points.cend());
    half(points.crbegin(), points.crend());
    return hull;
}

void paintCross(QPainter *painter, const QPointF &at)
{
    constexpr double reach = 9;
    const PixelScope pixels(painter, at);
    painter->setPen(QPen(QColor::fromRgba(kFault), 4, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(QPointF(-reach, -reach), QPointF(reach, reach));
    painter->drawLine(QPointF(-reach, reach), QPointF(reach, -reach));
}

} // namespace

void paintSelection(QPainter *painter, const QVector<PatternItem> &items, const Selection &selection)
{
    painter->setPen(pen(kSelection, kSelectionPixels));
    painter->setBrush(Qt::NoBrush);
    for (const int i : selection) {
        if (i < items.size())
            painter->drawPolygon(outlineOf(itemCorners(items[i])));
    }
}

void paintGuides(QPainter *painter, const QVector<SnapGuide> &guides)
{
    for (const SnapGuide &guide : guides) {
        painter->setPen(pen(kSelection, 2, Qt::DashLine));
        painter->drawLine(onPlan(guide.axis, guide.at, guide.from), onPlan(guide.axis, guide.at, guide.to));
    }
}

void paintSideGaps(QPainter *painter, const QVector<SideGap> &gaps)
{
    for (const SideGap &gap : gaps) {
        const QRgb color = gap.gapMm() < -kContactMm ? kFault : kSelection;
        painter->setPen(pen(color, 1.5));
        painter->drawLine(onPlan(gap.axis, gap.low, gap.beside), onPlan(gap.axis, gap.high, gap.beside));
        label(painter, onPlan(gap.axis, (gap.low + gap.high) / 2, gap.beside), millimetres(gap.gapMm()),
              color);
    }
}

void paintFrame(QPainter *painter, const QRectF &frame)
{
    QColor fill = QColor::fromRgba(kSelection);
    fill.setAlpha(40);
    painter->setPen(pen(kSelection, 1.5, Qt::DashLine));
    painter->setBrush(fill);
    painter->drawRect(frame);
}

void paintBlockedWays(QPainter *painter, const QVector<PatternItem> &items, const EditFindings &findings,
                      const ApproachFrame &frame, const Selection &only)
{
    int shown = 0;
    int last = -1;
    QPolygonF way;
    for (const OrderHit &hit : findings.order.hits) {
        if (hit.item >= items.size() || (!only.isEmpty() && !only.contains(hit.item)) || ++shown > kMostShown)
            continue;
        if (hit.item != last) {
            way = wayOutline(itemCorners(items[hit.item]), approachOf(items[hit.item], frame).shift);
            painter->setPen(pen(kFault, 2, Qt::DashLine));
            painter->setBrush(Qt::NoBrush);
            painter->drawPolygon(way);
        }
        last = hit.item;
        const QPolygonF common = way.intersected(outlineOf(itemCorners(items[hit.placed])));
        drawHatch(painter, common, kFault, true);
        paintCross(painter, common.boundingRect().center());
    }
}

void paintNarrowGaps(QPainter *painter, const QVector<PatternItem> &items, const QVector<NarrowGap> &gaps)
{
    for (const NarrowGap &gap : gaps.mid(0, kMostShown)) {
        const QRectF a = itemBounds(items[gap.first]);
        const QRectF b = itemBounds(items[gap.second]);
        const QPointF between((std::max(a.left(), b.left()) + std::min(a.right(), b.right())) / 2,
                              (std::max(a.top(), b.top()) + std::min(a.bottom(), b.bottom())) / 2);
        label(painter, between, millimetres(gap.gapMm), kAttention);
    }
}

void paintStep(QPainter *painter, const QVector<PatternItem> &items, int place, const ApproachFrame &frame)
{
    QColor veil = QColor::fromRgba(kPaper);
    veil.setAlpha(200);
    painter->setPen(Qt::NoPen);
    painter->setBrush(veil);
    for (int i = place + 1; i < items.size(); ++i)
        painter->drawPolygon(outlineOf(itemCorners(items[i])));
    if (place >= items.size())
        return;
    const QPointF shift = approachOf(items[place], frame).shift;
    const Corners corners = itemCorners(items[place]);
    painter->setPen(pen(kSelection, 2, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    if (!shift.isNull() && items[place].direction != Direction::Middle)
        painter->drawPolygon(wayOutline(corners, shift));
    painter->drawPolygon(outlineOf(corners));
}

} // namespace palx

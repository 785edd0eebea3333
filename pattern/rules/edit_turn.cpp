#include "pattern/rules/edit_turn.h"

#include "stack/recipe_patterns.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

int normal(int degrees)
{
    return (degrees % 360 + 360) % 360;
}

/// The side that a direction names: -1, 0 or 1 across (left, right) and along (top, bottom).
struct NamedSide
{
    int across, along;
};
constexpr NamedSide kSides[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {0, 0}};

Direction directionOf(const NamedSide &side)
{
    const auto same = [&side](const NamedSide &s) {
        return s.across == side.across && s.along == side.along;
    };
    return static_cast<Direction>(std::find_if(std::begin(kSides), std::end(kSides), same) -
                                  std::begin(kSides));
}

/// A linear map of the plan that takes its axes onto its axes.
struct AxisMap
{
    int acrossFromAcross, acrossFromAlong, alongFromAcross, alongFromAlong;
};

AxisMap quarterTurns(int degrees)
{
    constexpr AxisMap maps[] = {{1, 0, 0, 1}, {0, -1, 1, 0}, {-1, 0, 0, -1}, {0, 1, -1, 0}};
    return maps[normal(degrees) / 90];
}

/// "dx" belongs to the axis along, "dy" to the one across. A named direction carries the sign of its axis
/// itself; "Middle" and unknown words leave it to the offsets.
void mapApproach(PatternItem *item, const AxisMap &map)
{
    const double across = item->dy;
    const double along = item->dx;
    const bool named = item->direction != Direction::Middle;
    const auto factor = [named](int f) { return named ? std::abs(f) : f; };
    item->dy = factor(map.acrossFromAcross) * across + factor(map.acrossFromAlong) * along + 0.0; // no -0
    item->dx = factor(map.alongFromAcross) * across + factor(map.alongFromAlong) * along + 0.0;
    if (!named)
        return;
    const NamedSide side = kSides[static_cast<int>(item->direction)];
    item->direction = directionOf({map.acrossFromAcross * side.across + map.acrossFromAlong * side.along,
                                   map.alongFromAcross * side.across + map.alongFromAlong * side.along});
    item->directionText = directionNames().at(static_cast<int>(item->direction));
}

void moveTo(PatternItem *item, const QPointF &place)
{
    shiftItem(item, place - QPointF(item->x, item->y));
}

/// A mirrored label lies on the other side; the product is turned until its own label does.
int mirroredTurn(const PatternItem &item, PlanAxis axis)
{
    const bool labelAcross = item.orient % 2 != 0; // on the product's left or right side
    const bool half = labelAcross == (axis == PlanAxis::Across);
    return normal((half ? 180 : 0) - item.r);
}

} // namespace

void turnItems(QVector<PatternItem> *items, const Selection &selection, int degrees)
{
    const QPointF middle = selectionBounds(*items, selection).center();
    for (const int i : selection) {
        PatternItem &item = (*items)[i];
        if (selection.size() > 1)
            moveTo(&item, middle + turned(QPointF(item.x, item.y) - middle, degrees));
        if (selection.size() > 1 && degrees % 90 == 0)
            mapApproach(&item, quarterTurns(degrees));
        item.r = normal(item.r + degrees);
    }
}

void mirrorPattern(QVector<PatternItem> *items, PlanAxis axis, const QSizeF &pallet)
{
    const bool across = axis == PlanAxis::Across;
    for (PatternItem &item : *items) {
        moveTo(&item,
               across ? QPointF(pallet.width() - item.x, item.y) : QPointF(item.x, pallet.height() - item.y));
        mapApproach(&item, across ? AxisMap{-1, 0, 0, 1} : AxisMap{1, 0, 0, -1});
        item.r = mirroredTurn(item, axis);
    }
}

void turnPattern(QVector<PatternItem> *items, const QSizeF &pallet)
{
    for (PatternItem &item : *items) {
        moveTo(&item, QPointF(pallet.width() - item.x, pallet.height() - item.y));
        mapApproach(&item, quarterTurns(180));
        item.r = normal(item.r + 180);
    }
}

} // namespace palx

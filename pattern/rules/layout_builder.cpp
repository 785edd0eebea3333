#include "pattern/rules/layout_builder.h"

#include <cmath>

namespace palx {

namespace {

bool isWithin(double value, double low, double high)
{
    return value >= low && value <= high; // false for what is no number
}

bool canBeLaid(const LayoutInput &input)
{
    return isWithin(input.length, kMinItemMm, kMaxItemMm) && isWithin(input.width, kMinItemMm, kMaxItemMm) &&
           isWithin(input.palletLength, kMinItemMm, kMaxItemMm) &&
           isWithin(input.palletWidth, kMinItemMm, kMaxItemMm) &&
           isWithin(input.topBottomMargin, -kMaxItemMm, kMaxItemMm) &&
           isWithin(input.leftRightMargin, -kMaxItemMm, kMaxItemMm) &&
           isWithin(input.spacing, 0, kMaxPositionMm);
}

void putPlacement(PatternItem *item, Placement placement)
{
    constexpr double kShift = 100;
    const bool plain = placement == Placement::Plain;
    item->dx = plain ? 0 : kShift;
    item->dy = plain ? 0 : kShift;
    item->direction = plain                          ? Direction::Middle
                      : placement == Placement::Left ? Direction::TopRight
                                                     : Direction::TopLeft;
    item->directionText = directionNames().at(static_cast<int>(item->direction));
}

} // namespace

int fitCount(double room, double extent, double spacing)
{
    return std::max(0, int((room + spacing) / (extent + spacing)));
}

double centringMargin(double room, int count, double extent, double spacing)
{
    return ((room - count * (extent + spacing)) + spacing) / 2;
}

LayoutBuilder::LayoutBuilder(const LayoutInput &input)
    : input_(input), acrossAxis_{input.leftRightMargin, input.palletWidth - input.leftRightMargin,
                                 input.placement == Placement::Right},
      alongAxis_{input.topBottomMargin, input.palletLength - input.topBottomMargin,
                 input.placement != Placement::Plain},
      across_(input.palletWidth - 2 * input.leftRightMargin),
      along_(input.palletLength - 2 * input.topBottomMargin), usable_(canBeLaid(input))
{
    if (!usable_)
        return;
    model_.w = std::trunc(input.width);
    model_.h = std::trunc(input.length);
    model_.orient = input.orient;
    putPlacement(&model_, input.placement);
}

double LayoutBuilder::fartherAlong(double from, double distance) const
{
    return alongAxis_.mirrored ? from - distance : from + distance;
}

void LayoutBuilder::addBlock(double across, double along, int columns, int rows, bool turned)
{
    const double a = extentAcross(turned);
    const double b = extentAlong(turned);
    layout_.count += qint64(columns) * rows;
    model_.r = turned ? 90 : 0;
    for (int row = 0; row < rows; ++row) {
        model_.y = centre(alongAxis_, along, row * (b + input_.spacing), b);
        for (int column = 0; column < columns; ++column) {
            if (layout_.items.size() >= kMaxShownItems)
                return;
            ++model_.index;
            model_.x = centre(acrossAxis_, across, column * (a + input_.spacing), a);
            layout_.items.append(model_);
        }
    }
}

} // namespace palx

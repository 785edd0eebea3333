#include "pattern/layout_cases.h"

#include <cmath>

using palx::LayoutInput;
using palx::PatternItem;

LayoutInput layoutInput(double length, double width, double palletLength, double palletWidth, double spacing,
                        double topBottom, double leftRight)
{
    LayoutInput input;
    input.length = length;
    input.width = width;
    input.palletLength = palletLength;
    input.palletWidth = palletWidth;
    input.spacing = spacing;
    input.topBottomMargin = topBottom;
    input.leftRightMargin = leftRight;
    return input;
}

LayoutInput randomInput(std::mt19937 &random)
{
    const auto number = [&random](double low, double high) {
        return std::floor(std::uniform_real_distribution<double>(low, high)(random) * 10) / 10;
    };
    LayoutInput input = layoutInput(number(80, 500), number(80, 500), number(300, 1300), number(300, 1300));
    input.spacing = number(0, 4) < 2 ? 0 : number(0, 30);
    input.topBottomMargin = number(0, 4) < 2 ? 0 : number(0, 60);
    input.leftRightMargin = number(0, 4) < 2 ? 0 : number(0, 60);
    return input;
}

QString layoutCase(const LayoutInput &i, int kind)
{
    return QStringLiteral("kind %1, product %2x%3, pallet %4x%5, spacing %6, margins %7x%8, placement %9")
        .arg(kind)
        .arg(i.length)
        .arg(i.width)
        .arg(i.palletLength)
        .arg(i.palletWidth)
        .arg(i.spacing)
        .arg(i.topBottomMargin)
        .arg(i.leftRightMargin)
        .arg(int(i.placement));
}

QRectF roomOf(const LayoutInput &input)
{
    return QRectF(0, 0, input.palletWidth, input.palletLength)
        .adjusted(input.leftRightMargin, input.topBottomMargin, -input.leftRightMargin,
                  -input.topBottomMargin);
}

QStringList places(const QVector<PatternItem> &items)
{
    QStringList texts;
    for (const PatternItem &item : items)
        texts << QStringLiteral("%1: %2 %3 %4").arg(item.index).arg(item.x).arg(item.y).arg(item.r);
    return texts;
}

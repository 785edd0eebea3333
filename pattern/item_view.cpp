#include "pattern/item_view.h"

#include "pattern/plan_style.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace palx {

namespace {

using namespace plan_style;

constexpr double kLargestNumber = 26; // pixels
constexpr double kSmallestNumber = 7; // smaller digits cannot be told apart
constexpr double kSmallestBold = 9;   // bold digits run together below
constexpr double kOffsetsPixels = 14;
constexpr double kSmallestOffsets = 10;
constexpr double kRoomForArrow = 24;  // pixels of a product's shorter side; below, the number is worth more
constexpr double kShortestArrow = 12; // pixels; a shorter shift is drawn this long, to be seen at all
constexpr ItemFaults kValueFaults = ItemFaults(ItemFault::MissingValue) | ItemFault::BadValue |
                                    ItemFault::ClampedSize | ItemFault::ClampedPosition |
                                    ItemFault::ClampedOffset;

double lengthOf(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

/// Far enough from the centre to leave the number alone, near enough to stay inside the product.
double tipDistance(const PatternItem &item, double scale)
{
    return std::min(item.w, item.h) * scale * 0.3;
}

} // namespace

ItemView::ItemView(const PatternItem &item) : item_(item)
{
    setPos(item.x, item.y);
}

void ItemView::setCentre(const QPointF &centre)
{
    item_.x = centre.x();
    item_.y = centre.y();
    setPos(centre);
}

void ItemView::setSize(const QSizeF &size)
{
    if (size == QSizeF(item_.w, item_.h))
        return;
    prepareGeometryChange();
    item_.w = size.width();
    item_.h = size.height();
}

void ItemView::setTurn(int degrees)
{
    if (degrees == item_.r)
        return;
    prepareGeometryChange();
    item_.r = degrees;
}

void ItemView::setNumber(int number)
{
    if (number == item_.index)
        return;
    item_.index = number;
    update();
}

void ItemView::setOrient(int orient)
{
    if (orient == item_.orient)
        return;
    item_.orient = orient;
    update();
}

void ItemView::setApproach(const Approach &approach)
{
    if (approach == approach_)
        return;
    approach_ = approach;
    update();
}

void ItemView::setFlaws(const ItemFlaws &flaws, ItemFaults faults)
{
    if (flaws == flaws_ && faults == item_.faults)
        return;
    flaws_ = flaws;
    item_.faults = faults;
    update();
}

void ItemView::setOffsets(double dx, double dy, double dz)
{
    if (std::tie(dx, dy, dz) == std::tie(item_.dx, item_.dy, item_.dz))
        return;
    std::tie(item_.dx, item_.dy, item_.dz) = std::tie(dx, dy, dz);
    update();
}

void ItemView::setOffsetsShown(bool shown)
{
    if (shown == offsetsShown_)
        return;
    offsetsShown_ = shown;
    update();
}

QPolygonF ItemView::outline() const
{
    QPolygonF polygon;
    for (const QPointF &corner : itemCorners(item_))
        polygon << corner - QPointF(item_.x, item_.y);
    return polygon;
}

QRectF ItemView::boundingRect() const
{
    return outline().boundingRect();
}

QPainterPath ItemView::shape() const
{
    QPainterPath path;
    path.addPolygon(outline());
    path.closeSubpath();
    return path;
}

void ItemView::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QPolygonF polygon = outline();
    paintFill(painter, polygon);
    paintLabelSide(painter, polygon);
    paintOutline(painter, polygon);
}

void ItemView::paintFill(QPainter *painter, const QPolygonF &polygon) const
{
    const QRgb plain = item_.r % 180 == 0 ? kItemFill : kItemTurnedFill;
    const QRgb fill = flaws_.overlaps ? kFaultFill : flaws_.overhangs ? kAttentionFill : plain;
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor::fromRgba(fill));
    painter->drawPolygon(polygon);
    if (flaws_.overlaps || flaws_.overhangs)
        drawHatch(painter, polygon, flaws_.overlaps ? kFault : kAttention, flaws_.overlaps);
}

void ItemView::paintLabelSide(QPainter *painter, const QPolygonF &polygon) const
{
    if (item_.orient < 0 || item_.orient > 3)
        return;
    const QPointF begin = polygon[item_.orient];
    const QPointF end = polygon[(item_.orient + 1) % 4];
    const QPointF inwards = polygon[(item_.orient + 2) % 4] - end;
    const double depth = std::min(item_.w, item_.h) * 0.05;
    const QPointF inset = inwards / std::max(lengthOf(inwards), kMinItemMm) * depth;
    const QPointF cut =
        (end - begin) * 0.2; // the bar stays clear of the corners, so that it reads as a label
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor::fromRgba(kLabelSide));
    const std::array<QPointF, 4> bar{begin + cut + inset * 0.5, end - cut + inset * 0.5,
                                     end - cut + inset * 1.5, begin + cut + inset * 1.5};
    painter->drawPolygon(bar.data(), static_cast<int>(bar.size()));
}

void ItemView::paintOutline(QPainter *painter, const QPolygonF &polygon) const
{
    const bool amber = flaws_.overhangs || flaws_.cramped;
    const bool flawed = flaws_.overlaps || amber;
    const QRgb color = flaws_.overlaps ? kFault : amber ? kAttention : kInk;
    const bool doubtful = item_.faults & kValueFaults;
    painter->setPen(pen(color, flawed ? 2 : 1, doubtful ? Qt::DashLine : Qt::SolidLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawPolygon(polygon);
}

void ItemView::paintMarks(QPainter *painter) const
{
    const double scale = pixelsPerMm(*painter);
    const PixelScope pixels(painter, QPointF(item_.x, item_.y));
    paintApproach(painter, scale);
    paintNumber(painter, scale);
}

void ItemView::paintNumber(QPainter *painter, double scale) const
{
    QString text = QString::number(item_.index);
    if (item_.faults & kValueFaults)
        text += QLatin1Char('?');
    const QSizeF room = itemBounds(item_).size() * scale;
    double size = std::clamp(std::min(room.width(), room.height()) * 0.36, kSmallestNumber, kLargestNumber);
    const double width = QFontMetricsF(font(size, size >= kSmallestBold)).horizontalAdvance(text);
    size *= std::min(1.0, room.width() * 0.86 / std::max(width, 1.0));
    if (size < kSmallestNumber || size > room.height() * 0.8)
        return;
    painter->setFont(font(size, size >= kSmallestBold));
    painter->setPen(QColor::fromRgba(flaws_.overlaps ? kFault : kInk));
    drawText(painter, QPointF(), text, Qt::AlignCenter, flaws_.overlaps || flaws_.overhangs);
    if (offsetsShown_)
        paintOffsets(painter, scale, size);
}

/// "dx / dy / dz" where there are any and the product has room for them: below the number, above it when the
/// arrow comes from below.
void ItemView::paintOffsets(QPainter *painter, double scale, double numberPixels) const
{
    if (item_.dx == 0 && item_.dy == 0 && item_.dz == 0)
        return;
    const QString text = QStringLiteral("%1 / %2 / %3")
                             .arg(millimetres(item_.dx), millimetres(item_.dy), millimetres(item_.dz));
    const QSizeF room = itemBounds(item_).size() * scale;
    const double size = std::min(kOffsetsPixels, numberPixels * 0.7);
    if (size < kSmallestOffsets)
        return;
    painter->setFont(font(size));
    const double away = numberPixels * 0.5 + size * 0.75;
    if (away + size > room.height() / 2 ||
        painter->fontMetrics().horizontalAdvance(text) > room.width() * 0.9)
        return;
    painter->setPen(QColor::fromRgba(kQuietInk));
    drawText(painter, QPointF(0, approach_.side.y() > 0 ? -away : away), text, Qt::AlignCenter,
             flaws_.overlaps || flaws_.overhangs);
}

void ItemView::paintApproach(QPainter *painter, double scale) const
{
    const bool shifted = lengthOf(approach_.shift) > kContactMm;
    const QPointF side = shifted ? approach_.shift : approach_.side;
    if (side.isNull() || std::min(item_.w, item_.h) * scale < kRoomForArrow)
        return;
    const QPointF unit = side / lengthOf(side);
    const double length =
        shifted ? std::max(lengthOf(approach_.shift) * scale, kShortestArrow) : kShortestArrow * 0.7;
    const QPointF tip = unit * tipDistance(item_, scale);
    painter->setPen(flaws_.blocked ? QPen(QColor::fromRgba(kFault), 3)
                                   : QPen(QColor::fromRgba(kDimension), 1.6));
    drawArrow(painter, tip + unit * length, tip, std::min(8.0, length * 0.8), shifted);
}

} // namespace palx

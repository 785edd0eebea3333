#include "pattern/plan_style.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QStaticText>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace palx {
namespace plan_style {

namespace {

constexpr double kHatchPitch = 8; // pixels

/// Top left corner of a text block of that size, put around a point.
QPointF textCorner(const QPointF &at, const QSizeF &size, Qt::Alignment alignment)
{
    QPointF corner = at - QPointF(size.width() / 2, size.height() / 2);
    if (alignment & Qt::AlignLeft)
        corner.setX(at.x());
    if (alignment & Qt::AlignRight)
        corner.setX(at.x() - size.width());
    if (alignment & Qt::AlignTop)
        corner.setY(at.y());
    if (alignment & Qt::AlignBottom)
        corner.setY(at.y() - size.height());
    return corner;
}

/// The stretch of the line x + slant * y = offset inside a convex shape; null when it passes by.
QLineF stretchInside(const QPolygonF &shape, int slant, double offset)
{
    QVector<QPointF> ends;
    for (int i = 0; i < shape.size(); ++i) {
        const QPointF a = shape[i];
        const QPointF b = shape[(i + 1) % shape.size()];
        const double before = a.x() + slant * a.y() - offset;
        const double behind = b.x() + slant * b.y() - offset;
        if ((before < 0) != (behind < 0))
            ends.append(a + (b - a) * (before / (before - behind)));
    }
    return ends.size() < 2 ? QLineF() : QLineF(ends.first(), ends.last());
}

void drawSlantingLines(QPainter *painter, const QPolygonF &shape, const QRectF &box, int slant)
{
    const double one = box.left() + slant * box.top();
    const double other = box.right() + slant * box.bottom();
    const double third = box.left() + slant * box.bottom();
    const double fourth = box.right() + slant * box.top();
    const double low = std::min({one, other, third, fourth});
    const double high = std::max({one, other, third, fourth});
    // Lines stand at multiples of the pitch, so that the hatches of neighbours go on in each other.
    QVarLengthArray<QLineF, 64> lines;
    for (double offset = std::floor(low / kHatchPitch) * kHatchPitch; offset < high; offset += kHatchPitch) {
        const QLineF line = stretchInside(shape, slant, offset);
        if (!line.isNull())
            lines.append(line);
    }
    painter->drawLines(lines.data(), lines.size());
}

/// The text in the paper's colour, shifted all around: much faster than stroking its outline.
void drawRim(QPainter *painter, const QPointF &corner, const QStaticText &glyphs)
{
    constexpr double shift = 1.5; // pixels
    const QPen ink = painter->pen();
    painter->setPen(QColor::fromRgba(kPaper));
    for (const double dx : {-shift, 0.0, shift}) {
        for (const double dy : {-shift, 0.0, shift})
            painter->drawStaticText(corner + QPointF(dx, dy), glyphs);
    }
    painter->setPen(ink);
}

} // namespace

QPen pen(QRgb color, double pixels, Qt::PenStyle style)
{
    QPen result(QColor::fromRgba(color), pixels, style, Qt::FlatCap, Qt::MiterJoin);
    result.setCosmetic(true);
    return result;
}

double pixelsPerMm(const QPainter &painter)
{
    const QTransform &world = painter.worldTransform();
    return std::hypot(world.m11(), world.m12());
}

QFont font(double pixels, bool bold)
{
    QFont result = QGuiApplication::font();
    result.setPixelSize(qMax(1, qRound(pixels)));
    result.setBold(bold);
    return result;
}

PixelScope::PixelScope(QPainter *painter, const QPointF &origin) : painter_(painter)
{
    painter->save();
    const QPointF device = painter->worldTransform().map(origin);
    painter->setWorldTransform(QTransform::fromTranslate(device.x(), device.y()));
}

void drawText(QPainter *painter, const QPointF &at, const QString &text, Qt::Alignment alignment, bool rim)
{
    QStaticText glyphs(text); // looked up once, though a rim draws them many times
    glyphs.setTextFormat(Qt::PlainText);
    glyphs.prepare(QTransform(), painter->font());
    const QPointF corner = textCorner(at, glyphs.size(), alignment);
    if (rim)
        drawRim(painter, corner, glyphs);
    painter->drawStaticText(corner, glyphs);
}

void drawArrow(QPainter *painter, const QPointF &from, const QPointF &to, double head, bool filled)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (length <= 0)
        return;
    const QPointF along = way / length;
    const QPointF across(-along.y(), along.x());
    const QPointF neck = to - along * head;
    painter->drawLine(from, filled ? neck : to);
    const QPointF point[] = {neck + across * head * 0.42, to, neck - across * head * 0.42};
    if (!filled) {
        painter->drawPolyline(point, 3);
        return;
    }
    painter->save();
    painter->setBrush(painter->pen().color());
    painter->setPen(Qt::NoPen);
    painter->drawPolygon(point, 3);
    painter->restore();
}

void drawHatch(QPainter *painter, const QPolygonF &shape, QRgb color, bool cross)
{
    const QPolygonF pixels = painter->worldTransform().map(shape);
    const QRectF device(0, 0, painter->device()->width(), painter->device()->height());
    const QRectF box = pixels.boundingRect() & device; // a product may reach far beyond the picture
    painter->save();
    painter->resetTransform();
    painter->setPen(QPen(QColor::fromRgba(color), 1));
    for (const int slant : {1, -1}) {
        if (slant > 0 || cross)
            drawSlantingLines(painter, pixels, box, slant);
    }
    painter->restore();
}

QString millimetres(double mm)
{
    const double rounded = std::round(mm * 10) / 10;
    return QString::number(rounded, 'f', rounded == std::round(rounded) ? 0 : 1);
}

} // namespace plan_style
} // namespace palx

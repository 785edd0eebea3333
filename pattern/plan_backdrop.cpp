#include "pattern/plan_backdrop.h"

#include "pattern/plan_style.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

using namespace plan_style;

/// A board of a usual pallet is some 145 mm wide; with its gap:
constexpr double kBoardPitchMm = 165;
constexpr double kRoomForOverhang = 8; // heights of text; in smaller products it would cover their own number
constexpr double kBoardShare = 0.86;   // of the pitch; the rest is the gap

void paintGhostOutline(QPainter *painter, const QPolygonF &outline)
{
    painter->setPen(pen(kGhost, 1, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawPolygon(outline);
}

/// One side of the pallet, from `begin` to `end`, measured on a line `distance` pixels away towards
/// `outwards`.
struct Side
{
    QPointF begin, end;
    QPointF outwards;
    double lengthMm;
};

void paintDimensionText(QPainter *painter, const QPointF &middle, const QPointF &along, const QString &text)
{
    painter->save();
    painter->translate(middle);
    if (std::abs(along.y()) > std::abs(along.x()))
        painter->rotate(-90);
    const QSizeF gap(QFontMetricsF(painter->font()).horizontalAdvance(text) + 8, 4);
    painter->fillRect(QRectF(QPointF(-gap.width() / 2, -gap.height() / 2), gap), QColor::fromRgba(kPaper));
    drawText(painter, QPointF(), text, Qt::AlignCenter);
    painter->restore();
}

/// The dimension of a side; `gap` is the distance of its line from the side. Pixels.
void paintDimension(QPainter *painter, const Side &side, double gap, double textPixels)
{
    const QTransform plan = painter->worldTransform();
    const PixelScope pixels(painter, side.begin);
    const QPointF end = plan.map(side.end) - plan.map(side.begin);
    const QPointF lineBegin = side.outwards * gap;
    const QPointF lineEnd = end + lineBegin;
    const QPointF over = side.outwards * textPixels * 0.35;
    const double head = textPixels * 0.7;
    painter->setPen(QPen(QColor::fromRgba(kQuietInk), 1));
    painter->drawLine(side.outwards * 4, lineBegin + over);
    painter->drawLine(end + side.outwards * 4, lineEnd + over);
    painter->setPen(QPen(QColor::fromRgba(kDimension), 1));
    drawArrow(painter, (lineBegin + lineEnd) / 2, lineBegin, head);
    drawArrow(painter, (lineBegin + lineEnd) / 2, lineEnd, head);
    painter->setFont(font(textPixels));
    painter->setPen(QColor::fromRgba(kInk));
    paintDimensionText(painter, (lineBegin + lineEnd) / 2, end, millimetres(side.lengthMm));
}

void paintAxis(QPainter *painter, const QPointF &direction, double length, const QString &name,
               double textPixels)
{
    const QPointF outwards = -QPointF(direction.y(), direction.x());
    painter->setPen(QPen(QColor::fromRgba(kInk), 2));
    drawArrow(painter, QPointF(), direction * length, textPixels * 0.75);
    drawText(painter, direction * (length - textPixels * 0.4) + outwards * textPixels * 0.85, name,
             Qt::AlignCenter, true);
}

void paintOverhangNumber(QPainter *painter, const QPointF &at, double mm, double textPixels)
{
    const PixelScope pixels(painter, at);
    painter->setFont(font(textPixels, true));
    painter->setPen(QColor::fromRgba(kAttention));
    drawText(painter, QPointF(), QStringLiteral("+%1").arg(millimetres(mm)), Qt::AlignCenter, true);
}

} // namespace

void paintPallet(QPainter *painter, const QSizeF &pallet)
{
    const QRectF deck(QPointF(), pallet);
    const int boards = std::clamp(qRound(pallet.width() / kBoardPitchMm), 3, 40);
    const double board = pallet.width() / (boards - 1 + kBoardShare) * kBoardShare;
    const double pitch = board / kBoardShare;
    painter->fillRect(deck, QColor::fromRgba(kPalletFill));
    painter->setPen(pen(kPalletLine, 0.5));
    painter->setBrush(QColor::fromRgba(kPalletBoard));
    for (int i = 0; i < boards; ++i)
        painter->drawRect(QRectF(i * pitch, 0, board, pallet.height()));
    paintPalletEdge(painter, pallet);
}

void paintPalletEdge(QPainter *painter, const QSizeF &pallet)
{
    painter->setPen(pen(kInk, 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(QPointF(), pallet));
}

void paintMargins(QPainter *painter, const StackPlan &plan)
{
    if (!plan.hasMargins())
        return;
    const QRectF inside =
        QRectF(QPointF(), plan.pallet.plan())
            .adjusted(plan.marginLeft, plan.marginTop, -plan.marginRight, -plan.marginBottom);
    painter->setPen(pen(kDimension, 1, Qt::DashDotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(inside.normalized());
}

void paintSheet(QPainter *painter, const QSizeF &sheet, const QSizeF &pallet, bool ghost)
{
    const QRectF rect = sheetRect(sheet, pallet);
    if (ghost)
        return paintGhostOutline(painter, QPolygonF(rect));
    painter->setPen(pen(kInk, 1));
    painter->setBrush(QColor::fromRgba(kSheetFill));
    painter->drawRect(rect);
}

void paintGhost(QPainter *painter, const QVector<PatternItem> &items)
{
    for (const PatternItem &item : items) {
        QPolygonF outline;
        for (const QPointF &corner : itemCorners(item))
            outline << corner;
        paintGhostOutline(painter, outline);
    }
}

void paintDimensions(QPainter *painter, const QSizeF &pallet, const QRectF &content, double textPixels)
{
    const double scale = pixelsPerMm(*painter);
    const double distance = textPixels * 1.5;
    const QPointF corner(pallet.width(), pallet.height());
    const Side width{QPointF(0, pallet.height()), corner, QPointF(0, 1), pallet.width()};
    const Side length{QPointF(pallet.width(), 0), corner, QPointF(1, 0), pallet.height()};
    paintDimension(painter, width, distance + (content.bottom() - pallet.height()) * scale, textPixels);
    paintDimension(painter, length, distance + (content.right() - pallet.width()) * scale, textPixels);
}

void paintOrigin(QPainter *painter, const QSizeF &pallet, double textPixels)
{
    const double shortSide = std::min(pallet.width(), pallet.height()) * pixelsPerMm(*painter);
    const double length = std::min(textPixels * 4.5, shortSide * 0.45);
    const PixelScope pixels(painter, QPointF());
    painter->setFont(font(textPixels, true));
    paintAxis(painter, QPointF(0, 1), length, QStringLiteral("X"), textPixels);
    paintAxis(painter, QPointF(1, 0), length, QStringLiteral("Y"), textPixels);
    const double radius = textPixels * 0.4;
    painter->setPen(QPen(QColor::fromRgba(kInk), 1.5));
    painter->setBrush(QColor::fromRgba(kPaper));
    painter->drawEllipse(QPointF(), radius, radius);
    painter->setBrush(QColor::fromRgba(kInk));
    painter->drawPie(QRectF(-radius, -radius, 2 * radius, 2 * radius), 0, 90 * 16);
    painter->drawPie(QRectF(-radius, -radius, 2 * radius, 2 * radius), 180 * 16, 90 * 16);
}

void paintOverhang(QPainter *painter, const QSizeF &pallet, const QVector<PatternItem> &items,
                   const LayoutFindings &findings, double textPixels)
{
    const double inset = textPixels * 1.4 / pixelsPerMm(*painter);
    const struct
    {
        double Overhang::*mm;
        QPointF on, along; // a point on the line of the number, and the direction in which products lie along
                           // the edge
    } edges[] = {{&Overhang::left, QPointF(inset, 0), QPointF(0, 1)},
                 {&Overhang::right, QPointF(pallet.width() - inset, 0), QPointF(0, 1)},
                 {&Overhang::top, QPointF(0, inset), QPointF(1, 0)},
                 {&Overhang::bottom, QPointF(0, pallet.height() - inset), QPointF(1, 0)}};
    for (const auto &edge : edges) {
        const double worst = findings.worst.*edge.mm;
        for (int i = 0; worst > 0 && i < items.size(); ++i) {
            if (findings.overhangs[i].*edge.mm < worst)
                continue;
            if (std::min(items[i].w, items[i].h) * pixelsPerMm(*painter) < kRoomForOverhang * textPixels)
                break;
            const QPointF beside(items[i].x * edge.along.x(), items[i].y * edge.along.y());
            paintOverhangNumber(painter, edge.on + beside, worst, textPixels);
            break;
        }
    }
}

void paintMessage(QPainter *painter, const QSizeF &pallet, const QString &text, double textPixels)
{
    const double scale = pixelsPerMm(*painter);
    const QSizeF room(pallet.width() * scale * 0.9, pallet.height() * scale * 0.9);
    const PixelScope pixels(painter, QPointF(pallet.width() / 2, pallet.height() / 2));
    const QRectF frame(QPointF(-room.width() / 2, -room.height() / 2), room);
    painter->setFont(font(textPixels, true));
    const QRectF words = painter->boundingRect(frame, Qt::AlignCenter | Qt::TextWordWrap, text);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor::fromRgba(kPaper));
    painter->drawRect(words.adjusted(-8, -6, 8, 6));
    painter->setPen(QColor::fromRgba(kInk));
    painter->drawText(frame, Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace palx

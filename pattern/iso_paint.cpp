#include "pattern/iso_paint.h"

#include <QPainter>

#include <algorithm>

namespace palx {

namespace {

/// Light falls from above and from the left.
constexpr double kLeftWall = 0.87;
constexpr double kRightWall = 0.73;
constexpr double kSecondLayer = 0.95;

} // namespace

QColor shaded(QRgb top, const IsoFace &face, bool isSecondLayer)
{
    double shade = face.side == FaceSide::Top ? 1 : kRightWall + (kLeftWall - kRightWall) * face.light;
    if (isSecondLayer)
        shade *= kSecondLayer;
    return QColor::fromRgbF(qRed(top) * shade / 255, qGreen(top) * shade / 255, qBlue(top) * shade / 255);
}

double lineOpacity(double shortestMm, double pixelsPerMm)
{
    return std::clamp(shortestMm * pixelsPerMm / 10, 0.15, 0.9);
}

QRectF shownPart(const QPainter &painter)
{
    const QPaintDevice *device = painter.device();
    return painter.worldTransform().inverted().mapRect(QRectF(0, 0, device->width(), device->height()));
}

QRectF boundsOf(const IsoFace &face)
{
    const auto [left, right] =
        std::minmax({face.corners[0].x(), face.corners[1].x(), face.corners[2].x(), face.corners[3].x()});
    const auto [top, bottom] =
        std::minmax({face.corners[0].y(), face.corners[1].y(), face.corners[2].y(), face.corners[3].y()});
    return QRectF(QPointF(left, top), QPointF(right, bottom)).adjusted(-1, -1, 1, 1);
}

void paintFace(QPainter *painter, const IsoFace &face, const QColor &ground, const QColor &line)
{
    QPen pen(line, 1);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::RoundJoin);
    painter->setPen(pen);
    painter->setBrush(ground);
    painter->drawConvexPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
}

} // namespace palx

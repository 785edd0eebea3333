#include "pattern/stack_drawing.h"

#include "pattern/plan_style.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

constexpr int kMaxPictureProducts =
    20000; // far over any pallet; a foreign file must not hold up a list of recipes

/// Light falls from above and from the left.
constexpr double kLeftWall = 0.87;
constexpr double kRightWall = 0.73;
constexpr double kSecondLayer = 0.95; // every second layer is a little darker, so that layers can be counted

constexpr QRgb kPalletTop = 0xffc3bdb1, kPalletLine = 0xff5a554b;
constexpr QRgb kSheetTop = 0xffd3dce4, kSheetLine = 0xff6b747d;
constexpr QRgb kProductTop = 0xffe9e6df, kProductLine = 0xff4a4841;

QRgb groundOf(const IsoFace &face, const Course &course)
{
    switch (course.flaws.value(face.outline, Flaw::None)) {
    case Flaw::Overlap:
        return plan_style::kFaultFill;
    case Flaw::Overhang:
        return plan_style::kAttentionFill;
    case Flaw::None:
        break;
    }
    return face.kind == SolidKind::Pallet  ? kPalletTop
           : face.kind == SolidKind::Sheet ? kSheetTop
                                           : kProductTop;
}

QRgb lineOf(const IsoFace &face, const Course &course)
{
    switch (course.flaws.value(face.outline, Flaw::None)) {
    case Flaw::Overlap:
        return plan_style::kFault;
    case Flaw::Overhang:
        return plan_style::kAttention;
    case Flaw::None:
        break;
    }
    return face.kind == SolidKind::Pallet  ? kPalletLine
           : face.kind == SolidKind::Sheet ? kSheetLine
                                           : kProductLine;
}

QColor shaded(QRgb ground, const IsoFace &face, const Course &course)
{
    double shade = face.side == FaceSide::Top ? 1 : kRightWall + (kLeftWall - kRightWall) * face.light;
    if (face.kind == SolidKind::Product && course.layer % 2 == 1)
        shade *= kSecondLayer;
    return QColor::fromRgbF(qRed(ground) * shade / 255, qGreen(ground) * shade / 255,
                            qBlue(ground) * shade / 255);
}

QPen cosmetic(const QColor &color, double pixels, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, pixels, style);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

/// Lines fade where products are only a few pixels large; else a small picture would be all lines.
double lineOpacity(double shortestMm, double scale)
{
    return std::clamp(shortestMm * scale / 10, 0.15, 0.9);
}

/// What fits onto the painter's device.
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

bool contains(const IsoFace &face, const QPointF &at)
{
    QPolygonF outline;
    for (const QPointF &corner : face.corners)
        outline << corner;
    return outline.containsPoint(at, Qt::OddEvenFill);
}

} // namespace

void StackDrawing::setStack(const orba::Node &stack)
{
    const bool all = pieces_ >= pieceCount(courses_);
    const StackPlan plan = readStackPlan(stack);
    courses_ = stackCourses(stack, plan, kMaxPictureProducts);
    centre_ = QPointF(plan.pallet.width / 2, plan.pallet.length / 2);
    shortestMm_ = std::min({plan.product.length, plan.product.width, std::max(plan.product.height, 1.0)});
    pieces_ = all ? pieceCount(courses_) : std::min(pieces_, pieceCount(courses_));
    stale_ = true;
}

void StackDrawing::setTurn(double degrees)
{
    turn_ = std::remainder(degrees, 360);
    stale_ = true;
}

void StackDrawing::setPieces(int pieces)
{
    pieces_ = std::clamp(pieces, 0, pieceCount(courses_));
    stale_ = true;
}

QRectF StackDrawing::bounds() const
{
    return isoBounds(courses_, view());
}

QRectF StackDrawing::turningBounds() const
{
    return palx::turningBounds(courses_, centre_);
}

void StackDrawing::makeFaces(double gapMm)
{
    // What a pixel hides changes little with little zoom, and nothing is wrong with a face too many.
    const bool other = gapMm < gap_ || gapMm > gap_ * 2;
    if (!stale_ && !other)
        return;
    gap_ = gapMm;
    stale_ = false;
    placed_ = firstPieces(courses_, pieces_);
    faces_ = visibleFaces(placed_, gap_, view());
}

bool StackDrawing::isMarked(const IsoFace &face) const
{
    const Course &course = placed_[face.course];
    return marked_.isSet() && course.layer == marked_.layer &&
           (marked_.item < 0 || face.outline == marked_.item);
}

void StackDrawing::paint(QPainter *painter, double scale)
{
    if (scale <= 0)
        return;
    makeFaces(1 / scale);
    const double opacity = lineOpacity(shortestMm_, scale);
    const QRectF seen = painter->hasClipping() ? painter->clipBoundingRect() : shownPart(*painter);
    for (const IsoFace &face : qAsConst(faces_)) {
        if (!seen.intersects(boundsOf(face)))
            continue;
        const Course &course = placed_[face.course];
        QColor line = QColor::fromRgba(lineOf(face, course));
        line.setAlphaF(opacity);
        painter->setPen(cosmetic(line, 1));
        painter->setBrush(
            shaded(isMarked(face) ? plan_style::kSelectionFill : groundOf(face, course), face, course));
        painter->drawConvexPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
    }
    paintMark(painter);
}

/// The marked piece shows through what lies before it, and also while it is not laid yet.
void StackDrawing::paintMark(QPainter *painter) const
{
    constexpr double kPixels = 2.5;
    if (numberOf(courses_, marked_) < 0)
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(cosmetic(QColor::fromRgba(plan_style::kSelection), kPixels));
    for (const Course &course : courses_) {
        if (course.layer != marked_.layer)
            continue;
        for (const IsoFace &face : facesOf(course, std::max(marked_.item, 0), view()))
            painter->drawConvexPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
    }
}

Piece StackDrawing::pieceAt(const QPointF &at) const
{
    for (int i = faces_.size() - 1; i >= 0; --i) {
        if (!contains(faces_[i], at))
            continue;
        const Course &course = placed_[faces_[i].course];
        if (course.layer < 0)
            return {};
        return {course.layer, course.kind == SolidKind::Sheet ? -1 : faces_[i].outline};
    }
    return {};
}

} // namespace palx

#include "pattern/stack_drawing.h"

#include "pattern/iso_paint.h"
#include "pattern/plan_style.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

constexpr int kMaxPictureProducts =
    20000; // far over any pallet; a foreign file must not hold up a list of recipes

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
        const QRgb ground = isMarked(face) ? plan_style::kSelectionFill : groundOf(face, course);
        const bool isSecond = face.kind == SolidKind::Product && course.layer % 2 == 1;
        paintFace(painter, face, shaded(ground, face, isSecond), line);
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
    QPen pen(QColor::fromRgba(plan_style::kSelection), kPixels);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::RoundJoin);
    painter->setPen(pen);
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

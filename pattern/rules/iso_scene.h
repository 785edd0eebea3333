#pragma once

#include "pattern/rules/stack_courses.h"

#include <QRectF>

#include <array>

/// A stack as the faces that one sees of it from a corner, at any turn, in the order in which to paint them.
/// Millimetres.
///
/// Steps: courses are painted from the bottom up. Within a course a prism is painted before those that stand
/// in front of it. Faces that neighbours or the next course hide are left out. Correct for boxes that do not
/// overlap, turned or not.
namespace palx {

/// From where one looks: from above a corner, so that lengths along all three axes are drawn alike. Without a
/// turn the far end of both axes of the plan is nearest.
class PALX_API IsoProjection
{
public:
    IsoProjection() = default;
    /// The stack is turned clockwise, seen from above, about a point of the plan, which becomes the picture's
    /// origin.
    IsoProjection(double turnDeg, const QPointF &centre);

    /// A point of the stack on the picture, y down.
    QPointF point(const QPointF &plan, double heightMm) const;
    /// A direction of the plan as it lies after the turn.
    QPointF turnedVector(const QPointF &plan) const;
    /// The direction on the plan that leads towards who looks.
    QPointF towardsViewer() const;

private:
    double cos_ = 1, sin_ = 0;
    QPointF centre_;
};

/// As seen: a left wall looks more to the left of the picture, a right one more to the right.
enum class FaceSide { Top, Left, Right };

struct PALX_API IsoFace
{
    SolidKind kind = SolidKind::Product;
    FaceSide side = FaceSide::Top;
    std::array<QPointF, 4> corners; ///< on the picture, millimetres, y down
    double light = 1;               ///< of a wall: from 0, looking right, to 1, looking left
    int course = 0, outline = 0;    ///< where it belongs in what was given
};

/// The faces to paint. A gap narrower than `gapMm` (about a pixel) cannot be looked into, nor one of a few
/// pixels around a box that is enclosed on all sides and from above.
PALX_API QVector<IsoFace> visibleFaces(const QVector<Course> &courses, double gapMm,
                                       const IsoProjection &view = {});
/// The three faces of one box that look to the viewer, hidden or not; the top comes last.
PALX_API QVector<IsoFace> facesOf(const Course &course, int outline, const IsoProjection &view);
/// Around everything in the picture.
PALX_API QRectF isoBounds(const QVector<Course> &courses, const IsoProjection &view = {});
/// Around everything at any turn about `centre`, which lies in the picture's origin.
PALX_API QRectF turningBounds(const QVector<Course> &courses, const QPointF &centre);

/// An order of outlines in which none stands in front of a later one.
PALX_API QVector<int> backToFront(const QVector<Corners> &outlines, const IsoProjection &view = {});

} // namespace palx

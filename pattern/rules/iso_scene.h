#pragma once

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/stack_plan.h"

#include <QRectF>

#include <array>

/// A stack as the faces that one sees of it from its front corner (the far end of both axes of the plan), in
/// the order in which to paint them. Millimetres.
///
/// Steps: a course is a set of prisms between two heights; courses are painted from the bottom up. Within a
/// course a prism is painted before those that stand in front of it. Faces that neighbours or the next course
/// hide are left out. Correct for boxes that stand parallel to the pallet and do not overlap; other turns are
/// sorted by their distance.
namespace palx {

enum class SolidKind { Pallet, Sheet, Product };
enum class FaceSide {
    Top,
    Left,
    Right
}; ///< as seen: the left one looks along the plan's length, the right one across

struct PALX_API Course
{
    SolidKind kind = SolidKind::Product;
    double bottomMm = 0, topMm = 0;
    QVector<Corners> outlines;
};

struct PALX_API IsoFace
{
    SolidKind kind = SolidKind::Product;
    FaceSide side = FaceSide::Top;
    std::array<QPointF, 4> corners; ///< on the picture, millimetres, y down
};

/// A point of the stack on the picture.
PALX_API QPointF isoPoint(const QPointF &plan, double heightMm);

/// Pallet and placed layers. Layers above the first `maxProducts` products are left out.
PALX_API QVector<Course> stackCourses(const orba::Node &stack, const StackPlan &plan, int maxProducts);
/// The faces to paint. A gap narrower than `gapMm` (about a pixel) cannot be looked into.
PALX_API QVector<IsoFace> visibleFaces(const QVector<Course> &courses, double gapMm);
/// Around everything in the picture.
PALX_API QRectF isoBounds(const QVector<Course> &courses);

/// An order of upright or turned outlines in which none stands in front of a later one.
PALX_API QVector<int> backToFront(const QVector<Corners> &outlines);

} // namespace palx

#pragma once

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/stack_plan.h"

#include <QMetaType>

/// A stack as prisms, course by course from the floor up. Millimetres.
namespace palx {

enum class SolidKind { Pallet, Sheet, Product };
enum class Flaw : char { None, Overhang, Overlap };

/// A set of prisms between two heights.
struct PALX_API Course
{
    SolidKind kind = SolidKind::Product;
    double bottomMm = 0, topMm = 0;
    QVector<Corners> outlines; ///< of a layer: in placing order
    int layer = -1;            ///< of the recipe; -1 for parts of the pallet
    QVector<Flaw> flaws = {};  ///< one per outline, or none at all
};

/// Pallet and placed layers. Layers above the first `maxProducts` products are left out.
PALX_API QVector<Course> stackCourses(const orba::Node &stack, const StackPlan &plan, int maxProducts);

/// One thing that is laid: a product or a separator sheet.
struct PALX_API Piece
{
    int layer = -1; ///< -1: none
    int item = -1;  ///< place in the placing order; -1 for a sheet
    bool isSet() const { return layer >= 0; }
};
inline bool operator==(const Piece &a, const Piece &b)
{
    return a.layer == b.layer && a.item == b.item;
}
inline bool operator!=(const Piece &a, const Piece &b)
{
    return !(a == b);
}

PALX_API int pieceCount(const QVector<Course> &courses);
/// The n-th piece, counted from 0 as it is laid; none outside.
PALX_API Piece pieceAt(const QVector<Course> &courses, int n);
/// Which number a piece has, from 0; -1 when it is not laid.
PALX_API int numberOf(const QVector<Course> &courses, const Piece &piece);
/// Whether the piece, or with item -1 the whole layer, is among the courses.
PALX_API bool holdsPiece(const QVector<Course> &courses, const Piece &piece);
/// The pallet with the first pieces on it.
PALX_API QVector<Course> firstPieces(const QVector<Course> &courses, int pieces);
/// How many pieces lie there when one more layer is completed, or the one before is (`up` false).
PALX_API int stepLayer(const QVector<Course> &courses, int pieces, bool up);

} // namespace palx

Q_DECLARE_METATYPE(palx::Piece)

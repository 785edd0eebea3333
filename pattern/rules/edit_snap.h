#pragma once

#include "pattern/rules/edit_move.h"

/// Snapping of products that are being moved. Millimetres, in the plan's frame.
///
/// The two axes snap apart from each other. On an axis the moved area (around all moved items) is drawn to the
/// nearest of these, when it is within reach:
///  - gaps: the least spacing beside a neighbour that lies abreast of it,
///  - the pallet's edges and the lines of the margins,
///  - the same edge or middle as another product, and the pallet's middle; these draw from half as far, so that
///    they do not keep a product from its place beside another.
/// Of equally near ones the first in this list is taken.
namespace palx {

enum class SnapKind { Gap, Edge, Margin, Neighbour, Middle };

/// What the area has snapped to on one axis: a line to draw, and how far the area is from it.
struct PALX_API SnapGuide
{
    SnapKind kind = SnapKind::Gap;
    PlanAxis axis = PlanAxis::Across; ///< the axis that snapped; the line runs along the other one
    double at = 0;                    ///< the line's place on the axis
    double from = 0, to = 0;          ///< its ends on the other axis
    double distanceMm = 0;            ///< the least spacing for a gap, else 0
    int neighbour = -1;               ///< the product concerned, or -1
};
PALX_API bool operator==(const SnapGuide &a, const SnapGuide &b);

struct PALX_API Snap
{
    QPointF shift;             ///< to move by instead of the shift that was wanted
    QVector<SnapGuide> guides; ///< none to two
};

/// What products that stay offer to those that move. Made once when a drag begins.
struct PALX_API SnapField
{
    QRectF moved;           ///< around the moved items before they move
    QVector<QRectF> others; ///< bounds of the items that stay
    QVector<int> places;    ///< of `others`, in the placing order
    QRectF pallet, inside;  ///< `inside` the margins
    double spacingMm = 0;
};
PALX_API SnapField snapField(const QVector<PatternItem> &items, const Selection &moving, const QSizeF &pallet,
                             const QRectF &inside, double spacingMm);

/// `reachMm`: how near something must be to draw.
PALX_API Snap snapMove(const SnapField &field, const QPointF &wanted, double reachMm);

/// The way from one side of the moved area to what lies beside it.
struct PALX_API SideGap
{
    PlanAxis axis = PlanAxis::Across;
    double low = 0, high = 0; ///< both ends on the axis; high < low where they overlap
    double beside = 0;        ///< where on the other axis they face each other
    int neighbour = -1;       ///< the product, or -1 for the pallet's edge
    double gapMm() const { return high - low; }
};
PALX_API bool operator==(const SideGap &a, const SideGap &b);

/// Left, right, above and below the moved area: to the nearest product abreast of it, or to the pallet's edge.
PALX_API QVector<SideGap> gapsAround(const SnapField &field, const QPointF &shift);

} // namespace palx

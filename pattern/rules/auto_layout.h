#pragma once

#include "pattern/rules/pattern_items.h"

/// Automatic layouts: one layer of the recipe's product, computed from the sizes, two margins and a spacing.
/// Millimetres and degrees, in the plan's frame.
///
/// Every generator counts from the near corner of the area inside the margins and ends at the far one. Where
/// that corner lies on the plan is the placement's business. In the order of the items no product comes to lie
/// between the near corner and one that is placed already.
///
/// Sizes that nothing can be laid with (no numbers, products under a millimetre, a spacing below 0, beyond what a
/// plan shows) give no items. Counts come from the doubles as they are: 3 x 100.1 mm do not fit into 300.2999 mm.
namespace palx {

/// Near corner, offsets and direction of all items.
enum class Placement {
    Plain, ///< upper left; no offsets, "Middle"
    Left,  ///< lower left, the vertical axis mirrored; 100, 100, 0 and "TopRight"
    Right, ///< lower right, both axes mirrored; 100, 100, 0 and "TopLeft"
};

struct PALX_API LayoutInput
{
    double length = 0, width = 0; ///< the product's
    int orient = 0;
    double palletLength = 0, palletWidth = 0;
    double topBottomMargin = 0; ///< at both ends of the pallet's length
    double leftRightMargin = 0; ///< at both sides of the pallet's width
    double spacing = 0;         ///< between neighbours
    Placement placement = Placement::Plain;
};
/// Left and right need global work objects calibrated by one point; "pallet_position" decides between them.
PALX_API LayoutInput readLayoutInput(const orba::Node &stack);

struct PALX_API AutoLayout
{
    QVector<PatternItem> items; ///< numbered 1, 2, ...; at most kMaxShownItems
    qint64 count = 0;           ///< of the whole layout
    int turnedRows = 0;         ///< rows turned by 90 degrees, of `generateOneRowRotationPattern`
};

/// Rows and columns of one turn, centred: 0 degrees when `vertical` (the product's length along the pallet's),
/// else 90.
PALX_API AutoLayout generateMatrixPattern(const LayoutInput &input, bool vertical);

/// Rows across the pallet, each turned or not, chosen greedily along the pallet's length.
///
/// The choice counts no spacing after a turned row, the placing leaves one after every row. So a layout with
/// turned rows lies up to that much towards the far end and may reach over margin and pallet there; recipes
/// made with it keep their places.
PALX_API AutoLayout generateOneRowRotationPattern(const LayoutInput &input);

/// A ring of four blocks around a middle gap: the first and third in the product's own turn, the second and
/// fourth turned by 90 degrees. Of all such rings inside the margins the one with the most products, among
/// these the one with the least free area inside its outline, centred. None when no four blocks find room.
///
/// Where the area could hold more than 600 products, three times what a pattern may, only some sizes of blocks
/// are tried.
PALX_API AutoLayout generateSpiralPattern(const LayoutInput &input);

/// The kinds by their numbers on the command line and in the order of the previews.
enum class StackingPattern : int { MatrixVertical, MatrixHorizontal, OneRowRotation, Spiral };
constexpr int kLayoutKinds = 4;

/// A layout of that kind; a number that is no kind has no items.
PALX_API AutoLayout generateLayout(const LayoutInput &input, StackingPattern kind);
/// What the operator calls the kind; empty for a number that is none.
PALX_API QString layoutName(StackingPattern kind);

/// Why the layout must not become a pattern; empty when it may: a pattern holds at most kMaxItems.
PALX_API QString layoutProblem(const AutoLayout &layout);
/// The share of the pallet's area that so many products cover, 0 to 1 as a rule.
PALX_API double areaUsed(const LayoutInput &input, qint64 count);

} // namespace palx

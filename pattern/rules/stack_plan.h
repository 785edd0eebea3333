#pragma once

#include "pattern/rules/pattern_items.h"

#include <QRectF>

/// A recipe as plain values for drawing: sizes, margins, and what lies in which layer at which height.
/// Millimetres.
namespace palx {

struct PALX_API BoxSize
{
    double length = 0, width = 0, height = 0;
    /// Across (width) and along (length), as the plan shows it.
    QSizeF plan() const { return QSizeF(width, length); }
};

enum class LayerKind {
    Products,       ///< a pattern
    Sheet,          ///< the separator sheet "clapboard"
    MissingPattern, ///< names a pattern that the recipe does not hold: the height of a layer, without
                    ///< products
    Empty,          ///< pattern "empty": left out when points are made
    Blank,          ///< no pattern: here the stack ends
    Unreached,      ///< above a blank layer
};

struct PALX_API LayerPlan
{
    LayerKind kind = LayerKind::Blank;
    QString pattern;     ///< as stored
    int products = 0;    ///< items of the pattern, also those beyond kMaxShownItems
    double bottomMm = 0; ///< over the pallet's deck; where the layer would lie when it is not placed
    double heightMm = 0; ///< 0 when nothing is placed
    bool isPlaced() const { return kind <= LayerKind::MissingPattern; }
    double topMm() const { return bottomMm + heightMm; }
};

struct PALX_API StackPlan
{
    QString name;
    BoxSize product, pallet, sheet;
    int orient = 0;
    double marginLeft = 0, marginTop = 0, marginRight = 0, marginBottom = 0;
    bool hasMargins() const
    {
        return marginLeft != 0 || marginTop != 0 || marginRight != 0 || marginBottom != 0;
    }
    /// A length or width was zero, negative, no number or beyond kMaxItemMm; a drawable one stands in for it.
    bool productRepaired = false, palletRepaired = false, sheetRepaired = false;
    QVector<LayerPlan> layers;

    /// The nearest placed layer below, or -1.
    int layerBelow(int layer) const;
    /// Height of the load over the deck.
    double heightMm() const;
};

constexpr double kMaxStackMm = 100000; ///< heights beyond are drawn there

/// Never fails: what is missing is replaced by something that can be drawn.
PALX_API StackPlan readStackPlan(const orba::Node &stack);

/// Where a separator sheet of that size lies on the plan: in the middle of the pallet.
PALX_API QRectF sheetRect(const QSizeF &sheet, const QSizeF &pallet);
/// The items of a layer; none unless it is a layer of products.
PALX_API QVector<PatternItem> layerItems(const orba::Node &stack, const StackPlan &plan, int layer);

} // namespace palx

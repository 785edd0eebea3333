#pragma once

#include "pattern/rules/order_check.h"

/// Everything that is wrong with a layer while it is edited by hand: what `judgeLayout` finds, gaps that are too
/// narrow, products in the recipe's margins, and products that cannot come to their places. Millimetres.
namespace palx {

/// What a layer is judged by.
struct PALX_API EditRules
{
    QSizeF pallet;        ///< across and along
    QRectF inside;        ///< what the recipe's margins leave of the pallet
    double spacingMm = 0; ///< the least gap between products, "automatic_stacker.min_product_spacing"
    ApproachFrame frame;
};
/// A spacing that is missing, negative or no number reads 0; sizes are repaired like those of a plan.
PALX_API EditRules readEditRules(const orba::Node &stack);

/// Two products that do not overlap and lie closer than the least spacing.
struct PALX_API NarrowGap
{
    int first = 0, second = 0; ///< places in the placing order, from 0; first < second
    double gapMm = 0;
};

struct PALX_API EditFindings
{
    LayoutFindings layout;
    QVector<NarrowGap> narrow; ///< sorted by first, then second; at most kMaxListedOverlaps
    QVector<Overhang>
        margins; ///< one per item: how far it reaches into margins, 0 where it leaves the pallet
    OrderFindings order;
    QVector<bool> tight; ///< one per item: a gap beside it is too narrow

    bool any() const;
};
PALX_API EditFindings judgeEdit(const QVector<PatternItem> &items, const EditRules &rules);

} // namespace palx

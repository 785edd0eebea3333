#pragma once

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/stack_plan.h"

class QPainter;

/// What lies under and around the products of a plan. Painters are set to the plan's millimetres.
namespace palx {

/// Pallet with its deck boards, which run along the length.
void paintPallet(QPainter *painter, const QSizeF &pallet);
/// The dashed line that the margins of a recipe leave; does nothing without margins.
void paintMargins(QPainter *painter, const StackPlan &plan);
/// A separator sheet of that size in the middle of the pallet. `ghost`: only its outline, for a sheet that
/// lies below.
void paintSheet(QPainter *painter, const QSizeF &sheet, const QSizeF &pallet, bool ghost);
/// Outlines of the products of the layer below.
void paintGhost(QPainter *painter, const QVector<PatternItem> &items);
/// Lengths of the pallet's sides beside `content`, which is all that the plan shows. `textPixels` is the
/// height of the numbers.
void paintDimensions(QPainter *painter, const QSizeF &pallet, const QRectF &content, double textPixels);
/// The origin, and the axes along the edges of the pallet: X along its length, Y along its width.
void paintOrigin(QPainter *painter, const QSizeF &pallet, double textPixels);
/// The edge of the pallet once more, over products that reach beyond it.
void paintPalletEdge(QPainter *painter, const QSizeF &pallet);
/// How far products reach over the pallet: per edge the farthest, on the product concerned.
void paintOverhang(QPainter *painter, const QSizeF &pallet, const QVector<PatternItem> &items,
                   const LayoutFindings &findings, double textPixels);
/// A sentence in the middle of the pallet, instead of products.
void paintMessage(QPainter *painter, const QSizeF &pallet, const QString &text, double textPixels);

} // namespace palx

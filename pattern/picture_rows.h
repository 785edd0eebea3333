#pragma once

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/stack_plan.h"
#include "pattern/title_block.h"

#include <QImage>

/// The figures that stand beside a picture, in the operator's words.
namespace palx {

/// A transparent picture of that size, bounded to what can be held in memory.
QImage pictureImage(const QSize &pixels);

/// Recipe, layer, pattern, products, sizes, heights.
QVector<TitleRow> layerRows(const StackPlan &plan, int layer, const QVector<PatternItem> &items);
/// What is wrong with the layer, worst first; empty when nothing is.
QVector<TitleRow> findingRows(const StackPlan &plan, const QVector<PatternItem> &items,
                              const LayoutFindings &findings);
/// Recipe, totals of the whole stack, sizes, weights.
QVector<TitleRow> stackRows(const orba::Node &stack, const StackPlan &plan);

} // namespace palx

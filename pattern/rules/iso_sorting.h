#pragma once

#include "pattern/rules/item_geometry.h"

#include <QVector>

/// What the orders of the isometric pictures are made of. `viewer` is the direction on the plan that leads towards who looks.
namespace palx {

/// Beside each other as one looks: neither hides anything of the other.
bool areBeside(const Corners &a, const Corners &b, const QPointF &viewer);
/// Which of two outlines whose views meet may cover the other: 1 the second, -1 the first, 0 neither (they overlap).
int nearer(const Corners &a, const Corners &b, const QPointF &viewer);
/// Numbers from the farthest middle to the nearest.
QVector<int> byDistance(const QVector<Corners> &outlines, const QPointF &viewer);
/// `preferred`, changed as little as needed so that each comes before those that cover it. In a ring the first goes first.
QVector<int> coveredFirst(const QVector<QVector<int>> &coverings, QVector<int> preferred);

} // namespace palx

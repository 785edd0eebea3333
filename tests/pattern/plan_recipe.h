#pragma once

#include "orba/node.h"
#include "pattern/rules/approach.h"
#include "pattern/rules/pattern_items.h"

#include <string>

/// Recipes and items for the tests of plans.

/// A pallet of 1200 x 800 x 144 and a product of 400 x 300 x 200, sheets of 1180 x 780 x 3. Pattern "A": two
/// products beside each other (300 across, 400 along); "B": one turned by 90. Layers: A, clapboard, B, empty,
/// A, missing pattern "Z", blank, A.
orba::Node planRecipe();

/// An item as a record would give it, without faults.
palx::PatternItem planItem(double x, double y, double w, double h, int r = 0);
/// A grid of items of the size given, from the pallet's origin, row by row.
QVector<palx::PatternItem> planGrid(int across, int along, double w, double h);
/// The same as a pattern.
orba::Node patternOf(const QVector<palx::PatternItem> &items);
/// A recipe of one layer with that pattern on a pallet of 1200 x 800.
orba::Node oneLayerRecipe(const QVector<palx::PatternItem> &items);
/// "x,y/turn" of every item, for comparing whole results.
std::string placesOf(const QVector<palx::PatternItem> &items);
/// "direction dx,dy" of every item.
std::string approachesOf(const QVector<palx::PatternItem> &items);
/// The item coming from a side; offsets as in a record.
palx::PatternItem coming(palx::PatternItem item, const char *direction, double dx = 100, double dy = 100);
/// Work objects that look along the plan's axes: "Top" waits on the upper side of the plan.
palx::ApproachFrame namedSides();

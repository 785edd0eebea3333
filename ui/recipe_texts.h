#pragma once

#include "orba/node.h"

#include <QString>

/// One line for a row of a list: boxes, layers, product and pallet.
PALX_API QString recipeFactsText(const orba::Node &stack);
/// What the whole recipe amounts to: boxes, layers, sheets, height, weight; several lines.
PALX_API QString recipeTotalsText(const orba::Node &stack);
/// "200 x 150 x 100 mm"
PALX_API QString sizeText(double length, double width, double height);

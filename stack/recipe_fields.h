#pragma once

#include "orba/node.h"

/// What may stand in the number fields of a recipe: one table for pages, dialogs and checks.
namespace palx {

enum class FieldUnit { None, Millimetre, Kilogram, Degree };

struct PALX_API FieldSpec
{
    const char *path; ///< below the stack, or for items and layers below the item or layer
    double minimum;
    double maximum;
    int decimals; ///< 0: a whole number is stored
    FieldUnit unit;
};

/// The entry of that path, or null.
PALX_API const FieldSpec *fieldSpec(QStringView path);
/// " mm", " kg", the degree sign; empty without a unit.
PALX_API QString unitSuffix(FieldUnit unit);

/// Why the value must not be written to the recipe's field; empty when it may: outside its range, or margins
/// that leave no room for a single product.
PALX_API QString fieldProblem(const orba::Node &stack, QStringView path, double value);

/// Whether the margins leave no room for a single product, as after a change of the pallet.
PALX_API bool marginsTooWide(const orba::Node &stack);
/// A sentence when the product is larger than the pallet in both of its turns, else empty.
PALX_API QString sizeWarning(const orba::Node &stack);

/// "specification" of a pallet of that size: the number of the preset in "pallet_cfg", counted from 1, or 0
/// for a size of its own.
PALX_API int palletSpecification(const orba::Node &presets, double length, double width, double height);

} // namespace palx

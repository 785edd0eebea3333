#pragma once

#include "stack/recipe_patterns.h"

#include <QFlags>
#include <QString>
#include <QVector>

/// The items of a pattern as plain values. Lengths are millimetres, angles whole degrees.
///
/// The plan is seen from above with the pallet's width across ("x", to the right) and the pallet's length
/// down ("y"); its origin is the upper left corner of the pallet. A positive angle turns clockwise. An item
/// that is not turned covers its "w" across and its "h" down.
namespace palx {

/// The side from which a product comes to its place, in the order of `directionNames`.
enum class Direction { Top, Bottom, Left, Right, TopLeft, TopRight, BottomLeft, BottomRight, Middle };

/// "middle" is as good as "Middle"; any other unknown word acts as "Middle" and clears `known`.
PALX_API Direction directionFromName(const QString &name, bool *known = nullptr);

/// What was wrong with a stored item. Such an item is still shown, with values that can be drawn.
enum class ItemFault {
    MissingValue = 1,      ///< no position or size; the position reads 0, the size the product's
    BadValue = 2,          ///< not a finite number; read like a missing one
    ClampedSize = 4,       ///< zero, negative or beyond kMaxItemMm
    ClampedPosition = 8,   ///< further out than kMaxPositionMm
    ClampedOffset = 16,    ///< "dx", "dy" or "dz" beyond kMaxPositionMm
    UnknownDirection = 32, ///< acts as "Middle"
    NumberOutOfOrder = 64, ///< "index" is not the item's place in the placing order
};
Q_DECLARE_FLAGS(ItemFaults, ItemFault)
Q_DECLARE_OPERATORS_FOR_FLAGS(ItemFaults)

struct PALX_API PatternItem
{
    double x = 0; ///< centre across the pallet's width
    double y = 0; ///< centre along the pallet's length
    double w = 0; ///< size across before the turn
    double h = 0; ///< size along before the turn
    int r = 0;    ///< turn, clockwise seen from above; -359 to 359
    int index = 0;
    int orient = 0;
    Direction direction = Direction::Middle;
    QString directionText; ///< as stored
    double dx = 0, dy = 0, dz = 0;
    ItemFaults faults;
};
PALX_API bool operator==(const PatternItem &a, const PatternItem &b);
inline bool operator!=(const PatternItem &a, const PatternItem &b)
{
    return !(a == b);
}

constexpr double kMinItemMm = 1;          ///< what is smaller could not be seen
constexpr double kMaxItemMm = 20000;      ///< far over any pallet; keeps drawings finite
constexpr double kMaxPositionMm = 100000; ///< the same for centres and offsets
constexpr int kMaxShownItems = 2000;      ///< further items of a foreign file are counted, not read

/// A finite number of a record; `def` when it is missing or not a number, with the fault noted.
PALX_API double readMm(const orba::Node &record, QStringView key, double def, ItemFaults *faults = nullptr);

/// The items in placing order, which is the order of the children. Items without a size take the product's
/// (`defaultW` across, `defaultH` along). At most kMaxShownItems.
PALX_API QVector<PatternItem> readPatternItems(const orba::Node &pattern, double defaultW, double defaultH);

/// Appends the record of an item to a pattern, all keys in their usual order; null when the pattern cannot
/// hold children.
PALX_API orba::Node *appendPatternItem(orba::Node &pattern, const PatternItem &item);

} // namespace palx

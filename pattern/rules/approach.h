#pragma once

#include "pattern/rules/pattern_items.h"
#include "stack/place_frame.h"

#include <QPointF>

/// From where the robot brings a product, as seen on the plan.
namespace palx {

/// What turns shifts of the pallet frame into shifts on the plan.
struct ApproachFrame
{
    bool onePoint =
        false; ///< one-point calibrated global work objects: their axes may run against the plan's
    PalletSide side;
};
PALX_API ApproachFrame readApproachFrame(const orba::Node &stack);

struct Approach
{
    /// From the put point to the ready point [mm], where the robot really goes: with work objects whose axes
    /// run with the plan's this is the side opposite to the one that the direction's name suggests.
    QPointF shift;
    /// Towards that side, also when the offsets are 0 and the product comes straight down; (0, 0) for
    /// "Middle".
    QPointF side;
};
inline bool operator==(const Approach &a, const Approach &b)
{
    return a.shift == b.shift && a.side == b.side;
}

PALX_API Approach approachOf(const PatternItem &item, const ApproachFrame &frame);

} // namespace palx

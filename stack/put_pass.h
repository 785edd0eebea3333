#pragma once

#include "stack/place_frame.h"

namespace palx {

/// Arguments of one product's put point; metres and radians.
struct PutRequest {
    PlanarPose pose;
    double z = 0;
    double ox = 0, oy = 0;
    double dz = 0;
    bool lastLayer = false;
    bool secondToLastLayer = false;
};

/// Fills one product node. With one-point calibration the heights in force are rewritten in `frame`.
void fillPutPoints(PlaceFrame &frame, orba::Node &product, const PutRequest &request);
/// Writes the heights that a pass has rewritten into the stack's "put" node.
void storeHeights(const PlaceFrame &frame, orba::Node &put);
/// Shift of "ready_p" against "put_p" [m] for an item's direction and offsets dx, dy [mm].
PALX_API void readyShift(const QString &direction, double dx, double dy, const PalletSide &side, double *ox, double *oy);
/// Clears and refills "points.put"; see `genStackWayPoints`.
void genStackPutPoints(orba::Node &stack, const orba::Node &plugin);

} // namespace palx

#pragma once

#include "orba/node.h"

/// What point generation reads once per pass from a stack and from the plugin node that holds it.
namespace palx {

/// Sides and axes of a pallet frame: the two "towards" values and the pallet's side.
struct PalletSide {
    int position = 0;  ///< "pallet_position": 0 left, 1 right, others name no side
    int towards[2] = {}; ///< of the left and the right global work object

    bool isSide() const { return position == 0 || position == 1; }
    bool bothTowards(int value) const { return towards[0] == value && towards[1] == value; }
    bool isMixed() const { return !bothTowards(0) && !bothTowards(1); }
};

PalletSide palletSideOf(const orba::Node &stack, const orba::Node &plugin);
bool isOnePointCalibrated(const orba::Node &stack, const orba::Node &plugin);
/// Mode 1 (real) or any other (diagonal) of `getOriginPoint`; a detached point record.
orba::Node makeOriginPoint(const orba::Node &stack, const orba::Node &plugin, int mode);
/// The taught origin point, or null.
const orba::Node *taughtOriginPoint(const orba::Node &stack, const orba::Node &plugin);

/// One of three numbers of a point record's "trans" or "rot"; 0 when missing.
double transOf(const orba::Node &point, int axis);
double rotOf(const orba::Node &point, int axis);

/// Heights above the put point [mm], kept in the stack's "put" node.
struct PutHeights {
    double ready = 0;
    double approach = 0;
    double retract = 0;
    double exit = 0;
};

/// A position in the pallet frame [m] and a turn [rad].
struct PlanarPose {
    double x = 0;
    double y = 0;
    double rz = 0;
};

/// The reference frame of one stack's put points.
class PlaceFrame
{
public:
    PlaceFrame(const orba::Node &stack, const orba::Node &plugin);

    /// `start` is what x and y keep with mixed "towards".
    PlanarPose itemPose(const orba::Node &item, PlanarPose start) const;

    bool onePoint;           ///< one-point calibration of both global work objects
    PalletSide side;
    double palletLength;     ///< [mm]
    double palletWidth;      ///< [mm]
    double palletHeight;     ///< [mm]
    double productHeight;    ///< [mm]
    double enterSpan;        ///< product extent that the enter point clears [mm]
    orba::Node putBase;      ///< record that every "put_p" starts as
    orba::Node enterBase;    ///< record that every "enter_p" starts as
    double getApproachZ;     ///< height of the pick side's "approach_p" [m]
    struct {
        double enterX, enterY, enterH; ///< [mm]
        PutHeights heights;
    } offsets;               ///< of the pallet's side, from the global waypoint settings
    PutHeights heights;      ///< in force; rewritten product by product with one-point calibration
    bool heightsWritten = false;
};

} // namespace palx

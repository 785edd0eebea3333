#pragma once

#include "orba/module_object.h"

/// Put points: where the robot sets each product down, and the five waypoints around it.
///
/// Units: nodes of a recipe hold millimetres and degrees, point records and the arguments here metres and radians.
namespace palx {

/// Whether the stack stands on global work objects that were both calibrated by one point.
PALX_API bool isGlobalWObjCalibrationMethodOne(orba::ModuleObject *stack);

/// Position [m] and turn [rad] of a pattern item in the pallet frame. The axes of the pattern are exchanged on purpose:
/// x runs along the pallet's length. With one-point calibration and mixed "towards" x and y stay as passed.
PALX_API void calCoordiate(orba::ModuleObject *stack, orba::ModuleObject *item, double &x, double &y, double &rz);

/// An origin point of the pallet frame with one-point calibration. Mode 0: the taught point itself, owned by the tree,
/// the empty node when "pallet_position" names no side. Mode 1: a new record "real_origin_point", the taught point
/// moved by half the calibration load. Any other: a new record "diagonal_origin_point", the real one moved by the whole
/// pallet. New records belong to the caller; mixed "towards" zero their x and y, a "pallet_position" other than 0 and 1
/// zeroes them whole.
PALX_API orba::ModuleObject *getOriginPoint(orba::ModuleObject *stack, int mode);

/// Fills one product node with its six point records.
/// @param put      the stack's "put" node; with one-point calibration its heights are rewritten
/// @param x,y      position in the pallet frame [m]
/// @param z        height of what lies below [m]
/// @param rz       turn, added to the C angle of the reference point [rad]
/// @param ox,oy    shift of "ready_p" against "put_p" [m]
/// @param dz       added to the height of "ready_p" [m]
PALX_API void genPutPoints(orba::ModuleObject *put, orba::ModuleObject *product, double x, double y, double z,
                           double rz, double ox, double oy, double dz, bool lastLayer, bool secondToLastLayer);

} // namespace palx

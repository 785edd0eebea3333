#pragma once

#include <QString>
#include <QStringList>

namespace controller::cell {

/// What can go wrong in the cell, to be brought about by name.
enum class Fault {
    NoVacuum,     ///< the pump gives no vacuum; what is carried falls
    LostBox,      ///< the product that is carried, or the next one, falls off once
    ConveyorJam,  ///< the belt does not move
    PalletPulled, ///< the pallet that is being stacked is taken away, and brought back as it was
    EStop,        ///< the emergency stop is pressed until it is taken back
    Collision,    ///< the robot was stopped by a collision, until it is reset
    PowerCut,     ///< everything loses its power for a moment
};
constexpr int kFaults = 7;

/// "no-vacuum", "lost-box", "conveyor-jam", "pallet-pulled", "e-stop", "collision", "power-cut".
QString faultName(Fault fault);
QStringList faultNames();
/// Blanks count as "-". False when there is no such fault.
bool faultOfName(const QString &name, Fault *fault);

} // namespace controller::cell

#pragma once

#include "orba/export.h"

#include <QStringList>

/// What the move dialog writes beside its jog buttons: joints in degrees, Cartesian axes in millimetres and
/// degrees.
namespace palx {

/// "J1(°)" to "J7(°)", and "X(mm)" to "C(°)", in the language of the sources: made while the library is
/// loaded, when no translation is there yet.
PALX_API extern const QStringList joint_labels;
PALX_API extern const QStringList cartesian_labels;
/// The same in the operator's language, as it is now.
PALX_API QStringList jointLabels();
PALX_API QStringList cartesianLabels();

} // namespace palx

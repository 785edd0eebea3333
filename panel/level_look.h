#pragma once

#include "ix/xtheme.h"

namespace panel {

/// How a notice's level looks: colour and symbol together, never colour alone.
ix::xtheme::State levelState(const QString &level);
/// The symbol on the ground of the level's colour, or in that colour on a light ground.
QIcon levelIcon(const QString &level, bool onStateGround);

} // namespace panel

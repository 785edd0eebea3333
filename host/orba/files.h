#pragma once

#include "orba/export.h"

#include <QString>

namespace orba {

/// The name under which a file that cannot be used is kept: "<file>.damaged-<date and time to the millisecond>", with a
/// number behind it when there is one of that name.
PALX_API QString damagedName(const QString &file);
/// Renames a file that cannot be used, so that saving does not destroy it. Returns its new name, empty on failure.
PALX_API QString setAside(const QString &file);

} // namespace orba

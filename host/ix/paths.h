#pragma once

#include "orba/export.h"

#include <QString>

namespace ix {

/// The resource of a plug-in's data template: ":/<plugin>/template/<name>.json".
PALX_API QString templatePath(const QString &plugin, const QString &name);
/// The resource of a plug-in's translation: ":/<plugin>/language/<plugin>_<language>.qm".
PALX_API QString translationPath(const QString &plugin, const QString &language);

} // namespace ix

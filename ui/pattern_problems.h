#pragma once

#include "orba/node.h"

#include <QStringList>

namespace palx {

/// What is wrong with a pattern, one sentence each: products that overlap, reach over the pallet, have
/// another size than the recipe's product, or were stored with values that cannot be used.
PALX_API QStringList patternProblems(const orba::Node &stack, const QString &pattern);

} // namespace palx

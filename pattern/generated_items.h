#pragma once

#include "pattern/rules/pattern_items.h"

class PatternScene;

namespace palx {

/// Appends what a template or an automatic layout made to the pattern that a scene shows, in order.
void addGeneratedItems(PatternScene *scene, const QVector<PatternItem> &items);

} // namespace palx

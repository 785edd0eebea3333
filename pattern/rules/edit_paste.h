#pragma once

#include "pattern/rules/edit_findings.h"

namespace palx {

/// Copied items moved to where they are pasted: beside their old place, at the least spacing, on the first side
/// (right, below, left, above) where they lie inside the margins and touch nothing; else a little aside.
/// Numbered on from `items`. Millimetres.
PALX_API QVector<PatternItem> pastedItems(const QVector<PatternItem> &items,
                                          const QVector<PatternItem> &copied, const EditRules &rules);

constexpr double kPasteAsideMm = 20; ///< far enough to see that something was pasted

} // namespace palx

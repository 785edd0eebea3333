#pragma once

#include "orba/module_object.h"
#include "pattern/rules/pattern_items.h"

/// Writing edited items back to their pattern. GUI thread only.
namespace palx {

/// Makes the pattern's records follow an edit. `was` are the items as they were read; `is` are those that
/// replace them, in their new order; `origin` says for each of these which of the old ones it was, or -1 for a new
/// one. Old items that no new one comes from are removed.
///
/// Only what the edit has changed is written: keys of other makers and values that could not be used stay in
/// their records. Records beyond those that were read (kMaxShownItems) stay behind the others. Values are
/// written in place, so that fields tied to them follow.
PALX_API void writeItems(orba::ModuleObject *pattern, const QVector<PatternItem> &was,
                         const QVector<PatternItem> &is, const QVector<int> &origin);
/// For edits that keep number and order of the items.
PALX_API void writeItems(orba::ModuleObject *pattern, const QVector<PatternItem> &was,
                         const QVector<PatternItem> &is);

} // namespace palx

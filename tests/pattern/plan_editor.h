#pragma once

#include "pattern/pattern_editing.h"

#include <memory>
#include <string>

/// A recipe with one pattern that is edited on its plan, for tests of editing. The pallet measures 1200 x 800,
/// the least spacing is 2 mm.
class PlanEditor
{
public:
    explicit PlanEditor(const QVector<palx::PatternItem> &items);

    orba::ModuleObject *pattern() { return stack->r("patterns")->c("A"); }
    /// The stored items.
    QVector<palx::PatternItem> stored();
    std::string places();
    /// "edited" and "refused: why", in the order they came, since the last call.
    std::string told();

    std::unique_ptr<orba::ModuleObject> stack;
    PatternScene scene;
    palx::PatternEditing editing;

private:
    QStringList told_;
};

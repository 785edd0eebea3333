#pragma once

#include "pattern/rules/auto_layout.h"

namespace palx {

constexpr double kSameMm = 1e-6; // sums of tenths of a millimetre are not exact

/// How many extents with spacings between them fit into the room. Not negative.
int fitCount(double room, double extent, double spacing);

/// Puts products into a layout, given by their places from the near corner of the area inside the margins, and
/// brings them to the plan.
class LayoutBuilder
{
public:
    explicit LayoutBuilder(const LayoutInput &input);

    /// False when nothing can be laid with the input.
    bool isUsable() const { return usable_; }
    double roomAcross() const { return across_; }
    double roomAlong() const { return along_; }
    /// The product's extents in that turn.
    double extentAcross(bool turned) const { return turned ? input_.length : input_.width; }
    double extentAlong(bool turned) const { return turned ? input_.width : input_.length; }

    /// `columns` x `rows` products row by row, the first corner at (`across`, `along`). All are counted; those
    /// over kMaxShownItems are not made.
    void addBlock(double across, double along, int columns, int rows, bool turned);
    void addTurnedRow() { ++layout_.turnedRows; }
    AutoLayout take() { return std::move(layout_); }

private:
    void add(double across, double along, bool turned);

    LayoutInput input_;
    double across_;
    double along_;
    bool usable_;
    PatternItem model_;
    AutoLayout layout_;
};

} // namespace palx

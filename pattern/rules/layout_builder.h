#pragma once

#include "pattern/rules/auto_layout.h"

namespace palx {

/// How many extents with spacings between them fit into the room. Not negative.
int fitCount(double room, double extent, double spacing);
/// What is free before the first and behind the last of so many extents that are centred in the room.
double centringMargin(double room, int count, double extent, double spacing);

/// Puts products into a layout. A start is the near side of the first product on the plan; from there products
/// follow towards the far side, which on a mirrored axis is the low end.
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

    /// Starts that far from the near side of the area inside the margins.
    double startAcross(double distance) const { return start(acrossAxis_, distance); }
    double startAlong(double distance) const { return start(alongAxis_, distance); }
    /// A start that lies farther from the near end of the length.
    double fartherAlong(double from, double distance) const;

    /// `columns` x `rows` products row by row from the two starts. All are counted; those over kMaxShownItems are
    /// not made.
    void addBlock(double across, double along, int columns, int rows, bool turned);
    void addTurnedRow() { ++layout_.turnedRows; }
    AutoLayout take() { return std::move(layout_); }

private:
    /// Where the area inside the margins begins and ends on the plan, and whether laying begins at its end.
    struct Axis
    {
        double low, high;
        bool mirrored;
    };
    static double start(const Axis &axis, double distance)
    {
        return axis.mirrored ? axis.high - distance : axis.low + distance;
    }
    static double centre(const Axis &axis, double start, double distance, double extent)
    {
        return axis.mirrored ? start - distance - extent / 2 : start + distance + extent / 2;
    }

    LayoutInput input_;
    Axis acrossAxis_;
    Axis alongAxis_;
    double across_;
    double along_;
    bool usable_;
    PatternItem model_;
    AutoLayout layout_;
};

} // namespace palx

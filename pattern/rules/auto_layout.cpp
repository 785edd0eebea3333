#include "pattern/rules/auto_layout.h"

#include "pattern/rules/layout_builder.h"
#include "pattern/rules/ring_search.h"
#include "stack/place_frame.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>

#include <cmath>

namespace palx {

namespace {

using orba::Node;

struct LayoutText
{
    Q_DECLARE_TR_FUNCTIONS(LayoutText)
};

Placement placementOf(const Node &stack)
{
    if (!isOnePointCalibrated(stack, pluginNodeOf(stack)))
        return Placement::Plain;
    return stack.getInt(u"pallet_position") == 0 ? Placement::Left : Placement::Right;
}

double extentOf(int count, double extent, double spacing)
{
    return count * (extent + spacing) - spacing;
}

/// Rows along the pallet's length: which of them are turned, and the length they were chosen for.
struct RowChoice
{
    QVector<bool> turned;
    double total = 0;
};

RowChoice chooseRows(const LayoutInput &input)
{
    RowChoice rows;
    const double end = input.palletLength;
    const double start = 2 * input.topBottomMargin;
    double used = start;
    while (used < end) {
        const double next = used + input.length;
        if (next == end) {
            rows.turned.append(false);
            used = next;
            break;
        }
        if (next + input.spacing <= end) {
            rows.turned.append(false);
            used = next + input.spacing;
        } else if (used + input.width <= end) {
            rows.turned.append(true);
            used += input.width; // and no spacing, although an unturned row counts one
        } else {
            break;
        }
    }
    rows.total = used - start;
    return rows;
}

constexpr double kSameMm = 1e-6; // sums of tenths of a millimetre are not exact

/// Blocks are laid in an order in which none is brought past one that lies farther from the near corner: the two
/// beside the first block, whichever of them reaches beside the other last.
std::array<int, 4> blockOrder(const Ring &ring, double pitchAcross)
{
    const bool apart = (ring.blocks[1].rows + ring.blocks[3].rows) * pitchAcross <= ring.along + kSameMm;
    return apart ? std::array<int, 4>{0, 1, 3, 2} : std::array<int, 4>{0, 3, 1, 2};
}

void layRing(LayoutBuilder &builder, const Ring &ring, const RingRoom &room)
{
    const double across = ring.across - room.spacing;
    const double along = ring.along - room.spacing;
    const double left = (builder.roomAcross() - across) / 2;
    const double top = (builder.roomAlong() - along) / 2;
    for (const int i : blockOrder(ring, room.pitchAcross)) {
        const RingBlock &block = ring.blocks[std::size_t(i)];
        const bool turned = i % 2 == 1;
        const double width = extentOf(block.columns, builder.extentAcross(turned), room.spacing);
        const double height = extentOf(block.rows, builder.extentAlong(turned), room.spacing);
        builder.addBlock(builder.startAcross(i == 1 || i == 2 ? left + across - width : left),
                         builder.startAlong(i >= 2 ? top + along - height : top), block.columns, block.rows,
                         turned);
    }
}

} // namespace

LayoutInput readLayoutInput(const Node &stack)
{
    LayoutInput input;
    input.length = stack.getDouble(u"product_cfg.product.length");
    input.width = stack.getDouble(u"product_cfg.product.width");
    input.orient = int(stack.getInt(u"product_cfg.product.orient"));
    input.palletLength = stack.getDouble(u"product_cfg.pallet.length");
    input.palletWidth = stack.getDouble(u"product_cfg.pallet.width");
    input.topBottomMargin = stack.getDouble(u"automatic_stacker.top_bottom_margin");
    input.leftRightMargin = stack.getDouble(u"automatic_stacker.left_right_margin");
    input.spacing = stack.getDouble(u"automatic_stacker.min_product_spacing");
    input.placement = placementOf(stack);
    return input;
}

AutoLayout generateMatrixPattern(const LayoutInput &input, bool vertical)
{
    LayoutBuilder builder(input);
    if (!builder.isUsable())
        return {};
    const double a = builder.extentAcross(!vertical);
    const double b = builder.extentAlong(!vertical);
    const int columns = fitCount(builder.roomAcross(), a, input.spacing);
    const int rows = fitCount(builder.roomAlong(), b, input.spacing);
    builder.addBlock(builder.startAcross(centringMargin(builder.roomAcross(), columns, a, input.spacing)),
                     builder.startAlong(centringMargin(builder.roomAlong(), rows, b, input.spacing)), columns,
                     rows, !vertical);
    return builder.take();
}

AutoLayout generateOneRowRotationPattern(const LayoutInput &input)
{
    LayoutBuilder builder(input);
    if (!builder.isUsable())
        return {};
    const RowChoice rows = chooseRows(input);
    double start = builder.startAlong((builder.roomAlong() - rows.total) / 2);
    for (const bool turned : rows.turned) {
        const double a = builder.extentAcross(turned);
        const int columns = fitCount(builder.roomAcross(), a, input.spacing);
        const double margin = centringMargin(builder.roomAcross(), columns, a, input.spacing);
        builder.addBlock(builder.startAcross(margin), start, columns, 1, turned);
        if (turned)
            builder.addTurnedRow();
        start = builder.fartherAlong(start, builder.extentAlong(turned) + input.spacing);
    }
    return builder.take();
}

AutoLayout generateSpiralPattern(const LayoutInput &input)
{
    LayoutBuilder builder(input);
    if (!builder.isUsable())
        return {};
    RingRoom room;
    room.across = builder.roomAcross() + input.spacing;
    room.along = builder.roomAlong() + input.spacing;
    room.spacing = input.spacing;
    room.pitchAcross = input.width + input.spacing;
    room.pitchAlong = input.length + input.spacing;
    const Ring ring = findRing(room);
    if (ring.count > 0)
        layRing(builder, ring, room);
    return builder.take();
}

AutoLayout generateLayout(const LayoutInput &input, StackingPattern kind)
{
    switch (kind) {
    case StackingPattern::MatrixVertical:
    case StackingPattern::MatrixHorizontal:
        return generateMatrixPattern(input, kind == StackingPattern::MatrixVertical);
    case StackingPattern::OneRowRotation:
        return generateOneRowRotationPattern(input);
    case StackingPattern::Spiral:
        return generateSpiralPattern(input);
    }
    return {};
}

QString layoutName(StackingPattern kind)
{
    switch (kind) {
    case StackingPattern::MatrixVertical:
        return LayoutText::tr("Matrix (vertical)");
    case StackingPattern::MatrixHorizontal:
        return LayoutText::tr("Matrix (horizontal)");
    case StackingPattern::OneRowRotation:
        return LayoutText::tr("Crisscross");
    case StackingPattern::Spiral:
        return LayoutText::tr("Back letterform");
    }
    return QString();
}

QString layoutProblem(const AutoLayout &layout)
{
    return layout.count > kMaxItems ? LayoutText::tr("Wobj number is greater than 200") : QString();
}

double areaUsed(const LayoutInput &input, qint64 count)
{
    const double pallet = input.palletLength * input.palletWidth;
    return pallet > 0 ? double(count) * input.length * input.width / pallet : 0;
}

} // namespace palx

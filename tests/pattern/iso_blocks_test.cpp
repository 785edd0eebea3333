// The order in which blocks and stacks are painted.

#include "pattern/rules/iso_blocks.h"

#include <QString>

#include <gtest/gtest.h>

using palx::IsoBlock;
using palx::IsoGroup;
using palx::IsoPart;

namespace {

IsoBlock block(double left, double top, double width, double height, double bottomMm, double topMm)
{
    return {{QPointF(left, top), QPointF(left + width, top), QPointF(left + width, top + height),
             QPointF(left, top + height)},
            bottomMm,
            topMm};
}

IsoGroup single(const IsoBlock &at, int look)
{
    return {palx::blockPart(at, palx::IsoProjection(), look)};
}

/// The looks in painting order.
QVector<int> order(const QVector<IsoGroup> &groups, const palx::IsoProjection &view = {})
{
    QVector<int> looks;
    for (const IsoPart &part : palx::arrangeGroups(groups, view))
        looks.append(part.look);
    return looks;
}

/// Two layers of two boxes beside each other along the plan's x.
QVector<palx::Course> stack(int boxesAbove)
{
    palx::Course lower{palx::SolidKind::Product, 0, 100, {}, 0, {}};
    lower.outlines = {block(0, 0, 100, 100, 0, 0).outline, block(100, 0, 100, 100, 0, 0).outline};
    palx::Course upper = lower;
    upper.bottomMm = 100;
    upper.topMm = 200;
    upper.layer = 1;
    upper.outlines.resize(boxesAbove);
    return {lower, upper};
}

} // namespace

TEST(IsoBlocks, ThoseBeforeAndAboveArePaintedLater)
{
    const IsoBlock ground = block(0, 0, 400, 400, 0, 10);
    const IsoBlock far = block(10, 10, 100, 100, 10, 110);
    const IsoBlock near = block(200, 200, 100, 100, 10, 500);
    const IsoBlock hanging = block(10, 10, 100, 100, 300, 400);
    const QVector<int> wanted{0, 1, 2, 3};
    EXPECT_EQ(order({single(ground, 0), single(far, 1), single(hanging, 2), single(near, 3)}), wanted);
    EXPECT_EQ(order({single(near, 3), single(hanging, 2), single(far, 1), single(ground, 0)}), wanted);
    // Turned by half, the near one is the far one.
    const palx::IsoProjection behind(180, QPointF(200, 200));
    const auto turned = order({single(ground, 0), single(far, 1), single(near, 3)}, behind);
    EXPECT_EQ(turned, QVector<int>({0, 3, 1}));
}

TEST(IsoBlocks, ABoxThatIsSetDownStandsAmongTheBoxesOfItsLayer)
{
    const IsoGroup group = palx::stackGroup(stack(1), 1, palx::IsoProjection());
    ASSERT_EQ(group.size(), 3);
    const IsoGroup carried = single(block(100, 0, 100, 100, 120, 220), 9);
    const QVector<int> looks = order({carried, group});
    EXPECT_EQ(looks, QVector<int>({0, 0, 1, 9}));
    // Beside the stack, as it comes from the far side, it is behind everything that stands there.
    const IsoGroup behind = single(block(-150, 0, 100, 100, 20, 120), 9);
    EXPECT_EQ(order({group, behind}), QVector<int>({9, 0, 0, 1}));
    // Between boxes of a layer: behind the nearer one, before the farther one.
    palx::Course row{palx::SolidKind::Product, 0, 100, {}, 0, {}};
    row.outlines = {block(0, 0, 100, 100, 0, 0).outline, block(300, 0, 100, 100, 0, 0).outline};
    const IsoGroup gap = palx::stackGroup({row}, 1, palx::IsoProjection());
    const IsoGroup between = single(block(150, 0, 100, 100, 10, 110), 9);
    EXPECT_EQ(order({between, gap}), QVector<int>({0, 9, 0}));
}

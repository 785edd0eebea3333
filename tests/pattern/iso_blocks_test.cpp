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

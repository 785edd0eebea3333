#pragma once

#include "pattern/rules/iso_scene.h"

/// Blocks that stand or hang anywhere, and stacks among them, in the order in which to paint them. Millimetres.
///
/// Steps: stacks and single blocks are ordered by the planes that part them, upright or level. A block that no plane parts
/// from a stack, as one that is being set down, is put among the stack's own parts. Correct for blocks that do not overlap.
namespace palx {

struct PALX_API IsoBlock
{
    Corners outline{};
    double bottomMm = 0, topMm = 0;
};

/// A block and the faces that one sees of it.
struct PALX_API IsoPart
{
    IsoBlock block;
    QVector<IsoFace> faces;
    int look = 0; ///< the caller's: how to colour it
};
/// Parts that are in their order already; one alone is a single block.
using IsoGroup = QVector<IsoPart>;

/// The faces of a block that look to the viewer; the top comes last.
PALX_API IsoPart blockPart(const IsoBlock &block, const IsoProjection &view, int look);
/// A stack as a group; `look` of a part is the place of its course.
PALX_API IsoGroup stackGroup(const QVector<Course> &courses, double gapMm, const IsoProjection &view);
/// All parts in the order in which to paint them.
PALX_API IsoGroup arrangeGroups(const QVector<IsoGroup> &groups, const IsoProjection &view);

} // namespace palx

#pragma once

#include <array>

namespace palx {

/// Rows and columns of products in one turn.
struct RingBlock
{
    int columns = 0; ///< across
    int rows = 0;    ///< along
};
inline bool operator==(const RingBlock &a, const RingBlock &b)
{
    return a.columns == b.columns && a.rows == b.rows;
}

/// Four blocks in the corners of an outline. The first lies in the near corner, the second beside it across, the
/// third opposite the first, the fourth beside the first along. The first and third are not turned, the others
/// are.
struct Ring
{
    std::array<RingBlock, 4> blocks; ///< all empty when there is no ring
    int count = 0;
    double across = 0, along = 0; ///< the outline, one spacing included in each
};

/// What rings are searched in. Pitches are a product's extents plus one spacing, and the room includes one spacing
/// too, so that n products fit where n pitches do. All lengths in one unit; pitches above 0.
struct RingRoom
{
    double across = 0, along = 0;
    double pitchAcross = 0; ///< of a product that is not turned
    double pitchAlong = 0;
    double spacing = 0;
};

/// The ring with the most products; among these the one with the smallest outline.
///
/// Tries all rings of which no block can simply be enlarged, cut off by a bound on what two neighbours can hold.
/// Where there are too many of them, only some sizes of blocks are tried; no ring of up to 200 products, as many
/// as a pattern may hold, is missed by that.
Ring findRing(const RingRoom &room);

} // namespace palx

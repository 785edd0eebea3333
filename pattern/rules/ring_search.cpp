#include "pattern/rules/ring_search.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace palx {

namespace {

constexpr double kSame = 1e-6;

int fits(double room, double pitch)
{
    return room < 0 ? 0 : int((room + kSame) / pitch);
}

/// Counts of one ring in the search's own axes: u is the axis along which the columns are tried, v the other. The
/// "long" blocks, in the near corner and opposite, have the longer pitch on u and the shorter on v; the
/// "short" ones, far on u and far on v, the other way round.
struct Counts
{
    int uLong1, uShort1, uLong2, uShort2;
    int vLong1, vShort1, vLong2, vShort2;
    int total() const { return uLong1 * vLong1 + uShort1 * vShort1 + uLong2 * vLong2 + uShort2 * vShort2; }
};

/// The blocks are neighbours in pairs: on u long 1 with short 1 and short 2 with long 2, on v long 1 with short 2
/// and short 1 with long 2. Blocks that face each other over the gap must be clear of each other on u or v.
class RingSearch
{
public:
    RingSearch(double u, double v, double longPitch, double shortPitch, double spacing);

    bool run();
    const Counts &best() const { return best_; }
    double outlineU() const { return outlineU_; }
    double outlineV() const { return outlineV_; }

private:
    void tryLong(int uLong1, int uLong2);
    void tryColumns(const Counts &columns);
    void tryRows(Counts counts);
    void consider(const Counts &counts);
    bool outline(const Counts &counts, double *u, double *v) const;
    int sideMost(int uLong, int uShort) const;
    bool isSmall() const;
    int step(int count) const;
    bool canBeat(int most) const { return most > bestTotal_ || (most == bestTotal_ && !isDense_); }

    double u_, v_, long_, short_, spacing_;
    int mostColumns_; ///< of a long block
    int mostRows_;    ///< of a short block
    int mostLongs_;   ///< columns of both long blocks while they are clear of each other on u
    int mostShorts_;  ///< columns of both short blocks while they are clear of each other on u
    int mostShared_;  ///< rows of both long blocks while they are clear of each other on v
    bool isExact_;
    std::vector<int> longRows_; ///< most rows of a long block beside so many rows of a short one, from 1
    Counts best_{};
    int bestTotal_ = 0;
    bool isDense_ = false; ///< the best ring's outline has no gap at all
    double outlineU_ = 0, outlineV_ = 0;
};

RingSearch::RingSearch(double u, double v, double longPitch, double shortPitch, double spacing)
    : u_(u), v_(v), long_(longPitch), short_(shortPitch), spacing_(spacing),
      mostColumns_(fits(u - shortPitch, longPitch)), mostRows_(fits(v - shortPitch, longPitch)),
      mostLongs_(fits(u, longPitch)), mostShorts_(fits(u, shortPitch)), mostShared_(fits(v, shortPitch)),
      isExact_(isSmall())
{
    longRows_.push_back(0);
    for (int rows = 1; rows <= mostRows_; ++rows)
        longRows_.push_back(fits(v_ - rows * long_, short_));
}

/// Whether every ring can be tried: a row of a block holds a product, so no side is longer than a pattern allows.
bool RingSearch::isSmall() const
{
    constexpr double kMostTries = 1e6;
    constexpr int kMostRows = 200;
    return mostRows_ <= kMostRows &&
           0.5 * mostColumns_ * mostColumns_ * mostShorts_ * mostRows_ * mostRows_ <= kMostTries;
}

/// From one tried number to the next, of so many.
int RingSearch::step(int count) const
{
    constexpr int kTried = 12;
    return isExact_ ? 1 : count / kTried + 1;
}

bool RingSearch::run()
{
    // A ring turned by 180 degrees is the same ring, so the second long block is never the smaller one.
    for (int second = mostColumns_; second >= 1; second -= step(mostColumns_)) {
        for (int first = second; first >= 1; first -= step(mostColumns_))
            tryLong(first, second);
    }
    return bestTotal_ > 0;
}

/// The most products of a long and a short block that are neighbours on v, by their columns.
int RingSearch::sideMost(int uLong, int uShort) const
{
    int most = 0;
    for (int rows = mostRows_; rows >= 1; rows -= step(mostRows_))
        most = std::max(most, uShort * rows + uLong * longRows_[std::size_t(rows)]);
    return most;
}

/// The short blocks are as wide as their neighbours let them, or just narrow enough to be clear of each other.
void RingSearch::tryLong(int uLong1, int uLong2)
{
    const int most1 = fits(u_ - uLong1 * long_, short_);
    const int most2 = fits(u_ - uLong2 * long_, short_);
    tryColumns({uLong1, most1, uLong2, most2, 0, 0, 0, 0});
    if (most1 + most2 <= mostShorts_)
        return;
    const int least = std::max(1, mostShorts_ - most2);
    for (int first = std::min(most1, mostShorts_ - 1); first >= least; first -= step(mostShorts_))
        tryColumns({uLong1, first, uLong2, mostShorts_ - first, 0, 0, 0, 0});
}

void RingSearch::tryColumns(const Counts &columns)
{
    const int far = sideMost(columns.uLong2, columns.uShort1);
    if (!canBeat(far + sideMost(columns.uLong1, columns.uShort2)))
        return;
    const bool shortClear = columns.uShort1 + columns.uShort2 <= mostShorts_;
    const int bothShort = shortClear ? 2 * mostRows_ : fits(v_, long_);
    Counts counts = columns;
    for (counts.vShort2 = mostRows_; counts.vShort2 >= 1; counts.vShort2 -= step(mostRows_)) {
        counts.vLong1 = longRows_[std::size_t(counts.vShort2)];
        if (!canBeat(counts.uShort2 * counts.vShort2 + counts.uLong1 * counts.vLong1 + far))
            continue;
        counts.vShort1 = std::min(mostRows_, bothShort - counts.vShort2);
        for (; counts.vShort1 >= 1; counts.vShort1 -= step(mostRows_)) {
            counts.vLong2 = longRows_[std::size_t(counts.vShort1)];
            tryRows(counts);
        }
    }
}

/// Long blocks that are not clear of each other on u must share v: rows are taken from the narrower one. From
/// blocks of one width they are taken so that both sides of the ring become alike.
void RingSearch::tryRows(Counts counts)
{
    const int excess = counts.vLong1 + counts.vLong2 - mostShared_;
    if (counts.uLong1 + counts.uLong2 <= mostLongs_ || excess <= 0)
        return consider(counts);
    const int least = std::max(1, counts.vLong1 - excess);
    const int last = std::min(counts.vLong1, mostShared_ - 1);
    const double alike = (mostShared_ + (counts.vShort1 - counts.vShort2) * long_ / short_) / 2;
    const int wanted = counts.uLong1 == counts.uLong2 ? int(std::floor(alike)) : least;
    for (const int rows : {wanted, wanted + 1}) {
        counts.vLong1 = std::min(std::max(rows, least), last);
        counts.vLong2 = mostShared_ - counts.vLong1;
        consider(counts);
    }
}

void RingSearch::consider(const Counts &counts)
{
    const int total = counts.total();
    double u = 0;
    double v = 0;
    if (total < bestTotal_ || !outline(counts, &u, &v))
        return;
    const bool smaller =
        (u - spacing_) * (v - spacing_) < (outlineU_ - spacing_) * (outlineV_ - spacing_) - kSame;
    if (total == bestTotal_ && !smaller)
        return;
    best_ = counts;
    bestTotal_ = total;
    outlineU_ = u;
    outlineV_ = v;
    isDense_ = u * v <= total * long_ * short_ + kSame;
}

/// The smallest outline of all ways to keep the facing blocks clear of each other; false when there is none.
bool RingSearch::outline(const Counts &c, double *u, double *v) const
{
    const double leastU =
        std::max(c.uLong1 * long_ + c.uShort1 * short_, c.uShort2 * short_ + c.uLong2 * long_);
    const double leastV =
        std::max(c.vLong1 * short_ + c.vShort2 * long_, c.vShort1 * long_ + c.vLong2 * short_);
    bool found = false;
    for (const bool longOnU : {true, false}) {
        for (const bool shortOnU : {true, false}) {
            const double needU = std::max({leastU, longOnU ? (c.uLong1 + c.uLong2) * long_ : 0,
                                           shortOnU ? (c.uShort1 + c.uShort2) * short_ : 0});
            const double needV = std::max({leastV, longOnU ? 0 : (c.vLong1 + c.vLong2) * short_,
                                           shortOnU ? 0 : (c.vShort1 + c.vShort2) * long_});
            if (needU > u_ + kSame || needV > v_ + kSame)
                continue;
            if (found && (needU - spacing_) * (needV - spacing_) >= (*u - spacing_) * (*v - spacing_))
                continue;
            *u = needU;
            *v = needV;
            found = true;
        }
    }
    return found;
}

} // namespace

Ring findRing(const RingRoom &room)
{
    // Trying columns on the axis that holds fewer products leaves the longer one to the cheap inner steps.
    const bool uAcross = room.across <= room.along;
    const bool isTall = room.pitchAlong >= room.pitchAcross;
    RingSearch search(uAcross ? room.across : room.along, uAcross ? room.along : room.across,
                      std::max(room.pitchAcross, room.pitchAlong),
                      std::min(room.pitchAcross, room.pitchAlong), room.spacing);
    Ring ring;
    if (!search.run())
        return ring;
    // The ring's block that is the search's long 1, short 1, long 2, short 2. A ring and its mirror image hold
    // the same, so the search's near corner may be any of them.
    static constexpr std::array<std::array<int, 4>, 4> kPlaces{
        {{0, 3, 2, 1}, {3, 0, 1, 2}, {1, 0, 3, 2}, {0, 1, 2, 3}}};
    const std::array<int, 4> &places = kPlaces[std::size_t((uAcross ? 2 : 0) + (isTall ? 0 : 1))];
    const Counts &c = search.best();
    const std::array<RingBlock, 4> found{
        {{c.uLong1, c.vLong1}, {c.uShort1, c.vShort1}, {c.uLong2, c.vLong2}, {c.uShort2, c.vShort2}}};
    for (std::size_t i = 0; i < found.size(); ++i) {
        RingBlock block = found[i];
        if (!uAcross)
            std::swap(block.columns, block.rows);
        ring.blocks[std::size_t(places[i])] = block;
    }
    ring.count = c.total();
    ring.across = uAcross ? search.outlineU() : search.outlineV();
    ring.along = uAcross ? search.outlineV() : search.outlineU();
    return ring;
}

} // namespace palx

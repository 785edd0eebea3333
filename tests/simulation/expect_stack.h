#pragma once

#include "line.h"

/// Every product lies at its put point, in the order of the recipe.
inline void expectWellStacked(Line &line, int side, int layers)
{
    const auto &pallet = line.pallet(side);
    ASSERT_TRUE(pallet.plan());
    EXPECT_EQ(layers, pallet.plan()->layers());
    int layer = 1;
    int piece = 0;
    for (const auto &box : pallet.boxes()) {
        if (++piece > pallet.plan()->pieces(layer)) {
            ++layer;
            piece = 1;
        }
        EXPECT_EQ(layer, box.body.layer);
        EXPECT_EQ(piece, box.body.piece);
        EXPECT_LT(box.errorMm, 0.1) << "layer " << layer << " piece " << piece;
        EXPECT_LT(box.errorDeg, 0.01) << "layer " << layer << " piece " << piece;
    }
    EXPECT_EQ(layers, layer);
    EXPECT_EQ(pallet.plan()->pieces(layers), piece);
}

/// How counters and flags of a side stand once its n-th pallet is full.
inline void expectFullCounters(Line &line, int side, int layers, int pallets)
{
    const std::string end = side == 0 ? "L" : "R";
    const auto number = [&](const char *name) { return line.number((name + end).c_str()); };
    EXPECT_EQ(layers + 1, number("currentLayer"));
    EXPECT_EQ(1, number("layerCount"));
    EXPECT_EQ(0, number("palletCount"));
    EXPECT_EQ(pallets, number("totalPallets"));
    EXPECT_EQ(1, number("flag"));
    EXPECT_EQ(0, line.number("grabbing"));
    EXPECT_GT(line.real(("cycleTime" + end).c_str()), 3) << "seconds of the last piece";
}

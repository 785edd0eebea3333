#pragma once

#include "orba/node.h"

#include <QVector>

#include <array>

namespace panel {

/// A block in the cell's frame: its middle, its turn about z, and its edges. Millimetres and degrees.
struct CellBlock
{
    double x = 0, y = 0, z = 0;
    double turn = 0;
    double length = 0, width = 0, height = 0;

    bool isThere() const { return length > 0 && width > 0; }
    double bottom() const { return z - height / 2; }
    double top() const { return z + height / 2; }
};
bool operator==(const CellBlock &a, const CellBlock &b);
inline bool operator!=(const CellBlock &a, const CellBlock &b)
{
    return !(a == b);
}

/// What stands at one side.
struct CellPallet
{
    CellBlock pallet;
    QVector<CellBlock> sheets, boxes;
    std::array<bool, 3> beacon{}; ///< red, yellow, green
};
bool operator==(const CellPallet &a, const CellPallet &b);

/// The cell as the controller tells it in "nexo.cell" and "nexo.robot", for a picture.
struct CellScene
{
    std::array<CellPallet, 2> pallets; ///< left, right
    CellBlock waiting;                 ///< product at the conveyor's stop
    double ahead = 0;                  ///< distance of the next product from the stop [mm]
    CellBlock carried;
    double column = 0;              ///< height of the lift column [mm]
    std::array<double, 6> joints{}; ///< [rad]
};
bool operator==(const CellScene &a, const CellScene &b);
inline bool operator!=(const CellScene &a, const CellScene &b)
{
    return !(a == b);
}

CellScene readCellScene(const orba::Node &cell, const orba::Node &robot);
/// Whether a signal is on, by its name ("DO3_0").
bool cellSignal(const orba::Node &cell, const QString &name);

} // namespace panel

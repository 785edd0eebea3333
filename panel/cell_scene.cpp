#include "panel/cell_scene.h"

#include <tuple>

namespace panel {

using orba::Node;

namespace {

/// [x, y, z, turn, length, width, height]; nothing when the list is empty.
CellBlock readBlock(const Node *node)
{
    if (!node || node->size() < 7)
        return {};
    return {node->number(0), node->number(1), node->number(2), node->number(3),
            node->number(4), node->number(5), node->number(6)};
}

QVector<CellBlock> readBlocks(const Node *list)
{
    QVector<CellBlock> blocks;
    for (int i = 0; list && i < list->size(); ++i)
        blocks.append(readBlock(list->at(i)));
    return blocks;
}

CellPallet readPallet(const Node &cell, int side)
{
    CellPallet pallet;
    const Node *node = cell.find(QStringLiteral("pallets.#%1").arg(side));
    if (node && node->getBool(u"in_place")) {
        pallet.pallet = readBlock(node->find(u"pallet"));
        pallet.sheets = readBlocks(node->find(u"sheets"));
        pallet.boxes = readBlocks(node->find(u"boxes"));
    }
    for (int i = 0; i < 3; ++i)
        pallet.beacon[static_cast<std::size_t>(i)] =
            cellSignal(cell, QStringLiteral("DO3_%1").arg(side * 4 + i));
    return pallet;
}

} // namespace

bool operator==(const CellBlock &a, const CellBlock &b)
{
    const auto all = [](const CellBlock &c) {
        return std::tie(c.x, c.y, c.z, c.turn, c.length, c.width, c.height);
    };
    return all(a) == all(b);
}

bool operator==(const CellPallet &a, const CellPallet &b)
{
    return a.pallet == b.pallet && a.sheets == b.sheets && a.boxes == b.boxes && a.beacon == b.beacon;
}

bool operator==(const CellScene &a, const CellScene &b)
{
    return a.waiting == b.waiting && a.ahead == b.ahead && a.carried == b.carried && a.column == b.column &&
           a.joints == b.joints && a.pallets == b.pallets;
}

bool cellSignal(const Node &cell, const QString &name)
{
    const Node *list = cell.find(u"signals");
    for (int i = 0; list && i < list->size(); ++i)
        if (list->at(i)->getString(u"name") == name)
            return list->at(i)->getBool(u"on");
    return false;
}

CellScene readCellScene(const Node &cell, const Node &robot)
{
    CellScene scene;
    for (int side = 0; side < 2; ++side)
        scene.pallets[static_cast<std::size_t>(side)] = readPallet(cell, side);
    scene.waiting = readBlock(cell.find(u"conveyor.box"));
    scene.ahead = cell.getDouble(u"conveyor.ahead");
    scene.carried = readBlock(cell.find(u"gripper.box"));
    scene.column = cell.getDouble(u"column.height");
    const Node *joints = robot.find(u"joints");
    for (int i = 0; joints && i < 6; ++i)
        scene.joints[static_cast<std::size_t>(i)] = joints->number(i);
    return scene;
}

} // namespace panel

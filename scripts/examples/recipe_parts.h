#pragma once

#include "orba/node.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

/// The parts that the example recipes are put together from. Lengths are millimetres unless a name says
/// metres.
namespace examples {

struct Box
{
    int length, width, height;
    double weightKg;
};

/// One pattern of rows across the pallet; rows run along the pallet's length, centred with equal gaps.
struct RowPattern
{
    QString name;
    QVector<bool> turnedRows; ///< per row whether its boxes are turned by 90 degrees
};

/// From which corner the rows are laid and how a box closes up to its neighbours; the direction names the way
/// the box moves in the pattern picture, and the offset is how far beside its place it starts.
struct Laying
{
    bool fromFarLength = false;
    bool fromFarWidth = false;
    QString direction = QStringLiteral("TopLeft");
    int offset = 40;
};

struct Recipe
{
    QString name, desc;
    Box product;
    int palletPreset; ///< index in the template's pallet presets
    QVector<RowPattern> patterns;
    QStringList layers;
    int gap = 5; ///< between boxes
    Laying laying;
    int palletPosition = 0; ///< 0 left, 1 right
    int sheetHeight = 0;    ///< 0: no separator sheets
};

/// A taught position, metres and radians; the tool points down.
struct Taught
{
    double x, y, z;
    double turn = 0;
    std::array<double, 6> joints = {};
};

struct Value
{
    const char *path;
    QVariant value;
};

/// Writes values at paths, made when missing.
void fill(orba::Node &node, const QVector<Value> &values);
/// Writes a point record at a path, made when missing.
void teach(orba::Node &node, const char *path, const Taught &point);
/// A vacuum gripper of that reach (metres) with its load, as a toolset record.
void addGripper(orba::Node &toolset, double reachM, double massKg);

/// A new stack from the plug-in's template with everything that both kinds of cell share; taught points are
/// missing.
orba::Node makeStack(const orba::Node &pluginTemplate, const Recipe &recipe);
/// Taught points of a cell where the recipe brings its own tool and its own pallet frame.
void teachOwnCell(orba::Node &stack, const Recipe &recipe);
/// Global tools and work objects of a cell that is calibrated with one point per pallet.
void teachGlobalCell(orba::Node &plugin);

} // namespace examples

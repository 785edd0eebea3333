#pragma once

#include "ix/calc.h"
#include "orba/node.h"

#include <QStringList>

/// Tools: where their point is, seen from the flange, and what they weigh.
namespace palx {

/// Who keeps a tool, because the records differ: a recipe's toolset ("end.trans" ...), or an entry of the shared tools
/// ("frame.pos.x" ...). Both hold metres, radians and kilograms.
enum class ToolKeeper { Recipe, Shared };

/// The numbers of a tool that operators see.
struct ToolNumber
{
    const char *path;
    double shown; ///< on screen per unit of the record: millimetres, degrees, kilograms
};
constexpr int kToolNumbers = 10; ///< X, Y, Z, A, B, C, the centre of gravity's x, y, z, the mass

/// In that order.
PALX_API const ToolNumber &toolNumber(ToolKeeper keeper, int i);

/// The tool's point seen from the flange; what the record lacks counts as 0.
PALX_API ix::calc::Pose toolPose(const orba::Node &tool, ToolKeeper keeper);
/// Whether its point is another than the flange's.
PALX_API bool isMeasured(const orba::Node &tool, ToolKeeper keeper);

/// A tool's x and y from two poses of the flange [m] in the base in which the tool's point touches the same tip, the hand being turned
/// about its own axis in between; `z` [m] is the tool's known reach, which counts when the hand was tilted as well. A tip that moved
/// sideways cannot be told from another tool: it makes one that is off by as much, for a turn of 60 degrees. `error` says why
/// the touches tell nothing.
struct PALX_API ToolMeasure
{
    double x = 0;
    double y = 0;
    double missM = 0; ///< how far apart the two touches are in the direction that no tool explains
    QString error;
};
PALX_API ToolMeasure measureTool(const ix::calc::Pose &first, const ix::calc::Pose &turned, double z);

} // namespace palx

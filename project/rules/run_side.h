#pragma once

#include "workstation/controller_sync.h"

#include <QStringList>

/// A side of the line while it produces: what the controller's variables say of it, and the changes of them that an
/// operator may ask for. Layers and pieces count from 1, as the robot programs count them; separator sheets are layers
/// without pieces.
namespace palx {

enum class LineSide { Left, Right };
constexpr LineSide kLineSides[] = {LineSide::Left, LineSide::Right};

/// "currentLayer" of the left side is "currentLayerL".
PALX_API QString sideVariable(const char *stem, LineSide side);

/// The value of a scalar of a project; null when it has none of that name.
PALX_API const orba::Node *valueOfVariable(const orba::Node &variables, const QString &name);

/// What one side is read from.
struct PALX_API RunSource
{
    const orba::Node &variables; ///< of the current project
    const orba::Node &stacks;
    const orba::Node &project; ///< record of the current project; null for none
    const orba::Node
        &program; ///< "nexo.cell.program" with "state", "why", "fault"; null when the controller tells none
};

struct PALX_API RunSide
{
    bool isPart = false; ///< the project's layout has this side, and its variables are there
    QStringList recipes; ///< of this side, in the order by which programs count them
    int recipe = 0;      ///< place in that list; may be outside
    bool isEnabled = false;
    bool isFull = false; ///< a new pallet has to be confirmed
    bool isStacked =
        false;        ///< the programs are busy with this side; also when disabled, to the end of the pallet
    int piled = 0;    ///< products on the pallet
    int expected = 0; ///< products of a full one
    int layer = 1, layers = 0;
    int piece = 1, pieces = 0; ///< of the present layer
    int pallets = 0;           ///< finished since the last start
    double cycleSeconds = 0;   ///< of the last product; 0: none yet

    QString recipeName() const { return recipes.value(recipe); }
    double boxesPerHour() const { return cycleSeconds > 0 ? 3600 / cycleSeconds : 0; }
};
PALX_API bool operator==(const RunSide &a, const RunSide &b);
inline bool operator!=(const RunSide &a, const RunSide &b)
{
    return !(a == b);
}

PALX_API RunSide readRunSide(const RunSource &source, LineSide side);
/// The panel's own nodes. GUI thread.
PALX_API RunSource currentRunSource();

/// The recipe at a place of a side's list; null outside.
PALX_API const orba::Node *recipeOfSide(const orba::Node &stacks, LineSide side, int index);
/// Layers of generated points, separator sheets among them; 0 while no points were generated.
PALX_API int pointLayers(const orba::Node &stack);
/// Products of a layer; 0 for a separator sheet and outside.
PALX_API int layerPieces(const orba::Node &stack, int layer);
/// How many products lie there before a piece is laid; with `withSheets` the separator sheets count, too.
PALX_API int piecesBefore(const orba::Node &stack, int layer, int piece, bool withSheets);

/// What an operator has to know of a side, the most urgent first.
enum class RunState {
    NoController,
    Absent,      ///< not in the project's layout
    Fault,       ///< the programs ended with a fault
    Unconfirmed, ///< layer and piece are to be confirmed before anything starts
    Full,        ///< wants a new pallet
    Paused,      ///< the programs are paused
    Standing,    ///< enabled, but no program runs
    MovedByHand, ///< the operator drives the robot
    Stacking,
    Waiting, ///< enabled, its turn comes
    Disabled,
};
/// What else the state of a side depends on.
struct PALX_API RunCircumstances
{
    bool isConnected = false;
    bool isRobotMoving = false;
    bool mustConfirm = false; ///< `needsConfirmation` of the side
};
/// `program` as in RunSource.
PALX_API RunState runState(const RunSide &side, const orba::Node &program, const RunCircumstances &now);

/// Why another recipe cannot be chosen now; empty when it can.
PALX_API QString recipeChangeProblem(const RunSide &side);
/// Why the side cannot be enabled: it has no recipe, or one without products, or one whose points are missing or older than
/// what it says of the products, so that the robot would set down others than it carries. Empty when it can.
PALX_API QString enableProblem(const RunSide &side, const orba::Node *stack);

PALX_API VariableChanges enableChanges(LineSide side, bool on);
/// Another recipe begins at its first piece, with the height of its product.
PALX_API VariableChanges recipeChanges(LineSide side, const orba::Node &stack, int index);
/// How far the robot lifts on its way home, where that is not the height of the product of the side's recipe: the recipe was
/// edited, or another one took its place. Nothing where the project has no such variable.
PALX_API VariableChanges heightChanges(const RunSource &source, LineSide side);
/// Pallets, totals and cycle time become 0. Where the side goes on stays, because that is where products lie.
PALX_API VariableChanges resetChanges(LineSide side);

} // namespace palx

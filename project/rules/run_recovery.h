#pragma once

#include "orba/node.h"

#include <QString>
#include <QVector>

#include <array>
#include <optional>

/// How work goes on after something broke it off: a power cut, a stop in the middle of a pallet, a lost product. The
/// counters of the robot programs survive, but may be one piece behind what lies on the pallet, and something may still
/// hang at the gripper. So before a side is enabled again the operator clears the gripper and confirms with which piece the
/// side goes on. Layers and pieces count from 1; side 0 is left, 1 right.
namespace palx {

/// Where a side goes on. Behind the last piece: layers + 1, 1.
struct PalletPiece
{
    int layer = 1;
    int piece = 1;
    bool operator==(const PalletPiece &other) const { return layer == other.layer && piece == other.piece; }
    bool operator!=(const PalletPiece &other) const { return !(*this == other); }
};

/// A side of the cell.
struct SideRun
{
    QString recipe;       ///< that the programs use on this side; empty when there is none of that number
    QVector<int> pieces;  ///< of each layer, 0 for a separator sheet; empty while the recipe has no points
    PalletPiece counted;  ///< by the counters of the programs
    bool isKnown = false; ///< the controller tells what lies on the pallet, and it is of that recipe
    PalletPiece lying;    ///< by what lies there
    PalletPiece proposed; ///< to be confirmed: by what lies there, else by the counters
    bool isFull = false;  ///< nothing is missing on the pallet; it has to be replaced
    bool isEnabled = false;
    int products = 0;           ///< that lie there
    QString followed;           ///< recipe that the programs chose last; empty before the first
    bool isOtherSize = false;   ///< the products that lie there are not of the size that the recipe says now
    bool isInterrupted = false; ///< the program broke off while it stacked this side
    QString foreign;            ///< recipe of the products that lie there, when it is another one
};

struct RunRecovery
{
    bool isCellKnown = false; ///< the controller tells how the programs and the cell stand
    bool isRunning = false;
    bool isPaused = false;
    bool holdsProduct = false; ///< something hangs at the gripper
    bool isSuctionOn = false;
    int columnUse = 0; ///< "use_rise": 1 the lift column is moved, 2 it was stopped by the stop button
    bool hasColumnPower = true;
    int served = -1; ///< side that the programs stack, or stacked when they broke off; -1 neither
    std::optional<bool>
        isColumnUp; ///< the lift column stands nearer to its upper position; unknown without one
    std::array<SideRun, 2> sides;
};

/// From what the panel mirrors: `cell` is "nexo.cell" (null when the controller has none), `variables` the list
/// "quill.project.var._list"; `stacks` is the list of recipes. None of them needs to belong to a module.
PALX_API RunRecovery readRunRecovery(const orba::Node &cell, const orba::Node &variables,
                                     const orba::Node &stacks);
/// The same of the panel's own nodes. GUI thread.
PALX_API RunRecovery currentRunRecovery();

/// Whether the operator has to confirm the side's piece before anything starts: its program broke off, or its counters
/// are not what lies there. Never while a program runs or is paused.
PALX_API bool needsConfirmation(const RunRecovery &run, int side);

/// Why that piece cannot be confirmed, for the operator: the gripper is not clear, the full pallet is still there, there
/// is no such piece. Empty when it can.
PALX_API QString whyNotConfirm(const RunRecovery &run, int side, PalletPiece piece);
/// The variables that a confirmation sets, as the payload of "monitor.pers.modify": the side's counters, nobody stacks,
/// nothing is held, and where the lift column really stands.
PALX_API orba::Node confirmedVariables(const RunRecovery &run, int side, PalletPiece piece);

/// Why the side may not be enabled, for the operator; empty when it may. While a program runs or is paused it may.
PALX_API QString whyNotEnable(const RunRecovery &run, int side);
/// Programs know a recipe by its name while they stack it, and by its place among those of its side for the next
/// pallet. Why a recipe may not get another name, for the operator: a side that is enabled or being stacked uses
/// it, or its products lie on a pallet. Empty when it may.
PALX_API QString whyNotRename(const RunRecovery &run, const QString &name);
/// Why a recipe may not leave its place, to be deleted or to go to the other side: the same, or a side would take
/// another recipe from then on, because its own stands behind it.
PALX_API QString whyNotMove(const RunRecovery &run, const orba::Node &stacks, const QString &name);

/// How a paused program goes on.
enum class GoOn {
    AsItIs,
    ByStartButton, ///< of the cell: the lift column was stopped on its way, and that button gives it power again
    ByStopAndStart, ///< the same after the column lost its power: the stop button first
    NotAtAll,       ///< its product or its pallet is gone: stop it and confirm the piece
};
PALX_API GoOn howToGoOn(const RunRecovery &run);
/// What the operator is to do instead of just going on; empty when that is all.
PALX_API QString whyNotGoOn(const RunRecovery &run);

/// Whether the program that runs counts on what does not lie on its pallet: a product got lost that nobody noticed. It is
/// to be stopped before it sets down the next one.
PALX_API bool isMiscounted(const RunRecovery &run);

/// Has the gripper cleared. Why not; empty when done. GUI thread.
PALX_API QString clearGripper();

} // namespace palx

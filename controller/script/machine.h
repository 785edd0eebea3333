#pragma once

#include "controller/script/value.h"

#include <optional>

namespace controller::script {

/// Why something was not done, for the integrator; empty when it was.
using Refusal = std::string;

/// A statement of a program.
struct Location
{
    std::string task;      ///< "task0"
    std::string file;      ///< name of the program file, with its ending
    int line = 0;          ///< from 1
    std::string procedure; ///< that holds the line
};

/// An error while a program ran.
struct Fault
{
    Location where;
    std::string what;
};

// ---------------------------------------------------------------- what programs can name

/// Digital signals stand on cards of 16 channels: inputs "DI2_0" to "DI3_15", outputs "DO2_0" to "DO3_15".
constexpr int kFirstCard = 2;
constexpr int kCards = 2;
constexpr int kChannels = 16;
constexpr int kSignals = kCards * kChannels; ///< of each direction
/// Number of the signal "DI<card>_<channel>" or "DO<card>_<channel>", 0 to kSignals - 1.
constexpr int signalIndex(int card, int channel)
{
    return (card - kFirstCard) * kChannels + channel;
}
/// "DI2_0" of an input's index, "DO2_0" of an output's.
std::string signalName(bool isOutput, int index);

/// States of the controller that programs read by the names "estop0", "collision", "relax", "move".
enum class State {
    EStop,     ///< the emergency stop is pressed
    Collision, ///< the robot was stopped by a collision
    Relax,     ///< programs run: neither paused nor stopped
    Move,      ///< the robot moves
};

/// Points of the pallet function, read by the names in the comments.
enum class PalletPoint {
    Home,        ///< PalletHomePoint: where the robot waits between pallets
    GetApproach, ///< PalletGetApproachPoint: above the place where products are picked
    GetWobj,     ///< PalletGetWobjPoint: where they are picked
    Enter,       ///< PalletEnterPoint: the way in to the pallet
    Ready,       ///< PalletReadyPoint: above the put point, shifted against the products beside
    Approach,    ///< PalletApproachPoint: straight above the put point
    Wobj,        ///< PalletWobjPoint: the put point
    Exit,        ///< PalletExitPoint: the way out
};

/// A variable of the project, as "quill.project.var._list" declares it.
struct VariableInfo
{
    std::string name;
    Type type = Type::Bool;
};

// ---------------------------------------------------------------- the world

/// A linear move of the point of the tool PalletTool.
struct Move
{
    Target target;
    double speed = 0; ///< [mm/s], above 0
    double zone =
        0; ///< [mm]: within this of the target the move counts as reached and the next one may begin
    bool fine = false; ///< reached only when the robot stands at the target; `zone` is 0
    Location where;    ///< the statement that asked for it
};

/// How far the moves are that were handed over.
enum class MoveState {
    Moving,  ///< the last one is not reached
    Reached, ///< every one is; also when there was none
    Failed,  ///< one of them ended elsewhere, see Machine::moveFault(); the rest is dropped
};

/// Whether a move was taken.
struct MoveAnswer
{
    enum class Kind { Taken, Full, Refused } kind = Kind::Taken;
    Refusal why; ///< of Refused
};

/// What programs see of the world and do to it: the one narrow door between a task and everything else. A cell stands
/// behind it, or a recorder in tests.
///
/// Nothing here waits. A program that must wait gives its turn back and asks again in a later turn. Within one turn of
/// one task the world does not change by itself: what is read twice reads the same. All calls come from one thread; which
/// task makes them does not matter unless said so. No function may throw.
class Machine
{
public:
    virtual ~Machine() = default;

    /// Simulated time [s]. Never runs backwards; stands still during a turn.
    virtual double now() const = 0;

    // -- moves; only motion tasks make them

    /// Hands over a move, which follows those handed over before. Programs hand over moves ahead of the robot, so that a
    /// zone can be rounded without stopping: take at least one while another runs. Full: asked again in a later turn.
    /// Refused ends the task with the reason.
    virtual MoveAnswer move(const Move &move) = 0;
    /// Statements that are seen from outside (signals, variables, waits, ...) come only when every move is reached.
    virtual MoveState moveState() const = 0;
    /// Of Failed: the move and why. The task ends with it.
    virtual Fault moveFault() const = 0;
    /// Where the point of PalletTool is, in the robot's base (Wobj0).
    virtual Target currentTarget() const = 0;

    // -- signals and states; index: see signalIndex

    virtual bool input(int index) const = 0;
    virtual bool output(int index) const = 0;
    /// Ends a pulse that runs on it.
    virtual void setOutput(int index, bool on) = 0;
    /// Switches an output on for so long [s, above 0] and then off; the program goes on meanwhile.
    virtual void pulseOutput(int index, double seconds) = 0;
    virtual bool state(State state) const = 0;

    // -- registers of drives, by name; whole numbers

    /// Refuses an unknown name.
    virtual Refusal readRegister(const std::string &name, std::int64_t *value) const = 0;
    /// Refuses an unknown name and a value that does not fit.
    virtual Refusal writeRegister(const std::string &name, std::int64_t value) = 0;

    // -- variables of the project: `id` is the index in the list with which the program was checked

    /// Has the declared type. The reference holds until the next call of anything here.
    virtual const Value &variable(int id) const = 0;
    /// `value` has the declared type.
    virtual void setVariable(int id, const Value &value) = 0;

    // -- pallet functions; layers and pieces count from 1, recipes from 0

    /// Name of a recipe: of that index on a side (0 left, 1 right), or without a side of that index among all.
    virtual Refusal palletName(std::int64_t index, std::optional<std::int64_t> side,
                               std::string *name) const = 0;
    /// Makes the points of a piece the current ones. Refuses a recipe, layer or piece that is not there. A separator sheet
    /// counts as piece 1 of its layer here: programs look at the first piece of a layer before they count its pieces.
    virtual Refusal palletUpdate(const std::string &name, std::int64_t layer, std::int64_t piece) = 0;
    /// Layers that have points.
    virtual Refusal palletLayerCount(const std::string &name, std::int64_t *count) const = 0;
    /// Pieces of a layer; 0 for a separator sheet.
    virtual Refusal palletPieceCount(const std::string &name, std::int64_t layer,
                                     std::int64_t *count) const = 0;
    /// A current point, in the robot's base. Refuses before the first palletUpdate.
    virtual Refusal palletPoint(PalletPoint point, Target *target) const = 0;

    // -- the program as a whole

    /// PAUSE: from now on motion tasks get no turns until the operator starts again; other tasks go on. The robot stops
    /// on its way.
    virtual void pause(const Location &where) = 0;
};

} // namespace controller::script

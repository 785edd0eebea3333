#pragma once

#include "controller/script/machine.h"

#include <string_view>

/// The names that every program knows: values that stand for something in the cell, and built-in functions.
namespace controller::script {

/// What an expression is: a value of one of the types, in their order, or something that only some functions take.
enum class Kind {
    Bool,
    Int,
    Double,
    Text,
    Clock,
    Target,
    Speed,   ///< "v4000", mm/s
    Zone,    ///< "z200", mm, or "fine"
    Tool,    ///< "PalletTool"
    Wobj,    ///< "Wobj0", the robot's base
    Nothing, ///< a call that gives no value
    Wrong,   ///< a problem was reported
};

inline Kind kindOf(Type type)
{
    return static_cast<Kind>(type);
}
/// "a bool", "a speed like v1000", for messages.
const char *kindText(Kind kind);
inline bool isNumber(Kind kind)
{
    return kind == Kind::Bool || kind == Kind::Int || kind == Kind::Double;
}
/// Whether a value is taken where `wanted` is: of the same kind, or both numbers. A bool counts as 0 or 1; a number as a
/// bool is whether it is not 0; a double as an int must be whole, which is seen when the program runs.
bool isTaken(Kind given, Kind wanted);

/// What a name or call stands for.
enum class Meaning {
    None,
    Local,    ///< index: slot
    Variable, ///< of the project; index: id
    Input,    ///< index: see signalIndex
    Output,   ///< the same
    State,    ///< index: script::State
    Point,    ///< index: PalletPoint
    Speed,    ///< index: mm/s
    Zone,     ///< index: mm
    Fine,
    Tool,
    Wobj,
    Builtin,   ///< index: Function
    Procedure, ///< index in the task
};

struct Symbol
{
    Meaning meaning = Meaning::None;
    int index = 0;
    Kind kind = Kind::Wrong; ///< of the value
};

/// Signals, states, points, speeds, zones, tool and work object. Meaning::None when the name is none of them.
Symbol fixedName(std::string_view name);

enum class Function {
    MoveL,
    Offs,
    CurrentTarget,
    SetDO,
    PulseDO,
    Wait,
    WaitUntil,
    ClockStart,
    ClockStop,
    ClockReset,
    ClockRead,
    ReadRegister,
    WriteRegister,
    Abs,
    GetPalletName,
    PalletUpdate,
    PalletLayerCount,
    PalletWobjCount,
};

/// What a built-in function takes and gives.
struct Signature
{
    const char *name;
    std::size_t least;      ///< arguments it needs
    std::size_t most;       ///< arguments it takes
    Kind arguments[4];      ///< clocks are variables, and see takesOutput
    Kind result;            ///< Nothing for a statement
    bool runsAhead = false; ///< does not wait until the robot has reached its moves
};

const Signature &signatureOf(Function function);
/// False when there is no built-in of that name.
bool findFunction(std::string_view name, Function *function);
/// Whether its first argument is the name of an output.
inline bool takesOutput(Function function)
{
    return function == Function::SetDO || function == Function::PulseDO;
}

/// Number of a target's member, "x" 0 to "c" 5; -1 when there is no such member.
int memberIndex(std::string_view name);

} // namespace controller::script

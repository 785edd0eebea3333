#pragma once

#include "controller/script/program.h"

namespace controller::script {

/// What a step does. Operands are taken off the stack, the last one first; a result goes onto it.
enum class Op : std::uint8_t {
    Push, ///< constant a
    Pop,
    LoadLocal,           ///< slot a
    StoreLocal,          ///< slot a
    LoadVariable,        ///< variable a
    StoreVariable,       ///< variable a
    Member,              ///< a of a target
    StoreLocalMember,    ///< member b of the target in slot a
    StoreVariableMember, ///< member b of the target in variable a
    Increment,           ///< slot a
    Input,               ///< a
    Output,              ///< a
    State,               ///< a
    Point,               ///< a
    ToBool,
    ToInt,
    ToDouble,
    Add,
    Subtract,
    Multiply,
    Divide,
    Negate,
    Not,
    Abs,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Jump,        ///< to a
    JumpIfFalse, ///< to a
    AndJump,     ///< to a with the operand when it is false, else on without it
    OrJump,      ///< to a with the operand when it is true, else on without it
    LoopStart,   ///< remembers in slot a what has changed so far
    LoopBack, ///< to a; ends the turn when nothing has changed since LoopStart, which remembered it in slot b
    Call,     ///< procedure a
    Return,
    ReturnValue,
    NoValue, ///< a procedure that gives a value is at its end
    Settle,  ///< waits until every move is reached
    Pause,
    MoveL, ///< with setting a
    Offs,
    CurrentTarget,
    SetOutput,   ///< a
    PulseOutput, ///< a
    Wait,
    WaitCheck,  ///< on when the operand is true; else ends the turn and goes to a
    ClockStart, ///< clock in slot a, or in variable a when b is 1; the same for the others
    ClockStop,
    ClockReset,
    ClockRead,
    ReadRegister,
    WriteRegister,
    PalletName,       ///< of an index
    PalletNameOfSide, ///< of an index and a side
    PalletUpdate,
    PalletLayerCount,
    PalletPieceCount,
};

struct Step
{
    Op op = Op::Pop;
    std::int32_t a = 0;
    std::int32_t b = 0;
};

struct MoveSetting
{
    double speed = 0; ///< [mm/s]
    double zone = 0;  ///< [mm]
    bool fine = false;
};

struct CodeOfProcedure
{
    std::string name;
    int file = 0;
    std::size_t entry = 0;
    std::size_t parameters = 0;
    std::vector<Value> locals; ///< first values by slot; parameters first
};

/// A checked task, ready to run.
class Program
{
public:
    TaskInfo task;
    std::vector<std::string> files;
    std::vector<CodeOfProcedure> procedures;
    std::size_t main = 0; ///< where to begin
    std::vector<Step> steps;
    std::vector<int> lines; ///< of the steps
    std::vector<Value> constants;
    std::vector<MoveSetting> moves;
};

} // namespace controller::script

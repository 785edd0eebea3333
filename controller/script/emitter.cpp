#include "controller/script/emitter.h"

#include <algorithm>

namespace controller::script {

namespace {

Op operatorOp(Operator op)
{
    constexpr Op ops[] = {Op::OrJump,  Op::AndJump,      Op::Equal, Op::NotEqual, Op::Less,     Op::LessEqual,
                          Op::Greater, Op::GreaterEqual, Op::Add,   Op::Subtract, Op::Multiply, Op::Divide};
    return ops[static_cast<std::size_t>(op)];
}

/// In the order of Function; MoveL and WaitUntil have their own ways.
constexpr Op kFunctionOps[] = {
    Op::MoveL,
    Op::Offs,
    Op::CurrentTarget,
    Op::SetOutput,
    Op::PulseOutput,
    Op::Wait,
    Op::WaitCheck,
    Op::ClockStart,
    Op::ClockStop,
    Op::ClockReset,
    Op::ClockRead,
    Op::ReadRegister,
    Op::WriteRegister,
    Op::Abs,
    Op::PalletName,
    Op::PalletUpdate,
    Op::PalletLayerCount,
    Op::PalletPieceCount,
};

/// Whether evaluating something reads what others may change while the robot moves.
bool touchesWorld(const Expression &expression, bool withVariables)
{
    const Symbol &symbol = expression.symbol;
    const bool isSignal = symbol.meaning == Meaning::Input || symbol.meaning == Meaning::Output ||
                          symbol.meaning == Meaning::State;
    const bool asksMachine =
        symbol.meaning == Meaning::Builtin && !signatureOf(static_cast<Function>(symbol.index)).runsAhead;
    if (isSignal || asksMachine || (withVariables && symbol.meaning == Meaning::Variable))
        return true;
    return std::any_of(expression.parts.begin(), expression.parts.end(),
                       [withVariables](const Expression &part) { return touchesWorld(part, withVariables); });
}

bool isMove(const Expression &call)
{
    return call.symbol.meaning == Meaning::Builtin && call.symbol.index == static_cast<int>(Function::MoveL);
}

class Emitter
{
public:
    explicit Emitter(const Unit &unit) : unit_(unit), program_(std::make_shared<Program>()) {}

    std::shared_ptr<const Program> run()
    {
        program_->task = unit_.task;
        for (const Problems &file : unit_.problems)
            program_->files.push_back(file.file());
        for (const Procedure &procedure : unit_.procedures)
            emit(procedure);
        program_->main = static_cast<std::size_t>(unit_.entry);
        return program_;
    }

private:
    // -- steps

    std::size_t step(Op op, std::size_t a = 0, std::size_t b = 0)
    {
        program_->steps.push_back({op, static_cast<std::int32_t>(a), static_cast<std::int32_t>(b)});
        program_->lines.push_back(line_);
        return program_->steps.size() - 1;
    }

    std::size_t here() const { return program_->steps.size(); }
    void jumpHere(std::size_t from) { program_->steps[from].a = static_cast<std::int32_t>(here()); }

    void push(Value value)
    {
        step(Op::Push, program_->constants.size());
        program_->constants.push_back(std::move(value));
    }

    /// A slot that programs do not see, for an int.
    std::size_t hiddenSlot()
    {
        locals_->push_back(std::int64_t{0});
        return locals_->size() - 1;
    }

    // -- procedures, blocks

    void emit(const Procedure &procedure)
    {
        CodeOfProcedure code{procedure.name, procedure.file, here(), procedure.parameters.size(), {}};
        for (const Local &local : procedure.locals)
            code.locals.push_back(firstValue(local.type));
        locals_ = &code.locals;
        procedure_ = &procedure;
        emit(procedure.body);
        line_ = procedure.end.line;
        step(procedure.result == Kind::Nothing ? Op::Return : Op::NoValue);
        program_->procedures.push_back(std::move(code));
    }

    void emit(const Block &block)
    {
        for (const Statement &statement : block) {
            line_ = statement.place.line;
            emit(statement);
        }
    }

    void emit(const Statement &statement)
    {
        switch (statement.form) {
        case Statement::Form::Var:
            return variable(statement);
        case Statement::Form::Assign:
            return assign(statement.target, statement.value);
        case Statement::Form::If:
            return branches(statement);
        case Statement::Form::While:
            return whileLoop(statement.branches.front());
        case Statement::Form::For:
            return forLoop(statement);
        case Statement::Form::Return:
            return returns(statement);
        case Statement::Form::Pause:
            step(Op::Settle);
            step(Op::Pause);
            return;
        case Statement::Form::Call:
            return callStatement(statement.value);
        }
    }

    void settleFor(const Expression &expression, bool withVariables = true)
    {
        if (touchesWorld(expression, withVariables))
            step(Op::Settle);
    }

    // -- statements

    /// Without a value the variable starts anew each time as well.
    void variable(const Statement &statement)
    {
        if (statement.hasValue) {
            settleFor(statement.value);
            emitAs(statement.value, kindOf(statement.type));
        } else {
            push(firstValue(statement.type));
        }
        step(Op::StoreLocal, static_cast<std::size_t>(statement.slot));
    }

    void assign(const Expression &target, const Expression &value)
    {
        const bool isMember = target.form == Expression::Form::Member;
        const Symbol &variable = isMember ? target.parts[0].symbol : target.symbol;
        const bool isLocal = variable.meaning == Meaning::Local;
        if (!isLocal || touchesWorld(value, true))
            step(Op::Settle);
        emitAs(value, target.symbol.kind);
        const Op whole = isLocal ? Op::StoreLocal : Op::StoreVariable;
        const Op member = isLocal ? Op::StoreLocalMember : Op::StoreVariableMember;
        step(isMember ? member : whole, static_cast<std::size_t>(variable.index),
             static_cast<std::size_t>(isMember ? target.symbol.index : 0));
    }

    void branches(const Statement &statement)
    {
        std::vector<std::size_t> ends;
        for (const Branch &branch : statement.branches) {
            line_ = branch.place.line;
            settleFor(branch.condition);
            emitAs(branch.condition, Kind::Bool);
            const std::size_t next = step(Op::JumpIfFalse);
            emit(branch.block);
            ends.push_back(step(Op::Jump));
            jumpHere(next);
        }
        emit(statement.otherwise);
        for (const std::size_t end : ends)
            jumpHere(end);
    }

    void whileLoop(const Branch &branch)
    {
        const int line = line_;
        const std::size_t slot = hiddenSlot();
        const std::size_t start = step(Op::LoopStart, slot);
        settleFor(branch.condition);
        emitAs(branch.condition, Kind::Bool);
        const std::size_t out = step(Op::JumpIfFalse);
        emit(branch.block);
        line_ = line;
        step(Op::LoopBack, start, slot);
        jumpHere(out);
    }

    void forLoop(const Statement &statement)
    {
        const int line = line_;
        const std::size_t slot = static_cast<std::size_t>(statement.slot);
        const std::size_t last = hiddenSlot();
        settleFor(statement.value);
        emitAs(statement.value, Kind::Int);
        settleFor(statement.last);
        emitAs(statement.last, Kind::Int);
        step(Op::StoreLocal, last);
        step(Op::StoreLocal, slot);
        const std::size_t none = compareLocals(Op::LessEqual, slot, last);
        const std::size_t start = here();
        emit(statement.branches.front().block);
        line_ = line;
        const std::size_t out =
            compareLocals(Op::Less, slot, last); // so that the largest int can be counted to
        step(Op::Increment, slot);
        step(Op::Jump, start);
        jumpHere(none);
        jumpHere(out);
    }

    /// Jumps when the comparison of two slots does not hold.
    std::size_t compareLocals(Op op, std::size_t a, std::size_t b)
    {
        step(Op::LoadLocal, a);
        step(Op::LoadLocal, b);
        step(op);
        return step(Op::JumpIfFalse);
    }

    void returns(const Statement &statement)
    {
        if (statement.hasValue) {
            settleFor(statement.value);
            emitAs(statement.value, procedure_->result);
        }
        step(statement.hasValue ? Op::ReturnValue : Op::Return);
    }

    void callStatement(const Expression &call)
    {
        settleFor(call, !isMove(call));
        emit(call);
        if (call.symbol.kind != Kind::Nothing)
            step(Op::Pop);
    }

    // -- expressions

    void emitAs(const Expression &expression, Kind wanted)
    {
        emit(expression);
        if (expression.symbol.kind == wanted)
            return;
        if (wanted == Kind::Bool)
            step(Op::ToBool);
        else
            step(wanted == Kind::Int ? Op::ToInt : Op::ToDouble);
    }

    void emit(const Expression &expression)
    {
        switch (expression.form) {
        case Expression::Form::Literal:
            return push(expression.value);
        case Expression::Form::Name:
            return name(expression.symbol);
        case Expression::Form::Call:
            return expression.symbol.meaning == Meaning::Procedure ? callProcedure(expression)
                                                                   : callFunction(expression);
        case Expression::Form::Member:
            emit(expression.parts[0]);
            step(Op::Member, static_cast<std::size_t>(expression.symbol.index));
            return;
        case Expression::Form::Not:
            emitAs(expression.parts[0], Kind::Bool);
            step(Op::Not);
            return;
        case Expression::Form::Minus:
            emitAs(expression.parts[0], expression.symbol.kind);
            step(Op::Negate);
            return;
        case Expression::Form::Binary:
            return binary(expression);
        }
    }

    /// Speeds, zones, tool and work object are part of the steps that take them.
    void name(const Symbol &symbol)
    {
        const std::size_t index = static_cast<std::size_t>(symbol.index);
        if (symbol.meaning == Meaning::Local)
            step(Op::LoadLocal, index);
        else if (symbol.meaning == Meaning::Variable)
            step(Op::LoadVariable, index);
        else if (symbol.meaning == Meaning::Input)
            step(Op::Input, index);
        else if (symbol.meaning == Meaning::Output)
            step(Op::Output, index);
        else if (symbol.meaning == Meaning::State)
            step(Op::State, index);
        else if (symbol.meaning == Meaning::Point)
            step(Op::Point, index);
    }

    void binary(const Expression &expression)
    {
        const Expression &left = expression.parts[0];
        const Expression &right = expression.parts[1];
        const bool isLogic = expression.op <= Operator::And;
        Kind kind = isLogic ? Kind::Bool : expression.symbol.kind;
        if (!isLogic && expression.op <= Operator::GreaterEqual) {
            const bool isDouble = left.symbol.kind == Kind::Double || right.symbol.kind == Kind::Double;
            kind = left.symbol.kind == Kind::Text ? Kind::Text : isDouble ? Kind::Double : Kind::Int;
        }
        emitAs(left, kind);
        const std::size_t skip = isLogic ? step(operatorOp(expression.op)) : 0;
        emitAs(right, kind);
        if (isLogic)
            jumpHere(skip);
        else
            step(operatorOp(expression.op));
    }

    void callProcedure(const Expression &call)
    {
        const std::size_t index = static_cast<std::size_t>(call.symbol.index);
        for (std::size_t i = 0; i < call.parts.size(); ++i)
            emitAs(call.parts[i], kindOf(unit_.procedures[index].parameters[i].type));
        step(Op::Call, index);
    }

    void callFunction(const Expression &call)
    {
        const Function function = static_cast<Function>(call.symbol.index);
        const std::vector<Expression> &parts = call.parts;
        const std::size_t first = static_cast<std::size_t>(parts[0].symbol.index);
        const bool isClock = signatureOf(function).arguments[0] == Kind::Clock;
        const std::size_t start = here();
        for (std::size_t i = takesOutput(function) ? 1 : 0; i < parts.size() && !isClock; ++i)
            emitAs(parts[i],
                   function == Function::Abs ? call.symbol.kind : signatureOf(function).arguments[i]);
        Op op = kFunctionOps[call.symbol.index];
        if (isClock)
            step(op, first, parts[0].symbol.meaning == Meaning::Variable ? 1 : 0);
        else if (function == Function::MoveL)
            step(op, moveSetting(parts[1].symbol, parts[2].symbol));
        else if (function == Function::WaitUntil)
            step(op, start);
        else if (function == Function::GetPalletName)
            step(parts.size() > 1 ? Op::PalletNameOfSide : op);
        else
            step(op, takesOutput(function) ? first : 0);
    }

    std::size_t moveSetting(const Symbol &speed, const Symbol &zone)
    {
        program_->moves.push_back({static_cast<double>(speed.index), static_cast<double>(zone.index),
                                   zone.meaning == Meaning::Fine});
        return program_->moves.size() - 1;
    }

    const Unit &unit_;
    std::shared_ptr<Program> program_;
    const Procedure *procedure_ = nullptr;
    std::vector<Value> *locals_ = nullptr;
    int line_ = 0;
};

} // namespace

std::shared_ptr<const Program> emit(const Unit &unit)
{
    return Emitter(unit).run();
}

} // namespace controller::script

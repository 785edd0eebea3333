#include "controller/script/arithmetic.h"
#include "controller/script/executor_inside.h"

namespace controller::script {

// ---------------------------------------------------------------- values

bool Executor::Inside::pushConstant(const Step &step)
{
    operands.push_back(program->constants[static_cast<std::size_t>(step.a)]);
    return true;
}

bool Executor::Inside::drop(const Step &)
{
    operands.pop_back();
    return true;
}

bool Executor::Inside::loadLocal(const Step &step)
{
    operands.push_back(local(step.a));
    return true;
}

void Executor::Inside::storeLocal(std::int32_t slot, const Value &value)
{
    Value &place = local(slot);
    calls.back().changes += place == value ? 0 : 1;
    place = value;
}

bool Executor::Inside::storeLocal(const Step &step)
{
    storeLocal(step.a, pop());
    return true;
}

bool Executor::Inside::loadVariable(const Step &step)
{
    operands.push_back(machine->variable(step.a));
    return true;
}

void Executor::Inside::storeVariable(std::int32_t id, const Value &value)
{
    if (machine->variable(id) == value)
        return;
    machine->setVariable(id, value);
    ++changes;
}

bool Executor::Inside::storeVariable(const Step &step)
{
    storeVariable(step.a, pop());
    return true;
}

bool Executor::Inside::loadMember(const Step &step)
{
    const double value = member(std::get<Target>(top()), step.a);
    top() = value;
    return true;
}

bool Executor::Inside::storeLocalMember(const Step &step)
{
    Target target = std::get<Target>(local(step.a));
    member(target, step.b) = popAs<double>();
    storeLocal(step.a, target);
    return true;
}

bool Executor::Inside::storeVariableMember(const Step &step)
{
    Target target = std::get<Target>(machine->variable(step.a));
    member(target, step.b) = popAs<double>();
    storeVariable(step.a, target);
    return true;
}

/// Of the counter of a FOR, whose end is checked before.
bool Executor::Inside::increment(const Step &step)
{
    ++std::get<std::int64_t>(local(step.a));
    ++calls.back().changes;
    return true;
}

bool Executor::Inside::convert(const Step &step)
{
    return failUnless(script::convert(step.op, &top()));
}

bool Executor::Inside::calculate(const Step &step)
{
    const Value right = pop();
    return failUnless(script::calculate(step.op, &top(), right));
}

bool Executor::Inside::changeSign(const Step &step)
{
    return failUnless(script::changeSign(step.op, &top()));
}

bool Executor::Inside::invert(const Step &)
{
    top() = !std::get<bool>(top());
    return true;
}

bool Executor::Inside::compare(const Step &step)
{
    const Value right = pop();
    top() = script::compare(step.op, top(), right);
    return true;
}

} // namespace controller::script

#include "controller/script/executor_inside.h"
#include "controller/script/limits.h"

namespace controller::script {

// ---------------------------------------------------------------- signals, states, points

bool Executor::Inside::readSignal(const Step &step)
{
    push(step.op == Op::Input ? machine->input(step.a) : machine->output(step.a));
    return true;
}

bool Executor::Inside::readState(const Step &step)
{
    push(machine->state(static_cast<State>(step.a)));
    return true;
}

bool Executor::Inside::readPoint(const Step &step)
{
    Target target;
    const Refusal refusal = machine->palletPoint(static_cast<PalletPoint>(step.a), &target);
    push(target);
    return failUnless(refusal);
}

bool Executor::Inside::setOutput(const Step &step)
{
    const bool on = popAs<bool>();
    changes += machine->output(step.a) == on ? 0 : 1;
    machine->setOutput(step.a, on);
    return true;
}

bool Executor::Inside::pulseOutput(const Step &step)
{
    const double seconds = popAs<double>();
    if (!(seconds > 0) || seconds > kMaxSeconds)
        return fail("a pulse lasts more than 0 and at most " + std::to_string(static_cast<int>(kMaxSeconds)) +
                    " seconds");
    machine->pulseOutput(step.a, seconds);
    ++changes;
    return true;
}

// ---------------------------------------------------------------- moves

bool Executor::Inside::moveL(const Step &step)
{
    if (hasMoves && machine->moveState() == MoveState::Failed)
        return areMovesReached();
    const MoveSetting &setting = program->moves[static_cast<std::size_t>(step.a)];
    const MoveAnswer answer = machine->move(
        {std::get<Target>(top()), setting.speed, setting.zone, setting.fine, locationOf(next - 1)});
    if (answer.kind == MoveAnswer::Kind::Full)
        return stay(Activity::Moving);
    if (answer.kind == MoveAnswer::Kind::Refused)
        return fail(answer.why);
    operands.pop_back();
    hasMoves = true;
    ++changes;
    return true;
}

bool Executor::Inside::offs(const Step &)
{
    const double z = popAs<double>();
    const double y = popAs<double>();
    const double x = popAs<double>();
    Target &target = std::get<Target>(top());
    target.x += x;
    target.y += y;
    target.z += z;
    return true;
}

bool Executor::Inside::currentTarget(const Step &)
{
    push(machine->currentTarget());
    return true;
}

// ---------------------------------------------------------------- clocks

bool Executor::Inside::changeClock(const Step &step)
{
    const double now = machine->now();
    Clock clock = std::get<Clock>(step.b ? machine->variable(step.a) : local(step.a));
    if (step.op == Op::ClockReset)
        clock = Clock();
    else if (step.op == Op::ClockStart && !clock.runs)
        clock = {clock.before, now, true};
    else if (step.op == Op::ClockStop)
        clock = {clock.read(now), 0, false};
    if (step.b)
        storeVariable(step.a, clock);
    else
        storeLocal(step.a, clock);
    return true;
}

bool Executor::Inside::readClock(const Step &step)
{
    const Clock clock = std::get<Clock>(step.b ? machine->variable(step.a) : local(step.a));
    if (clock.runs)
        timeReadAt = changes;
    push(clock.read(machine->now()));
    return true;
}

// ---------------------------------------------------------------- registers, pallets

bool Executor::Inside::readRegister(const Step &)
{
    std::int64_t value = 0;
    const Refusal refusal = machine->readRegister(std::get<std::string>(top()), &value);
    top() = value;
    return failUnless(refusal);
}

bool Executor::Inside::writeRegister(const Step &)
{
    const std::int64_t value = popAs<std::int64_t>();
    const Refusal refusal = machine->writeRegister(popAs<std::string>(), value);
    ++changes;
    return failUnless(refusal);
}

bool Executor::Inside::palletName(const Step &step)
{
    std::optional<std::int64_t> side;
    if (step.op == Op::PalletNameOfSide)
        side = popAs<std::int64_t>();
    const std::int64_t index = popAs<std::int64_t>();
    std::string name;
    const Refusal refusal = machine->palletName(index, side, &name);
    push(std::move(name));
    return failUnless(refusal);
}

bool Executor::Inside::palletUpdate(const Step &)
{
    const std::int64_t piece = popAs<std::int64_t>();
    const std::int64_t layer = popAs<std::int64_t>();
    ++changes;
    return failUnless(machine->palletUpdate(popAs<std::string>(), layer, piece));
}

bool Executor::Inside::palletCount(const Step &step)
{
    std::int64_t count = 0;
    const std::int64_t layer = step.op == Op::PalletPieceCount ? popAs<std::int64_t>() : 0;
    const std::string name = popAs<std::string>();
    const Refusal refusal = step.op == Op::PalletPieceCount ? machine->palletPieceCount(name, layer, &count)
                                                            : machine->palletLayerCount(name, &count);
    push(count);
    return failUnless(refusal);
}

} // namespace controller::script

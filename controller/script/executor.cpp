#include "controller/script/executor_inside.h"

#include "controller/script/limits.h"

#include <algorithm>

namespace controller::script {

// ---------------------------------------------------------------- the outside

Executor::Executor(std::shared_ptr<const Program> program, Machine *machine)
    : inside_(std::make_unique<Inside>(std::move(program), machine))
{
}

Executor::~Executor() = default;
Executor::Executor(Executor &&) noexcept = default;
Executor &Executor::operator=(Executor &&) noexcept = default;

Activity Executor::turn()
{
    return inside_->turn();
}

void Executor::restart()
{
    inside_->restart();
}

Activity Executor::activity() const
{
    return inside_->activity;
}

double Executor::wakeTime() const
{
    return inside_->wakeTime;
}

bool Executor::changedWorld() const
{
    return inside_->changedWorld;
}

Location Executor::location() const
{
    return inside_->locationOf(inside_->present());
}

const Fault &Executor::fault() const
{
    return inside_->fault;
}

const Program &Executor::program() const
{
    return *inside_->program;
}

// ---------------------------------------------------------------- turns

/// In the order of Op.
const Executor::Inside::Handler Executor::Inside::kHandlers[] = {
    &Inside::pushConstant,
    &Inside::drop,
    &Inside::loadLocal,
    &Inside::storeLocal,
    &Inside::loadVariable,
    &Inside::storeVariable,
    &Inside::loadMember,
    &Inside::storeLocalMember,
    &Inside::storeVariableMember,
    &Inside::increment,
    &Inside::readSignal,
    &Inside::readSignal,
    &Inside::readState,
    &Inside::readPoint,
    &Inside::convert,
    &Inside::convert,
    &Inside::convert,
    &Inside::calculate,
    &Inside::calculate,
    &Inside::calculate,
    &Inside::calculate,
    &Inside::changeSign,
    &Inside::invert,
    &Inside::changeSign,
    &Inside::compare,
    &Inside::compare,
    &Inside::compare,
    &Inside::compare,
    &Inside::compare,
    &Inside::compare,
    &Inside::jump,
    &Inside::jumpIfFalse,
    &Inside::shortCut,
    &Inside::shortCut,
    &Inside::loopStart,
    &Inside::loopBack,
    &Inside::call,
    &Inside::leave,
    &Inside::leave,
    &Inside::noValue,
    &Inside::settle,
    &Inside::pause,
    &Inside::moveL,
    &Inside::offs,
    &Inside::currentTarget,
    &Inside::setOutput,
    &Inside::pulseOutput,
    &Inside::wait,
    &Inside::waitCheck,
    &Inside::changeClock,
    &Inside::changeClock,
    &Inside::changeClock,
    &Inside::readClock,
    &Inside::readRegister,
    &Inside::writeRegister,
    &Inside::palletName,
    &Inside::palletName,
    &Inside::palletUpdate,
    &Inside::palletCount,
    &Inside::palletCount,
};

Executor::Inside::Inside(std::shared_ptr<const Program> checked, Machine *world)
    : program(std::move(checked)), machine(world)
{
    static_assert(std::size(kHandlers) == static_cast<std::size_t>(Op::PalletPieceCount) + 1);
    restart();
}

void Executor::Inside::restart()
{
    calls.clear();
    locals.clear();
    operands.clear();
    enter(program->main, 0);
    shown = next;
    hasMoves = isAsleep = changedWorld = false;
    activity = Activity::Ready;
    fault = Fault();
}

Activity Executor::Inside::turn()
{
    changedWorld = false;
    if (activity == Activity::Ended || activity == Activity::Failed)
        return activity;
    const std::uint64_t before = changes;
    activity = Activity::Ready;
    shown = kNone;
    for (int done = 0; done < kStepsPerTurn || (!operands.empty() && done < kMaxStepsPerTurn); ++done) {
        const Step &step = program->steps[next++];
        if (!(this->*kHandlers[static_cast<std::size_t>(step.op)])(step))
            break;
    }
    if (shown == kNone)
        shown = next;
    changedWorld = changes != before;
    return activity;
}

Location Executor::Inside::locationOf(std::size_t step) const
{
    const CodeOfProcedure &procedure = program->procedures[calls.back().procedure];
    return {program->task.name, program->files[static_cast<std::size_t>(procedure.file)],
            program->lines[step], procedure.name};
}

bool Executor::Inside::fail(std::string what)
{
    stay(Activity::Failed);
    fault = {locationOf(next), std::move(what)};
    return false;
}

bool Executor::Inside::stay(Activity why)
{
    --next;
    activity = why;
    return false;
}

Value Executor::Inside::pop()
{
    Value value = std::move(operands.back());
    operands.pop_back();
    return value;
}

/// The arguments are on the stack.
void Executor::Inside::enter(std::size_t procedure, std::size_t returnTo)
{
    const CodeOfProcedure &code = program->procedures[procedure];
    const std::size_t base = locals.size();
    locals.insert(locals.end(), code.locals.begin(), code.locals.end());
    const auto arguments = operands.end() - static_cast<std::ptrdiff_t>(code.parameters);
    std::move(arguments, operands.end(), locals.begin() + static_cast<std::ptrdiff_t>(base));
    operands.erase(arguments, operands.end());
    calls.push_back({procedure, returnTo, base, 0});
    next = code.entry;
}

bool Executor::Inside::areMovesReached()
{
    const MoveState state = hasMoves ? machine->moveState() : MoveState::Reached;
    hasMoves = state == MoveState::Moving;
    if (state != MoveState::Failed)
        return state == MoveState::Reached || stay(Activity::Moving);
    fail({});
    fault = machine->moveFault();
    return false;
}

// ---------------------------------------------------------------- flow

bool Executor::Inside::jump(const Step &step)
{
    next = static_cast<std::size_t>(step.a);
    return true;
}

bool Executor::Inside::jumpIfFalse(const Step &step)
{
    return popAs<bool>() || jump(step);
}

bool Executor::Inside::shortCut(const Step &step)
{
    if (std::get<bool>(top()) == (step.op == Op::OrJump))
        return jump(step);
    operands.pop_back();
    return true;
}

bool Executor::Inside::loopStart(const Step &step)
{
    local(step.a) = static_cast<std::int64_t>(seenChanges());
    return true;
}

/// A pass that changed nothing would do the same again until the world changes, so it need not run again in this turn.
bool Executor::Inside::loopBack(const Step &step)
{
    jump(step);
    if (std::get<std::int64_t>(local(step.b)) != static_cast<std::int64_t>(seenChanges()))
        return true;
    activity = idleOrReady();
    return false;
}

bool Executor::Inside::call(const Step &step)
{
    if (calls.size() == kMaxCalls)
        return fail("more than " + std::to_string(kMaxCalls) + " calls inside each other");
    enter(static_cast<std::size_t>(step.a), next);
    return true;
}

bool Executor::Inside::leave(const Step &)
{
    if (calls.size() == 1)
        return areMovesReached() && stay(Activity::Ended);
    next = calls.back().returnTo;
    locals.resize(calls.back().base);
    calls.pop_back();
    return true;
}

bool Executor::Inside::noValue(const Step &)
{
    const std::string &name = program->procedures[calls.back().procedure].name;
    return fail("\"" + name + "\" ended without a RETURN of its value");
}

bool Executor::Inside::settle(const Step &)
{
    return areMovesReached();
}

bool Executor::Inside::pause(const Step &)
{
    shown = next - 1; // where the task stands, until it goes on behind
    machine->pause(locationOf(shown));
    ++changes;
    return false;
}

bool Executor::Inside::wait(const Step &)
{
    if (!isAsleep) {
        const double seconds = popAs<double>();
        if (seconds < 0 || seconds > kMaxSeconds)
            return fail("a task waits 0 to " + std::to_string(static_cast<int>(kMaxSeconds)) + " seconds");
        wakeTime = machine->now() + seconds;
        isAsleep = true;
    }
    isAsleep = machine->now() < wakeTime;
    if (isAsleep)
        return stay(Activity::Asleep);
    ++changes; // time has passed
    return true;
}

bool Executor::Inside::waitCheck(const Step &step)
{
    if (popAs<bool>())
        return true;
    jump(step);
    activity = idleOrReady();
    return false;
}

} // namespace controller::script

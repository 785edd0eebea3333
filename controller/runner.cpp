#include "controller/runner.h"

#include "controller/texts.h"

#include <algorithm>

namespace controller {

using cell::Fault;
using cell::World;
using script::Activity;

namespace {

QString textOf(const script::Location &where)
{
    return QStringLiteral("%1 %2:%3")
        .arg(QString::fromStdString(where.task), QString::fromStdString(where.file))
        .arg(where.line);
}

} // namespace

Runner::Runner(const PalletStore *recipes, std::uint64_t seed) : cell_(recipes, seed) {}

const char *Runner::stateName(State state)
{
    switch (state) {
    case State::Running:
        return "running";
    case State::Paused:
        return "paused";
    case State::Stopped:
        break;
    }
    return "stopped";
}

// ---------------------------------------------------------------- what is asked for

/// What keeps the robot from moving; empty when nothing does.
QString Runner::blockade() const
{
    const World &world = cell_.world();
    if (world.hasFault(Fault::EStop))
        return Texts::tr("the emergency stop is pressed");
    if (world.hasFault(Fault::Collision))
        return Texts::tr("the robot was stopped by a collision; reset first");
    for (int scanner = 0; scanner < 2; ++scanner)
        if (!world.signals().input(cell::in::kScannerFirst[scanner] + cell::in::kScannerChannels - 1))
            return Texts::tr("somebody stands in the field of scanner %1").arg(scanner + 1);
    return {};
}

QString Runner::start(std::vector<LoadedTask> tasks, std::unique_ptr<ProgramVariables> variables)
{
    const QString why = blockade();
    if (!why.isEmpty())
        return why;
    stop(QString());
    variables_ = std::move(variables);
    cell_.setVariables(variables_.get());
    scheduler_ = std::make_unique<Scheduler>(std::move(tasks), &cell_);
    if (!scheduler_->motion()) {
        stop(QString());
        return Texts::tr("the project has no motion task");
    }
    cell_.note("start");
    state_ = State::Running;
    cell_.setRelax(true);
    isFault_ = false;
    return {};
}

void Runner::pause(const QString &why)
{
    if (state_ != State::Running)
        return;
    cell_.note("paused: " + why.toStdString());
    state_ = State::Paused;
    why_ = why;
    isStepping_ = false;
    cell_.world().way().pause();
    cell_.setStepping(false);
    cell_.setRelax(false);
}

QString Runner::resume()
{
    if (state_ == State::Stopped)
        return Texts::tr("no program runs");
    QString why = blockade();
    if (state_ == State::Running || !why.isEmpty() || !cell_.world().way().resume(&why))
        return why;
    cell_.note("goes on");
    state_ = State::Running;
    why_.clear();
    isFault_ = false;
    cell_.setRelax(true);
    return {};
}

QString Runner::step()
{
    if (state_ == State::Running)
        return Texts::tr("the program runs; pause it first");
    const QString why = resume();
    if (why.isEmpty()) {
        isStepping_ = true;
        stepFrom_ = scheduler_->motion()->location();
        cell_.setStepping(true);
    }
    return why;
}

void Runner::stop(const QString &why)
{
    if (state_ != State::Stopped)
        cell_.note("stopped: " + why.toStdString());
    state_ = State::Stopped;
    why_ = why;
    isFault_ = false;
    isStepping_ = false;
    scheduler_.reset();
    cell_.setStepping(false);
    cell_.setRelax(false);
    World &world = cell_.world();
    world.way().drop();
    world.signals().setOutput(cell::out::kConveyorForward, false);
    world.signals().setOutput(cell::out::kConveyorReverse, false);
}

void Runner::leave()
{
    stop(QString());
    cell_.setVariables(nullptr);
    variables_.reset();
}

void Runner::fail(const QString &why)
{
    stop(why);
    isFault_ = true;
}

QString Runner::reset()
{
    if (cell_.world().hasFault(Fault::EStop))
        return Texts::tr("the emergency stop is pressed");
    cell_.world().setFault(Fault::Collision, false);
    return {};
}

void Runner::cutPower()
{
    fail(Texts::tr("the power was cut"));
    cell_.world().cutPower();
}

void Runner::setFault(Fault fault, bool on)
{
    if (fault == Fault::PowerCut && on)
        cutPower();
    else if (fault != Fault::PowerCut)
        cell_.world().setFault(fault, on);
}

void Runner::press(int input, double seconds)
{
    cell_.world().setInput(input, true);
    presses_.push_back({input, cell_.world().now() + seconds});
}

// ---------------------------------------------------------------- time

void Runner::releaseButtons()
{
    const double now = cell_.world().now();
    const auto over = std::stable_partition(presses_.begin(), presses_.end(),
                                            [now](const Press &press) { return press.until > now; });
    for (auto press = over; press != presses_.end(); ++press)
        cell_.world().setInput(press->input, false);
    presses_.erase(over, presses_.end());
}

void Runner::advance(double seconds)
{
    for (rest_ += seconds; rest_ >= World::kTick && isBusy(); rest_ -= World::kTick)
        tick();
    rest_ = isBusy() ? rest_ : 0;
}

void Runner::tick()
{
    cell_.world().tick();
    releaseButtons();
    followSafety();
    followButtons();
    if (!scheduler_)
        return;
    scheduler_->turns(state_ == State::Running);
    followTasks();
    followStep();
}

/// The emergency stop and its like hold the robot whatever programs do.
void Runner::followSafety()
{
    if (state_ != State::Running)
        return;
    const QString why = blockade();
    if (!why.isEmpty())
        pause(why);
}

/// Buttons work when they are pressed, not as long as they are.
void Runner::followButtons()
{
    const int buttons[] = {cell::in::kStart, cell::in::kStop, cell::in::kReset};
    for (int i = 0; i < 3; ++i) {
        const bool isPressed = cell_.world().signals().input(buttons[i]);
        if (!isPressed || std::exchange(wasPressed_[i], isPressed)) {
            wasPressed_[i] = isPressed;
            continue;
        }
        if (i == 0 && state_ == State::Paused)
            resume();
        else if (i == 1)
            pause(Texts::tr("the stop button was pressed"));
        else if (i == 2)
            reset();
    }
}

void Runner::followTasks()
{
    script::Location where;
    if (cell_.takePause(&where))
        pause(Texts::tr("paused by the program, %1").arg(textOf(where)));
    if (const script::Executor *failed = scheduler_->failed())
        return fail(QStringLiteral("%1: %2").arg(textOf(failed->fault().where),
                                                 QString::fromStdString(failed->fault().what)));
    if (scheduler_->isOver())
        stop(Texts::tr("the program is at its end"));
}

void Runner::followStep()
{
    if (!isStepping_ || !scheduler_)
        return;
    const script::Executor &motion = *scheduler_->motion();
    const script::Location now = motion.location();
    const bool isElsewhere = now.line != stepFrom_.line || now.file != stepFrom_.file;
    if (isElsewhere && !cell_.world().way().isMoving() && motion.activity() != Activity::Ready)
        pause(Texts::tr("one step was made, to %1").arg(textOf(now)));
}

} // namespace controller

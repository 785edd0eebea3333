#pragma once

#include "controller/scheduler.h"

namespace controller {

/// Runs the programs of a project in the cell: start, pause, step, stop, the buttons and the safety of the cell. Simulated
/// time only; the same calls give the same trace.
class Runner
{
public:
    enum class State {
        Stopped, ///< nothing runs
        Running,
        Paused, ///< motion tasks and the robot stand still; the others go on
    };

    explicit Runner(const PalletStore *recipes, std::uint64_t seed = 1);

    /// All tasks from the start. `variables` are the project's, which the programs were checked with. Returns why not.
    QString start(std::vector<LoadedTask> tasks, std::unique_ptr<ProgramVariables> variables);
    void pause(const QString &why);
    /// Goes on after a pause. Returns why not.
    QString resume();
    /// Goes on until the robot has made one move, or the motion task has come to another line without one.
    QString step();
    /// Ends all tasks; the robot brakes, the belt stands, suction stays as it is.
    void stop(const QString &why);
    /// Stops and forgets the project's variables.
    void leave();
    /// Takes back what only a person may take back: the stop by a collision. Returns why not.
    QString reset();
    /// All power is gone for a moment: nothing runs, what is in the air falls, what lies on pallets stays.
    void cutPower();

    void setFault(cell::Fault fault, bool on);
    /// An input is on for so long [s].
    void press(int input, double seconds);
    /// One tick of simulated time, see cell::World::kTick.
    void tick();
    /// As many ticks as fit; the rest is kept for the next call [s].
    void advance(double seconds);
    /// Whether time changes anything.
    bool isBusy() const { return state_ != State::Stopped || !presses_.empty() || cell_.world().needsTime(); }

    State state() const { return state_; }
    static const char *stateName(State state);
    /// Why it does not run, for the operator; empty when nobody needs to be told.
    const QString &why() const { return why_; }
    /// Whether `why` tells of something that went wrong.
    bool isFault() const { return isFault_; }
    cell::Cell &cell() { return cell_; }
    const cell::Cell &cell() const { return cell_; }
    /// Null when nothing runs.
    const Scheduler *scheduler() const { return scheduler_.get(); }
    ProgramVariables *variables() { return variables_.get(); }

private:
    QString blockade() const;
    void releaseButtons();
    void followButtons();
    void followSafety();
    void followTasks();
    void followStep();
    void fail(const QString &why);

    cell::Cell cell_;
    std::unique_ptr<ProgramVariables> variables_;
    std::unique_ptr<Scheduler> scheduler_;
    State state_ = State::Stopped;
    QString why_;
    bool isFault_ = false;
    double rest_ = 0; ///< of time [s]
    bool isStepping_ = false;
    script::Location stepFrom_;
    struct Press
    {
        int input;
        double until; ///< [s]
    };
    std::vector<Press> presses_;
    bool wasPressed_[3] = {}; ///< start, stop, reset
};

} // namespace controller

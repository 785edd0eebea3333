#pragma once

#include "controller/script/machine.h"

#include <memory>
#include <vector>

namespace controller::script {

class Program;

/// What a task waits for.
enum class Activity {
    Ready, ///< its turn was used up; it goes on in the next one
    Idle, ///< a condition does not hold, or a loop changed nothing: nothing to do until something that it reads changes
    Asleep, ///< Wait: until Executor::wakeTime()
    Moving, ///< for the robot, see Machine::moveState()
    Ended,  ///< `main` is at its end
    Failed, ///< see Executor::fault()
};

/// Runs one task as a step machine. Turns of several executors on one machine, in a fixed order, run tasks side by side:
/// same inputs, same trace. No threads.
class Executor
{
public:
    /// `machine` must outlive this. The project's variables on it must be those the program was checked with.
    Executor(std::shared_ptr<const Program> program, Machine *machine);
    ~Executor();
    Executor(Executor &&) noexcept;
    Executor &operator=(Executor &&) noexcept;

    /// Runs until the task must wait, is over, or has made kStepsPerTurn steps (limits.h) and is between two statements. Call it once per turn of simulated time;
    /// a task that is Ended or Failed does nothing.
    Activity turn();
    /// Goes back to the start of `main`. A fault is forgotten; moves that were handed over are the machine's.
    void restart();

    Activity activity() const;
    /// Of Asleep [s of Machine::now()].
    double wakeTime() const;
    /// Whether the last turn changed a signal, register, variable or anything else that others can see. When no task
    /// changed anything and each is Idle, Asleep or Moving, nothing happens until the world changes or one wakes up.
    bool changedWorld() const;
    /// The present statement.
    Location location() const;
    /// Of Failed.
    const Fault &fault() const;
    const Program &program() const;

private:
    struct Inside;
    std::unique_ptr<Inside> inside_;
};

} // namespace controller::script

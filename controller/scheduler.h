#pragma once

#include "controller/cell/cell.h"
#include "controller/program_files.h"
#include "controller/script/executor.h"

#include <vector>

namespace controller {

/// Runs tasks side by side in simulated time: each has one turn a tick, in the order of priority and then of the list. A
/// task that waits has no turn while nothing changed that it may wait for; that saves time and changes nothing.
class Scheduler
{
public:
    /// `cell` must outlive this.
    Scheduler(std::vector<LoadedTask> tasks, cell::Cell *cell);

    /// One tick. Without `motion` the motion tasks stand still.
    void turns(bool motion);

    std::size_t count() const { return slots_.size(); }
    const LoadedTask &task(std::size_t i) const { return slots_[i].task; }
    const script::Executor &executor(std::size_t i) const { return slots_[i].executor; }
    bool isMotion(std::size_t i) const { return task(i).info.kind == script::TaskKind::Motion; }
    /// The first motion task; null when there is none.
    const script::Executor *motion() const;
    /// Every motion task came to its end.
    bool isOver() const;
    /// A task that failed; null when none did.
    const script::Executor *failed() const;
    /// Turns that were really made; for measuring.
    std::uint64_t turnsMade() const { return turnsMade_; }

private:
    struct Slot
    {
        LoadedTask task;
        script::Executor executor;
        std::uint64_t seen = 0;  ///< version of the world before the last turn
        bool isRestless = true;  ///< the last turn read what changes without notice
        bool isFresh = true;     ///< the next turn begins at the start of `main`
        bool isQuietEnd = false; ///< the whole of `main` changed nothing
    };
    bool isDue(Slot &slot) const;
    void turn(Slot &slot);

    cell::Cell *cell_;
    std::vector<Slot> slots_;
    std::uint64_t turnsMade_ = 0;
};

} // namespace controller

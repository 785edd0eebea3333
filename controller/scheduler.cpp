#include "controller/scheduler.h"

#include <algorithm>

namespace controller {

using script::Activity;
using script::TaskKind;

namespace {

constexpr double kSameTime = 1e-9; // [s] ticks are sums of a tenth and the like

} // namespace

Scheduler::Scheduler(std::vector<LoadedTask> tasks, cell::Cell *cell) : cell_(cell)
{
    slots_.reserve(tasks.size());
    for (LoadedTask &task : tasks) {
        script::Executor executor(task.program, cell);
        slots_.push_back({std::move(task), std::move(executor)});
    }
}

bool Scheduler::isDue(Slot &slot) const
{
    const bool isNew = slot.isRestless || slot.seen != cell_->world().version();
    switch (slot.executor.activity()) {
    case Activity::Ready:
        return true;
    case Activity::Idle:
    case Activity::Moving:
        return isNew;
    case Activity::Asleep:
        return cell_->world().now() >= slot.executor.wakeTime() - kSameTime;
    case Activity::Ended:
        return slot.task.info.kind != TaskKind::Motion && (isNew || !slot.isQuietEnd);
    case Activity::Failed:
        break;
    }
    return false;
}

void Scheduler::turn(Slot &slot)
{
    if (slot.executor.activity() == Activity::Ended) {
        slot.executor.restart();
        slot.isFresh = true;
    }
    slot.seen = cell_->world().version();
    cell_->takeRestless();
    cell_->setTurn(&slot.executor);
    const Activity activity = slot.executor.turn();
    cell_->setTurn(nullptr);
    slot.isRestless = cell_->takeRestless();
    slot.isQuietEnd = slot.isFresh && activity == Activity::Ended && !slot.executor.changedWorld();
    slot.isFresh = false;
    ++turnsMade_;
}

void Scheduler::turns(bool motion)
{
    for (Slot &slot : slots_)
        if ((motion || slot.task.info.kind != TaskKind::Motion) && isDue(slot))
            turn(slot);
}

const script::Executor *Scheduler::motion() const
{
    const auto found = std::find_if(slots_.begin(), slots_.end(),
                                    [](const Slot &s) { return s.task.info.kind == TaskKind::Motion; });
    return found == slots_.end() ? nullptr : &found->executor;
}

bool Scheduler::isOver() const
{
    return std::all_of(slots_.begin(), slots_.end(), [](const Slot &slot) {
        return slot.task.info.kind != TaskKind::Motion || slot.executor.activity() == Activity::Ended;
    });
}

const script::Executor *Scheduler::failed() const
{
    const auto found = std::find_if(slots_.begin(), slots_.end(), [](const Slot &slot) {
        return slot.executor.activity() == Activity::Failed;
    });
    return found == slots_.end() ? nullptr : &found->executor;
}

} // namespace controller

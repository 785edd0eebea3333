#include "project/rules/run_beside.h"

#include <chrono>
#include <future>

namespace palx {

void runBeside(Progress *progress, const BesideTold &told, const std::function<void()> &work)
{
    if (!progress->mustAnswer())
        return work();
    constexpr std::chrono::milliseconds kTellEvery(20);
    const std::future<void> running = std::async(std::launch::async, work);
    bool isPrevented = false;
    while (running.wait_for(kTellEvery) != std::future_status::ready) {
        progress->step(0, 0, told.text);
        if (!isPrevented && told.prevent && progress->isCancelled()) {
            isPrevented = true;
            told.prevent();
        }
    }
}

} // namespace palx

#pragma once

#include "controller/station.h"
#include "link/mailbox.h"

#include <chrono>
#include <memory>
#include <thread>

namespace controller {

/// Writes a station's state on a thread of its own, so that a slow disk holds nothing up: a moment after the first change,
/// so that a row of changes is written once, but soon, because what is not written is lost when the power fails.
class Saver
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kDelay{300};
    static constexpr std::chrono::milliseconds kRetry{2000}; // after a full disk

    explicit Saver(Station *station);
    /// Ends the thread behind what is being written.
    ~Saver();

    /// Looks what there is to do; called on the station's thread again and again.
    void look(Clock::time_point now);
    /// Whether `look` has something to wait for.
    bool isAwake() const { return isDue_ || isWriting_; }
    /// Writes what is left, before the end.
    void finish();

private:
    void run();
    void takeResults(Clock::time_point now);

    Station *station_;
    std::shared_ptr<StateKeeper> keeper_;
    host::Mailbox<StateSnapshot> snapshots_;
    host::Mailbox<QString> results_; ///< empty: written; else why not
    std::thread thread_;
    Clock::time_point due_;
    bool isDue_ = false;
    bool isWriting_ = false;
};

} // namespace controller

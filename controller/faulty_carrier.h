#pragma once

#include "link/carrier.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <thread>

namespace controller {

/// What goes wrong on a way. The same faults and the same frames have the same outcome, apart from the clock.
struct Faults
{
    std::chrono::milliseconds delay{0};  ///< each frame, in both directions
    std::chrono::milliseconds jitter{0}; ///< up to that much more, by `seed`; the order of a direction stays
    int dropEvery = 0;                   ///< every n-th frame of each direction is lost; 0: none
    int cutEvery = 0; ///< every n-th frame to the controller ends in its middle, and the way with it; 0: none
    std::uint32_t seed = 1;
};

/// Spoils another carrier's way, for trying out and for showing what the panel does then. No Qt; a thread of its own hands
/// all frames on, so that they can wait.
class FaultyCarrier : public host::Carrier, private host::CarrierSink
{
public:
    explicit FaultyCarrier(std::unique_ptr<host::Carrier> inner, const Faults &faults = Faults());
    ~FaultyCarrier() override;

    void open(host::CarrierSink *sink) override;
    void close() override;
    bool send(const std::string &frame) override;

    /// From now on; counting begins anew. Any thread.
    void setFaults(const Faults &faults);
    /// Pulls the plug: nothing passes until `restore`. Owner's thread.
    void cut();
    /// Plugs it in again, also after a frame was cut in its middle. Owner's thread.
    void restore();
    bool isCut() const { return isCut_; }
    /// Frames that were lost or cut so far.
    int lostCount() const { return lost_; }

private:
    using Clock = std::chrono::steady_clock;
    enum Direction { Out, In };
    struct Item
    {
        enum What { FrameOut, FrameIn, Way } what;
        std::string text; ///< the frame, or the reason
        bool isOpen;
    };

    // On the inner carrier's thread.
    void frameArrived(std::string frame) override;
    void wayChanged(bool open, const std::string &reason) override;

    // With mutex_ locked.
    bool isLost(Direction direction);
    bool isNextCut();
    Clock::time_point dueTime(Direction direction);
    void enqueue(Direction direction, Item item);
    void breakWay(const std::string &reason);

    void run();
    void hand(const Item &item);

    std::unique_ptr<host::Carrier> inner_;
    std::mutex innerMutex_; ///< its sending beside its closing
    host::CarrierSink *sink_ = nullptr;
    std::thread thread_;
    std::atomic<bool> isCut_{false};
    std::atomic<bool> isOpen_{false};
    std::atomic<int> lost_{0};

    std::mutex mutex_; // for what follows
    std::condition_variable changed_;
    Faults faults_;
    std::mt19937 random_;
    int count_[2] = {0, 0};
    Clock::time_point lastDue_[2];
    std::multimap<Clock::time_point, Item> waiting_;
    bool isEnding_ = false;
};

} // namespace controller

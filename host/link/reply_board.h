#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

namespace host {

/// Who waits for which reply; any threads. No Qt, so that the thread sanitizer can be trusted with it.
template <class T> class ReplyBoard
{
public:
    using Clock = std::chrono::steady_clock;
    enum class Outcome {
        Came,
        Late,  ///< the deadline passed
        Broken ///< the way broke before the reply
    };

    ReplyBoard() = default;
    ReplyBoard(const ReplyBoard &) = delete;
    ReplyBoard &operator=(const ReplyBoard &) = delete;

    /// To be called before the request leaves, so that no reply is too quick.
    void expect(std::uint64_t id)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        places_[id] = Place();
    }

    /// Ends the expectation, whatever the outcome.
    Outcome wait(std::uint64_t id, Clock::time_point deadline, T *reply)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        const auto place = places_.find(id);
        if (place == places_.end())
            return Outcome::Broken;
        arrived_.wait_until(lock, deadline, [&place] { return place->second.isSettled; });
        const Outcome outcome = place->second.isSettled ? place->second.outcome : Outcome::Late;
        if (outcome == Outcome::Came)
            *reply = std::move(place->second.reply);
        places_.erase(place);
        return outcome;
    }

    void forget(std::uint64_t id)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        places_.erase(id);
    }

    /// False when nobody waits for it: it is late, or a second one.
    bool deliver(std::uint64_t id, T &reply)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            const auto place = places_.find(id);
            if (place == places_.end() || place->second.isSettled)
                return false;
            place->second.reply = std::move(reply);
            place->second.outcome = Outcome::Came;
            place->second.isSettled = true;
        }
        arrived_.notify_all();
        return true;
    }

    /// Nobody will get the replies that are still missing.
    void breakAll()
    {
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            for (auto &[id, place] : places_)
                place.isSettled = true; // one that came stays what it is
        }
        arrived_.notify_all();
    }

private:
    struct Place
    {
        T reply{};
        Outcome outcome = Outcome::Broken;
        bool isSettled = false;
    };

    std::mutex mutex_;
    std::condition_variable arrived_;
    std::map<std::uint64_t, Place> places_; // its iterators stay valid while others come and go
};

} // namespace host

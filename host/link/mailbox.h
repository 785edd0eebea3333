#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace host {

/// A queue from any threads to one reader. No Qt, so that the thread sanitizer can be trusted with it.
template <class T> class Mailbox
{
public:
    using Clock = std::chrono::steady_clock;

    Mailbox() = default;
    Mailbox(const Mailbox &) = delete;
    Mailbox &operator=(const Mailbox &) = delete;

    /// Called on the pusher's thread when something came into an empty box, and not after `close` returned.
    /// It must not use the box. Set before the first push.
    void setWaker(std::function<void()> waker) { waker_ = std::move(waker); }

    /// False when the box is closed; the item is then dropped.
    bool push(T item)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (closed_)
            return false;
        const bool wasEmpty = items_.empty();
        items_.push_back(std::move(item));
        arrived_.notify_one();
        if (wasEmpty && waker_)
            waker_();
        return true;
    }

    /// False when nothing is there.
    bool tryPop(T *item)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return take(item);
    }

    /// Waits until something is there, the deadline has passed or the box is closed; false without an item.
    /// What was pushed before closing can still be taken.
    bool popUntil(T *item, Clock::time_point deadline)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        arrived_.wait_until(lock, deadline, [this] { return closed_ || !items_.empty(); });
        return take(item);
    }

    /// Waits without a bound.
    bool pop(T *item)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        arrived_.wait(lock, [this] { return closed_ || !items_.empty(); });
        return take(item);
    }

    /// Wakes the reader; nothing comes in any more until `reopen`.
    void close()
    {
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            closed_ = true;
        }
        arrived_.notify_all();
    }

    /// Empties the box and lets items in again.
    void reopen()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        items_.clear();
        closed_ = false;
    }

    bool isClosed() const
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return closed_;
    }

    std::size_t size() const
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return items_.size();
    }

private:
    bool take(T *item)
    {
        if (items_.empty())
            return false;
        *item = std::move(items_.front());
        items_.pop_front();
        return true;
    }

    mutable std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<T> items_;
    std::function<void()> waker_;
    bool closed_ = false;
};

} // namespace host

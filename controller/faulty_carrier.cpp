#include "controller/faulty_carrier.h"

#include <algorithm>

namespace controller {

FaultyCarrier::FaultyCarrier(std::unique_ptr<host::Carrier> inner, const Faults &faults)
    : inner_(std::move(inner))
{
    setFaults(faults);
}

FaultyCarrier::~FaultyCarrier()
{
    close();
}

void FaultyCarrier::setFaults(const Faults &faults)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    faults_ = faults;
    random_.seed(faults.seed);
    count_[Out] = count_[In] = 0;
}

// ---------------------------------------------------------------- the owner's thread

void FaultyCarrier::open(host::CarrierSink *sink)
{
    close();
    sink_ = sink;
    isCut_ = false;
    thread_ = std::thread([this] { run(); });
    inner_->open(this);
}

void FaultyCarrier::close()
{
    if (!sink_)
        return;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
    thread_.join();
    inner_->close();
    isOpen_ = false;
    const std::lock_guard<std::mutex> lock(mutex_);
    waiting_.clear();
    isEnding_ = false;
    sink_ = nullptr;
}

void FaultyCarrier::cut()
{
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (!isCut_)
            breakWay("the connection is cut");
    }
    const std::lock_guard<std::mutex> lock(innerMutex_);
    inner_->close();
}

void FaultyCarrier::restore()
{
    if (!isCut_ || !sink_)
        return;
    const std::lock_guard<std::mutex> lock(innerMutex_);
    inner_->close();
    isCut_ = false;
    inner_->open(this);
}

bool FaultyCarrier::send(const std::string &frame)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!isOpen_ || isCut_)
        return false;
    if (isLost(Out))
        return true;
    if (!isNextCut()) {
        enqueue(Out, {Item::FrameOut, frame, true});
        return true;
    }
    ++lost_;
    enqueue(Out, {Item::FrameOut, frame.substr(0, frame.size() / 2), true});
    breakWay("the connection broke in the middle of a message");
    return true;
}

// ---------------------------------------------------------------- the inner carrier's thread

void FaultyCarrier::frameArrived(std::string frame)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!isCut_ && !isLost(In))
        enqueue(In, {Item::FrameIn, std::move(frame), true});
}

void FaultyCarrier::wayChanged(bool open, const std::string &reason)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!isCut_)
        enqueue(In, {Item::Way, reason, open});
}

// ---------------------------------------------------------------- faults

bool FaultyCarrier::isLost(Direction direction)
{
    const bool lost =
        ++count_[direction] && faults_.dropEvery > 0 && count_[direction] % faults_.dropEvery == 0;
    lost_ += lost ? 1 : 0;
    return lost;
}

bool FaultyCarrier::isNextCut()
{
    return faults_.cutEvery > 0 && count_[Out] % faults_.cutEvery == 0;
}

FaultyCarrier::Clock::time_point FaultyCarrier::dueTime(Direction direction)
{
    auto due = Clock::now() + faults_.delay;
    if (faults_.jitter.count() > 0)
        due += std::chrono::milliseconds(random_() % static_cast<std::uint32_t>(faults_.jitter.count() + 1));
    lastDue_[direction] = std::max(due, lastDue_[direction]);
    return lastDue_[direction];
}

void FaultyCarrier::enqueue(Direction direction, Item item)
{
    waiting_.emplace(dueTime(direction), std::move(item));
    changed_.notify_all();
}

/// What is on its way to the panel is lost; the half frame that broke the way still goes out.
void FaultyCarrier::breakWay(const std::string &reason)
{
    isCut_ = true;
    for (auto it = waiting_.begin(); it != waiting_.end();)
        it = it->second.what == Item::FrameIn ? waiting_.erase(it) : std::next(it);
    enqueue(In, {Item::Way, reason, false});
}

// ---------------------------------------------------------------- the thread that hands on

void FaultyCarrier::run()
{
    std::unique_lock<std::mutex> lock(mutex_);
    while (!isEnding_) {
        if (waiting_.empty()) {
            changed_.wait(lock);
        } else if (const auto due = waiting_.begin()->first; due > Clock::now()) {
            changed_.wait_until(lock, due);
        } else {
            const Item item = std::move(waiting_.begin()->second);
            waiting_.erase(waiting_.begin());
            lock.unlock();
            hand(item);
            lock.lock();
        }
    }
}

void FaultyCarrier::hand(const Item &item)
{
    if (item.what == Item::FrameOut) {
        const std::lock_guard<std::mutex> lock(innerMutex_);
        inner_->send(item.text);
    } else if (item.what == Item::FrameIn) {
        sink_->frameArrived(item.text);
    } else {
        isOpen_ = item.isOpen;
        sink_->wayChanged(item.isOpen, item.text);
    }
}

} // namespace controller

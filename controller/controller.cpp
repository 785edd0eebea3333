#include "controller/controller.h"

#include "controller/saver.h"

#include <algorithm>

namespace controller {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kMovingTick = 5ms;
constexpr auto kRestTick = 200ms;
constexpr double kMaxStep = 0.1; // [s] a machine that was held up goes slower for a moment and does not jump
constexpr int kMaxItemsPerTick = 64; // between two looks at the clock

} // namespace

Controller::Controller(const StationOptions &options)
{
    std::promise<Start> ready;
    start_ = ready.get_future().share();
    thread_ = std::thread(
        [this, options, promise = std::move(ready)]() mutable { run(options, std::move(promise)); });
}

Controller::~Controller()
{
    inbox_.close();
    thread_.join();
}

// ---------------------------------------------------------------- other threads

Peer Controller::connect(PeerSink *sink)
{
    Peer peer;
    {
        const std::lock_guard<std::mutex> lock(sinksMutex_);
        peer = ++lastPeer_;
        sinks_[peer] = sink;
    }
    inbox_.push({Item::Came, peer, {}});
    return peer;
}

void Controller::disconnect(Peer peer)
{
    {
        const std::lock_guard<std::mutex> lock(sinksMutex_);
        sinks_.erase(peer);
    }
    inbox_.push({Item::Gone, peer, {}});
}

void Controller::send(Peer peer, std::string frame)
{
    inbox_.push({Item::Frame, peer, std::move(frame)});
}

// ---------------------------------------------------------------- the controller's thread

template <class Call> void Controller::withSink(Peer peer, Call call)
{
    const std::lock_guard<std::mutex> lock(sinksMutex_);
    const auto found = sinks_.find(peer);
    if (found != sinks_.end())
        call(*found->second);
}

void Controller::handle(Core &core, Item &item)
{
    switch (item.what) {
    case Item::Came:
        core.peerCame(item.peer);
        withSink(item.peer, [](PeerSink &sink) { sink.opened(); });
        break;
    case Item::Gone:
        core.peerGone(item.peer);
        break;
    case Item::Frame:
        core.receive(item.peer, item.frame);
        withSink(item.peer, [&item](PeerSink &sink) { sink.frameTaken(item.frame.size()); });
        break;
    }
}

void Controller::deliver(std::vector<Outgoing> outgoing)
{
    for (Outgoing &out : outgoing) {
        bool comesBack = false;
        withSink(out.peer, [&out, &comesBack](PeerSink &sink) {
            if (out.close)
                comesBack = sink.closed();
            else
                sink.frameOut(std::move(out.frame));
        });
        if (comesBack)
            inbox_.push({Item::Came, out.peer, {}});
    }
}

void Controller::run(const StationOptions &options, std::promise<Start> ready)
{
    Core core(options);
    Saver saver(&core.station());
    ready.set_value({core.station().reports(), core.station().keeper() != nullptr});
    Clock::time_point last = Clock::now();
    for (bool isThere = true; isThere || !inbox_.isClosed();) { // what came before the end is worked off
        const bool isAwake = core.station().isBusy() || saver.isAwake();
        Item item;
        isThere = inbox_.popUntil(&item, last + (isAwake ? kMovingTick : kRestTick));
        for (int n = 1; isThere && n <= kMaxItemsPerTick; ++n) {
            handle(core, item);
            deliver(core.takeOutgoing());
            if (n < kMaxItemsPerTick && !inbox_.tryPop(&item))
                break;
        }
        const Clock::time_point now = Clock::now();
        core.advance(std::min(std::chrono::duration<double>(now - last).count(), kMaxStep));
        last = now;
        deliver(core.takeOutgoing());
        saver.look(now);
    }
    saver.finish();
}

} // namespace controller

#pragma once

#include "controller/core.h"
#include "link/mailbox.h"

#include <future>
#include <map>
#include <mutex>
#include <thread>

namespace controller {

/// Where the controller's frames for one peer go. Called on the controller's thread; must return quickly and not call the
/// controller.
class PeerSink
{
public:
    virtual ~PeerSink() = default;
    virtual void opened() = 0;
    virtual void frameOut(std::string frame) = 0;
    /// The controller ended the way. With `true` as answer it is opened again at once.
    virtual bool closed() = 0;
    /// A frame of that many bytes from this peer was worked off.
    virtual void frameTaken(std::size_t bytes) { Q_UNUSED(bytes) }
};

/// The controller as a machine of its own: a thread that runs a Core in real time. All functions on any thread.
class Controller
{
public:
    explicit Controller(const StationOptions &options);
    /// Saves the state and ends the thread.
    ~Controller();
    Controller(const Controller &) = delete;
    Controller &operator=(const Controller &) = delete;

    /// What went wrong with the kept state; waits until it was read.
    QStringList reports() const { return start_.get().reports; }
    /// Whether state is kept from run to run; waits too.
    bool keepsState() const { return start_.get().keepsState; }

    Peer connect(PeerSink *sink);
    /// The sink is not called any more when this returns.
    void disconnect(Peer peer);
    void send(Peer peer, std::string frame);

private:
    struct Item
    {
        enum What { Came, Gone, Frame } what = Frame;
        Peer peer = -1;
        std::string frame;
    };
    struct Start
    {
        QStringList reports;
        bool keepsState;
    };

    void run(const StationOptions &options, std::promise<Start> ready);
    void handle(Core &core, Item &item);
    void deliver(std::vector<Outgoing> outgoing);
    template <class Call> void withSink(Peer peer, Call call);

    host::Mailbox<Item> inbox_;
    std::mutex sinksMutex_;
    std::map<Peer, PeerSink *> sinks_;
    Peer lastPeer_ = 0;
    std::shared_future<Start> start_;
    std::thread thread_;
};

} // namespace controller

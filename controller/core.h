#pragma once

#include "controller/station.h"
#include "link/frame.h"

#include <string>
#include <vector>

namespace controller {

/// One end of a way to the controller, as its carrier numbers it.
using Peer = int;

/// What the controller sends.
struct Outgoing
{
    Peer peer;
    std::string frame;  ///< empty: nothing but the closing
    bool close = false; ///< the way ends behind this frame
};

/// The controller's side of the link: frames in, frames out, and the time. Keeps the order of edits, numbers updates,
/// serves one panel at a time. See docs/controller-link.md. No threads, no clock.
class Core
{
public:
    static constexpr double kPingTime = 1;     ///< silence of its own, then a Ping [s]
    static constexpr double kSilenceTime = 10; ///< silence of the panel, then its way is broken [s]

    /// `session` tells one run of the controller from another; empty: one is made up.
    explicit Core(const StationOptions &options, const QString &session = QString());

    void peerCame(Peer peer);
    void peerGone(Peer peer);
    void receive(Peer peer, const std::string &frame);
    /// Real time that has passed.
    void advance(double seconds);
    std::vector<Outgoing> takeOutgoing();

    Station &station() { return station_; }

private:
    using Kind = host::LinkMessage::Kind;
    struct Visitor
    {
        Peer peer;
        double silence = 0; ///< seconds since the last sign of life
    };
    Visitor *visitor(Peer peer);
    bool isPanel(Peer peer) const { return peer == panel_ && panel_ != kNobody; }

    void greet(Peer peer, const host::LinkMessage &hello);
    void serve(Peer peer, const QString &session, std::uint64_t knows);
    void fromPanel(host::LinkMessage &message);
    void request(host::LinkMessage &message);
    void edit(host::LinkMessage &message);
    void losePanel();
    void drop(Peer peer);

    void send(Peer peer, host::LinkMessage message);
    void tell(host::LinkMessage message);
    void tellChanges();
    void ping();
    void fault(Peer peer, const char *name, const QString &text);

    static constexpr Peer kNobody = -1;
    Station station_;
    QString session_;      ///< of this run
    QString panelSession_; ///< of the panel served last
    Peer panel_ = kNobody;
    std::vector<Visitor> visitors_;
    std::uint64_t taken_ = 0;    ///< number of the last Write or Trigger
    std::uint64_t updates_ = 0;  ///< number of the last Update since the greeting
    std::uint64_t requests_ = 0; ///< worked off since the start, apart from "link.info"
    double sinceSent_ = 0;       ///< to the panel [s]
    std::vector<Outgoing> outgoing_;
};

} // namespace controller

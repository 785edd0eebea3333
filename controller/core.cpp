#include "controller/core.h"

#include "controller/texts.h"

#include <QUuid>

#include <algorithm>

namespace controller {

using host::LinkMessage;
using orba::Node;

namespace {

LinkMessage message(LinkMessage::Kind kind, const QString &name = QString(), const Node &payload = Node())
{
    LinkMessage made;
    made.kind = kind;
    made.name = name;
    made.payload = payload;
    return made;
}

} // namespace

Core::Core(const StationOptions &options, const QString &session)
    : station_(options),
      session_(session.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : session)
{
}

// ---------------------------------------------------------------- who is there

Core::Visitor *Core::visitor(Peer peer)
{
    const auto found =
        std::find_if(visitors_.begin(), visitors_.end(), [peer](const Visitor &v) { return v.peer == peer; });
    return found == visitors_.end() ? nullptr : &*found;
}

void Core::peerCame(Peer peer)
{
    visitors_.push_back({peer});
}

void Core::peerGone(Peer peer)
{
    visitors_.erase(
        std::remove_if(visitors_.begin(), visitors_.end(), [peer](const auto &v) { return v.peer == peer; }),
        visitors_.end());
    if (isPanel(peer))
        losePanel();
}

void Core::losePanel()
{
    panel_ = kNobody;
    station_.panelLost();
}

/// Closes the way of somebody who is not heard of any more, or who was followed by another.
void Core::drop(Peer peer)
{
    outgoing_.push_back({peer, std::string(), true});
    peerGone(peer);
}

void Core::greet(Peer peer, const LinkMessage &hello)
{
    const QString session = hello.payload.getString(u"session");
    if (hello.version != host::kLinkVersion)
        return fault(peer, host::fault::kVersion,
                     Texts::tr("The panel speaks version %1 of the link, the controller version %2.")
                         .arg(hello.version)
                         .arg(host::kLinkVersion));
    if (session.isEmpty())
        return fault(peer, host::fault::kFrame, Texts::tr("a Hello without a session"));
    if (panel_ != kNobody && !isPanel(peer) && session != panelSession_)
        return fault(peer, host::fault::kBusy, Texts::tr("serves another panel"));
    serve(peer, session, hello.knows);
}

void Core::serve(Peer peer, const QString &session, std::uint64_t knows)
{
    if (panel_ != kNobody && !isPanel(peer))
        drop(panel_); // the same panel on a new way
    taken_ = session == panelSession_ ? std::max(taken_, knows) : knows;
    panelSession_ = session;
    panel_ = peer;
    updates_ = 0;
    LinkMessage hello = message(Kind::Hello);
    hello.knows = taken_;
    hello.payload.ensure(u"session")->setString(session_);
    hello.payload.ensure(u"controller")->setString(station_.title());
    hello.payload.ensure(u"state")->assign(station_.mirror().tellAll());
    tell(std::move(hello));
    tellChanges();
}

// ---------------------------------------------------------------- what comes

void Core::receive(Peer peer, const std::string &frame)
{
    Visitor *from = visitor(peer);
    if (!from)
        return; // dropped already
    from->silence = 0;
    LinkMessage read;
    QString why;
    if (!host::decodeFrame(frame, &read, &why))
        return fault(peer, host::fault::kFrame, why);
    if (read.kind == Kind::Hello)
        return greet(peer, read);
    if (read.kind == Kind::Ping || read.kind == Kind::Error)
        return;
    if (!isPanel(peer))
        return fault(peer, host::fault::kFrame, Texts::tr("nothing is done before a Hello was accepted"));
    fromPanel(read);
}

void Core::fromPanel(LinkMessage &read)
{
    switch (read.kind) {
    case Kind::Request:
        return request(read);
    case Kind::Write:
    case Kind::Trigger:
        return edit(read);
    default:
        return fault(panel_, host::fault::kFrame,
                     Texts::tr("a panel sends no message of the kind %1").arg(static_cast<int>(read.kind)));
    }
}

void Core::request(LinkMessage &read)
{
    LinkMessage reply = message(Kind::Reply, read.name);
    reply.id = read.id;
    reply.knows = taken_;
    if (read.knows > taken_ && read.name != QLatin1String("motion.stop")) { // a stop waits for nothing
        reply.status = host::status::kBehind;
    } else if (read.name == QLatin1String("link.info")) {
        reply.payload.ensure(u"controller")->setString(station_.title());
        reply.payload.ensure(u"session")->setString(session_);
        reply.payload.ensure(u"taken")->setInt(static_cast<qint64>(taken_));
        reply.payload.ensure(u"requests")->setInt(static_cast<qint64>(requests_));
        reply.payload.ensure(u"version")->setInt(host::kLinkVersion);
    } else {
        ++requests_;
        Station::Answer answer = station_.request(read.name, read.payload);
        reply.status = answer.refusal.isEmpty() ? host::status::kDone : host::status::kRefused;
        reply.text = answer.refusal;
        reply.payload.take(answer.result);
        tellChanges(); // who waits for the answer finds the tree as it is then
    }
    tell(std::move(reply));
}

void Core::edit(LinkMessage &read)
{
    QString why;
    if (read.id == taken_ + 1) {
        ++taken_;
        const bool isDone = read.kind == Kind::Write ? station_.write(read.name, read.payload, &why)
                                                     : station_.trigger(read.name, &why);
        if (!isDone) // taken all the same: coming again would not make it better
            fault(panel_, host::fault::kFrame, why);
        tellChanges();
    }
    ping();
}

// ---------------------------------------------------------------- time

void Core::advance(double seconds)
{
    station_.advance(seconds);
    tellChanges();
    sinceSent_ += seconds;
    if (panel_ != kNobody && sinceSent_ >= kPingTime)
        ping();
    std::vector<Peer> silent;
    for (Visitor &from : visitors_) {
        from.silence += seconds;
        if (from.silence >= kSilenceTime)
            silent.push_back(from.peer);
    }
    for (const Peer peer : silent)
        drop(peer);
}

// ---------------------------------------------------------------- what goes

std::vector<Outgoing> Core::takeOutgoing()
{
    return std::exchange(outgoing_, {});
}

void Core::send(Peer peer, LinkMessage sent)
{
    QString why;
    std::string frame = host::encodeFrame(sent, &why);
    if (frame.empty() &&
        sent.kind == Kind::Reply) { // an answer too long to be sent is an answer all the same
        sent.status = host::status::kRefused;
        sent.text = why;
        sent.payload.reset(Node::Kind::Null);
        frame = host::encodeFrame(sent);
    }
    if (!frame.empty())
        outgoing_.push_back({peer, std::move(frame)});
}

void Core::tell(LinkMessage sent)
{
    if (panel_ == kNobody)
        return;
    sinceSent_ = 0;
    send(panel_, std::move(sent));
}

void Core::tellChanges()
{
    if (panel_ == kNobody)
        return; // it is told everything when it comes
    for (Mirror::Change &change : station_.mirror().takeChanges()) {
        LinkMessage update = message(Kind::Update, change.path);
        update.id = ++updates_;
        update.knows = taken_;
        update.payload.take(change.value);
        tell(std::move(update));
    }
    for (const Station::Event &event : station_.takeEvents())
        tell(message(Kind::Event, event.topic, event.value));
}

void Core::ping()
{
    LinkMessage sent = message(Kind::Ping);
    sent.id = updates_;
    sent.knows = taken_;
    tell(std::move(sent));
}

void Core::fault(Peer peer, const char *name, const QString &text)
{
    LinkMessage sent = message(Kind::Error, QString::fromLatin1(name));
    sent.text = text;
    send(peer, std::move(sent));
}

} // namespace controller

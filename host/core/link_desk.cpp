#include "core/link_desk.h"

#include <QCoreApplication>

namespace host {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(host::ControllerLink)
};

XReply failed(XReply::Status status, const QString &why)
{
    XReply reply;
    reply.status = status;
    reply.error = why;
    return reply;
}

struct Shared
{
    std::mutex mutex;
    std::shared_ptr<LinkDesk> desk;
};

Shared &sharedDesk()
{
    static Shared place;
    return place;
}

} // namespace

std::shared_ptr<LinkDesk> LinkDesk::shared()
{
    const std::lock_guard<std::mutex> lock(sharedDesk().mutex);
    return sharedDesk().desk;
}

void LinkDesk::share(std::shared_ptr<LinkDesk> desk)
{
    const std::lock_guard<std::mutex> lock(sharedDesk().mutex);
    sharedDesk().desk = std::move(desk);
}

void LinkDesk::frameArrived(std::string frame)
{
    LinkArrival arrival;
    if (!decodeFrame(frame, &arrival.message, &arrival.text))
        arrival.what = LinkArrival::What::Unreadable;
    else if (arrival.message.kind == LinkMessage::Kind::Reply &&
             replies.deliver(arrival.message.id, arrival.message))
        return;
    box.push(std::move(arrival));
}

void LinkDesk::wayChanged(bool open, const std::string &reason)
{
    if (!open) {
        isConnected = false;
        replies.breakAll();
    }
    LinkArrival arrival;
    arrival.what = open ? LinkArrival::What::WayOpen : LinkArrival::What::WayBroken;
    arrival.text = QString::fromStdString(reason);
    box.push(std::move(arrival));
}

void LinkDesk::noteOutcome(const QString &name, const XReply &reply)
{
    LinkArrival arrival;
    arrival.what = LinkArrival::What::RequestEnded;
    arrival.message.name = name;
    arrival.message.status = static_cast<int>(reply.status);
    arrival.text = reply.error;
    box.push(std::move(arrival));
}

std::string LinkDesk::requestFrame(const Question &question, std::uint64_t *id, QString *error)
{
    static const orba::Node nothing{};
    LinkMessage request;
    request.kind = LinkMessage::Kind::Request;
    request.id = *id = ++lastRequest_;
    request.knows = question.knows;
    request.name = question.name;
    return encodeFrame(request, question.payload ? *question.payload : nothing, error);
}

XReply LinkDesk::broken()
{
    return failed(XReply::Status::NotConnected,
                  Texts::tr("The link to the controller broke before it answered."));
}

XReply LinkDesk::late(int boundMs)
{
    return failed(XReply::Status::Timeout,
                  Texts::tr("The controller did not answer within %1 s.").arg(boundMs / 1000.0, 0, 'g', 3));
}

XReply LinkDesk::answer(LinkMessage &reply)
{
    if (reply.status != status::kDone)
        return failed(XReply::Status::Refused, reply.text);
    XReply result;
    result.status = XReply::Status::Ok;
    result.value.take(reply.payload);
    return result;
}

XReply LinkDesk::ask(const Question &question)
{
    using Board = ReplyBoard<LinkMessage>;
    const int bound = question.timeoutMs < 0 ? timeoutMs.load() : question.timeoutMs;
    const auto deadline = Board::Clock::now() + std::chrono::milliseconds(bound);
    const XReply none = failed(XReply::Status::NotConnected, Texts::tr("The controller is not connected."));
    if (!isConnected)
        return none;
    std::uint64_t id = 0;
    QString error;
    const std::string frame = requestFrame(question, &id, &error);
    if (frame.empty())
        return failed(XReply::Status::Refused, error);
    LinkMessage reply;
    Board::Outcome outcome;
    do {
        reply = LinkMessage();
        replies.expect(id);
        if (!way.send(frame)) {
            replies.forget(id);
            return none;
        }
        outcome = replies.wait(id, deadline, &reply);
        if (outcome == Board::Outcome::Came && reply.status == status::kBehind && question.sendEdits)
            question.sendEdits(reply.knows);
    } while (outcome == Board::Outcome::Came && reply.status == status::kBehind &&
             Board::Clock::now() < deadline);
    if (outcome == Board::Outcome::Came && reply.status != status::kBehind)
        return answer(reply);
    return outcome == Board::Outcome::Broken ? broken() : late(bound);
}

} // namespace host

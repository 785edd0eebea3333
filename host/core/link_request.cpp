// Requests of the panel: those that wait, on any thread, and commands that do not.

#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/link_desk.h"
#include "core/link_edits.h"

#include <QCoreApplication>
#include <QThread>

namespace host {

using orba::Node;

namespace {

bool isGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

} // namespace

XReply ControllerLink::ask(const QString &name, const Node &payload, int timeoutMs, bool isTold)
{
    const std::shared_ptr<LinkDesk> desk = LinkDesk::shared();
    if (!desk)
        return XReply{XReply::Status::NotConnected, Node(), tr("This panel has no link to a controller.")};
    LinkDesk::Question question;
    question.name = name;
    question.payload = &payload;
    question.timeoutMs = timeoutMs;
    ControllerLink *link = isGuiThread() ? current() : nullptr;
    if (link) {
        link->flushEdits();
        question.knows = link->edits_->last();
        question.sendEdits = [link](std::uint64_t taken) { link->sendMissing(taken); };
        link->spokeAt_ = link->clock_();
    }
    XReply reply = desk->ask(question);
    if (isTold && link)
        link->noteOutcome(name, reply.status, reply.error);
    else if (isTold)
        desk->noteOutcome(name, reply);
    return reply;
}

bool ControllerLink::command(const QString &name, const Node &payload)
{
    if (!isConnected())
        return false;
    flushEdits();
    LinkDesk::Question question;
    question.name = name;
    question.payload = &payload;
    question.knows = edits_->last();
    std::uint64_t id = 0;
    QString error;
    const std::string frame = desk_->requestFrame(question, &id, &error);
    if (frame.empty())
        noteOutcome(name, XReply::Status::Refused, error);
    if (frame.empty() || !desk_->way.send(frame))
        return false;
    spokeAt_ = clock_();
    commands_.insert(id, {name, clock_() + desk_->timeoutMs, frame});
    return true;
}

void ControllerLink::takeReply(const LinkMessage &reply)
{
    const auto command = commands_.find(reply.id);
    if (command == commands_.end()) {
        ++figures_.droppedReplies;
        return;
    }
    if (reply.status == status::kBehind) {
        sendMissing(reply.knows);
        desk_->way.send(command->frame);
        return;
    }
    const QString name = command->name;
    commands_.erase(command);
    noteOutcome(name, reply.status == status::kDone ? XReply::Status::Ok : XReply::Status::Refused,
                reply.text);
}

/// A request overtook the edits before it.
void ControllerLink::sendMissing(std::uint64_t taken)
{
    if (!noteTaken(taken)) // else more was sent; updates that came before the answer still wait, so nothing
                           // is forgotten
        resendEdits();
}

void ControllerLink::checkCommands(qint64 now)
{
    QStringList late;
    for (auto command = commands_.begin(); command != commands_.end();) {
        if (now < command->deadline) {
            ++command;
            continue;
        }
        late.append(command->name);
        command = commands_.erase(command);
    }
    for (const QString &name : qAsConst(late))
        noteOutcome(name, XReply::Status::Timeout, tr("The controller did not answer."));
}

void ControllerLink::noteOutcome(const QString &name, XReply::Status status, const QString &error)
{
    if (status == XReply::Status::Ok)
        failing_.remove(name);
    if (status == XReply::Status::Ok || status == XReply::Status::NotConnected || failing_.contains(name))
        return;
    failing_.insert(name);
    publishRecord(QStringLiteral("warning"),
                  tr("The controller did not carry out \"%1\": %2").arg(name, error));
}

} // namespace host

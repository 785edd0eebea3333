// Requests of the panel: those that wait, on any thread, and commands that do not.

#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/link_desk.h"
#include "core/link_edits.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

namespace host {

using orba::Node;

namespace {

bool isGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

/// Whether the edits before a request must be there first. Moves need none, and must not wait for one that got lost; so
/// none is repeated either, and a move that was stopped does not start again.
bool followsEdits(const QString &name)
{
    return !name.startsWith(QLatin1String("motion."));
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
    if (link && followsEdits(name)) {
        link->flushEdits();
        question.knows = link->edits_->last();
        question.sendEdits = [link](std::uint64_t taken) { link->sendMissing(taken); };
    }
    if (link)
        link->spokeAt_ = link->clock_();
    XReply reply = desk->ask(question);
    if (link)
        link->noteOutcome(name, reply, isTold);
    else if (isTold)
        desk->noteOutcome(name, reply);
    return reply;
}

bool ControllerLink::command(const QString &name, const Node &payload, Answered answered)
{
    if (!isConnected())
        return false;
    LinkDesk::Question question;
    question.name = name;
    question.payload = &payload;
    if (followsEdits(name)) {
        flushEdits();
        question.knows = edits_->last();
    }
    std::uint64_t id = 0;
    QString error;
    const std::string frame = desk_->requestFrame(question, &id, &error);
    if (frame.empty())
        noteOutcome(name, {XReply::Status::Refused, Node(), error}, true);
    if (frame.empty() || !desk_->way.send(frame))
        return false;
    spokeAt_ = clock_();
    commands_.insert(id, {name, clock_() + desk_->timeoutMs, frame, std::move(answered)});
    return true;
}

void ControllerLink::takeReply(LinkMessage &reply)
{
    const auto command = commands_.find(reply.id);
    if (command == commands_.end()) {
        ++figures_.droppedReplies;
        noteFault(&Faults::strayReplies,
                  tr("The controller answered a request too late or twice. The answer was dropped."));
        return;
    }
    if (reply.status == status::kBehind) {
        sendMissing(reply.knows);
        desk_->way.send(command->frame);
        return;
    }
    const Command ended = *command;
    commands_.erase(command);
    endCommand(ended, LinkDesk::answer(reply));
}

/// May end this link's commands anew: the caller holds no place in their table.
void ControllerLink::endCommand(const Command &command, const XReply &reply)
{
    if (!command.answered)
        return noteOutcome(command.name, reply, true);
    if (reply.status == XReply::Status::Timeout)
        noteFault(&Faults::unanswered);
    command.answered(reply);
    Q_EMIT xservice()->requestEnded(command.name, reply.isOk());
}

/// Nobody will hear of the commands that are under way.
void ControllerLink::breakCommands()
{
    for (const Command &command : std::exchange(commands_, {}))
        endCommand(command, LinkDesk::broken());
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
    QList<Command> late;
    for (auto command = commands_.begin(); command != commands_.end();) {
        if (now < command->deadline) {
            ++command;
            continue;
        }
        late.append(*command);
        command = commands_.erase(command);
    }
    for (const Command &command : qAsConst(late))
        endCommand(command, LinkDesk::late(desk_->timeoutMs));
}

/// `changes` tells a request that changes something from one that only asks: whoever asks deals with a refusal.
void ControllerLink::noteOutcome(const QString &name, const XReply &reply, bool changes)
{
    const bool isLate = reply.status == XReply::Status::Timeout;
    if (reply.isOk())
        failing_.remove(name);
    if (isLate)
        noteFault(&Faults::unanswered);
    if ((isLate || (changes && reply.status == XReply::Status::Refused)) && !failing_.contains(name)) {
        failing_.insert(name);
        publishRecord(QStringLiteral("warning"),
                      tr("The controller did not carry out \"%1\": %2").arg(name, reply.error));
    }
    if (changes)
        Q_EMIT xservice()->requestEnded(name, reply.isOk());
}

} // namespace host

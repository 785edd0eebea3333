// What the panel shows and records of a link that does not run as it should.

#include "core/controller_link.h"
#include "core/global_nodes.h"

#include <utility>

namespace host {

QString ControllerLink::stateName(LinkState state)
{
    switch (state) {
    case LinkState::Closed:
        return QStringLiteral("closed");
    case LinkState::Connecting:
        return QStringLiteral("connecting");
    case LinkState::Greeting:
        return QStringLiteral("greeting");
    case LinkState::Connected:
        return QStringLiteral("connected");
    case LinkState::Refused:
        break;
    }
    return QStringLiteral("refused");
}

/// Counts a fault; the record, if any, is made once per way: a bad line must not fill the log.
void ControllerLink::noteFault(int Faults::*kind, const QString &record)
{
    ++(faults_.*kind);
    lastFaultAt_ = clock_();
    showState();
    if (!record.isEmpty() && std::exchange(told_.*kind, 1) == 0)
        publishRecord(QStringLiteral("warning"), record);
}

void ControllerLink::forgetFaults()
{
    faults_ = Faults();
    lastFaultAt_ = 0;
    showState();
}

QString ControllerLink::faultsText() const
{
    QStringList texts;
    if (faults_.unreadable > 0)
        texts.append(tr("Messages that could not be read: %1.").arg(faults_.unreadable));
    if (faults_.strayReplies > 0)
        texts.append(tr("Answers that came late or twice: %1.").arg(faults_.strayReplies));
    if (faults_.unanswered > 0)
        texts.append(tr("Requests without an answer: %1.").arg(faults_.unanswered));
    return texts.join(QLatin1Char(' '));
}

} // namespace host

#pragma once

#include "orba/module_object.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <functional>

namespace host {
class ControllerLink;
}

/// The answer to a request.
struct PALX_API XReply
{
    enum class Status {
        Ok,           ///< the controller carried it out
        Refused,      ///< the controller said no; `error` says why
        Timeout,      ///< no answer in time
        NotConnected, ///< there is no link, or it broke before the answer
    };
    Status status = Status::NotConnected;
    orba::Node value; ///< what the controller returned; null when nothing
    QString error;    ///< for the operator, empty when all is well

    bool isOk() const { return status == Status::Ok; }
    /// The reply's integer. Without an answer -1, so that "negative means failure" holds for every outcome.
    int toInt() const { return isOk() ? static_cast<int>(value.toInt()) : -1; }
};

/// The panel's way to the robot controller: requests by name with a copy of a node as payload.
///
/// `get`, `set` and `execCommand` wait for the answer at most `timeoutMs` (negative: the setting
/// "rc_timeout", 1600 ms by default); `command` does not wait. `set` may be called on any thread with a
/// payload that no other thread changes meanwhile; everything else on the GUI thread. While a call waits, the
/// GUI thread handles no events.
///
/// Requests whose name begins with "motion." do not wait for the panel's edits before them: a robot that must stop stops.
///
/// A request that is not answered makes a log record, and so does one that is refused, except by a `get`: one per
/// name until that request succeeds again. Without a connection it makes none: the panel shows the state of the link
/// all the time.
class PALX_API XService : public QObject
{
    Q_OBJECT

public:
    XReply get(QObject *sender, const QString &name, int timeoutMs = -1);
    XReply set(QObject *sender, const QString &name, const orba::ModuleObject *payload, int timeoutMs = -1);
    XReply set(QObject *sender, const QString &name, const orba::Node &payload, int timeoutMs = -1);
    XReply execCommand(QObject *sender, const QString &name, const orba::ModuleObject *payload,
                       int timeoutMs = -1);
    /// Sends and returns; false when there is no way now.
    bool command(QObject *sender, const QString &name, const orba::ModuleObject *payload);
    /// The same, and `answered` gets the reply later, once, as long as `sender` lives: Timeout after the setting
    /// "rc_timeout", NotConnected when the way breaks before. The caller tells the operator; no record is made.
    bool command(QObject *sender, const QString &name, const orba::ModuleObject *payload,
                 std::function<void(const XReply &)> answered);
    /// Calls `told` on the GUI thread, as long as `context` lives, with every value the controller publishes
    /// by `name`.
    void watch(const QString &name, QObject *context, std::function<void(const orba::Node &)> told);

Q_SIGNALS:
    /// A request that changes something (`set`, `execCommand`, `command`) has ended, on whatever thread it was made.
    /// Sent on the GUI thread, from within the call when that waits: listeners take note and act later.
    void requestEnded(const QString &name, bool isOk);

private:
    friend PALX_API XService *xservice();
    friend class host::ControllerLink;
    XService() = default;
    void publish(const QString &name, const orba::Node &value);

    struct Watcher
    {
        QPointer<QObject> context;
        std::function<void(const orba::Node &)> told;
    };
    QHash<QString, QVector<Watcher>> watchers_;
};

PALX_API XService *xservice();

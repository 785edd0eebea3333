#pragma once

#include "controller/core.h"
#include "support/test_support.h"

#include <map>

/// A panel that a test plays, without threads: gives messages to a Core and keeps what comes back.
class CorePanel
{
public:
    using Message = host::LinkMessage;
    using Kind = host::LinkMessage::Kind;

    CorePanel(controller::Core *core, controller::Peer peer, QString session = QStringLiteral("panel-1"));

    /// Each of these takes what the controller sent before out of `received`.
    void sendFrame(const std::string &frame);
    void send(const Message &message);
    Message hello(std::uint64_t knows = 0); ///< the answer; the state is kept in `tree`
    Message request(const QString &name, const orba::Node &payload = orba::Node(), std::uint64_t knows = 0);
    void write(const QString &path, const orba::Node &value);
    void write(const QString &path, const QString &text);
    void trigger(const QString &path);
    /// Time passes in steps of 5 ms.
    void wait(double seconds);

    /// What came last; `kind` Error with the text "(nothing)" when nothing came.
    Message last() const;
    QStringList updatePaths() const;
    int count(Kind kind) const;

    std::vector<Message> received; ///< since the last call
    orba::Node tree;               ///< as a panel mirrors it
    std::uint64_t edits = 0;       ///< number of the last Write or Trigger
    std::uint64_t updates = 0;
    bool isClosed = false;

private:
    void collect();
    void mirror(const Message &message);

    controller::Core *core_;
    controller::Peer peer_;
    QString session_;
    std::uint64_t requests_ = 0;
};

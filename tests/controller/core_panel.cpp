#include "core_panel.h"

#include "link/path_write.h"

#include <gtest/gtest.h>

using orba::Node;

CorePanel::CorePanel(controller::Core *core, controller::Peer peer, QString session)
    : core_(core), peer_(peer), session_(std::move(session))
{
    core_->peerCame(peer_);
}

void CorePanel::collect()
{
    for (controller::Outgoing &out : core_->takeOutgoing()) {
        if (out.peer != peer_)
            continue;
        isClosed = isClosed || out.close;
        if (out.frame.empty())
            continue;
        Message message;
        QString why;
        ASSERT_TRUE(host::decodeFrame(out.frame, &message, &why)) << why;
        mirror(message);
        received.push_back(message);
    }
}

void CorePanel::mirror(const Message &message)
{
    if (message.kind == Kind::Hello) {
        tree = Node();
        updates = message.id;
        const Node *state = message.payload.find(u"state");
        for (int i = 0; i < state->size(); ++i)
            tree.ensure(state->at(i)->getString(u"path"))->assign(*state->at(i)->find(u"value"));
    } else if (message.kind == Kind::Update) {
        EXPECT_EQ(updates + 1, message.id);
        updates = message.id;
        Node value = message.payload;
        EXPECT_TRUE(host::applyWrite(tree, message.name, value)) << message.name;
    }
}

void CorePanel::sendFrame(const std::string &frame)
{
    received.clear();
    core_->receive(peer_, frame);
    collect();
}

void CorePanel::send(const Message &message)
{
    sendFrame(host::encodeFrame(message));
}

CorePanel::Message CorePanel::hello(std::uint64_t knows)
{
    Message message;
    message.kind = Kind::Hello;
    message.knows = knows;
    message.payload.ensure(u"session")->setString(session_);
    send(message);
    return last();
}

CorePanel::Message CorePanel::request(const QString &name, const Node &payload, std::uint64_t knows)
{
    Message message;
    message.kind = Kind::Request;
    message.id = ++requests_;
    message.name = name;
    message.knows = knows;
    message.payload = payload;
    send(message);
    const Message reply = last();
    EXPECT_EQ(Kind::Reply, reply.kind);
    EXPECT_EQ(requests_, reply.id);
    return reply;
}

void CorePanel::write(const QString &path, const Node &value)
{
    Message message;
    message.kind = Kind::Write;
    message.id = ++edits;
    message.name = path;
    message.payload = value;
    Node copy = value;
    host::applyWrite(tree, path, copy);
    send(message);
}

void CorePanel::write(const QString &path, const QString &text)
{
    Node value;
    value.setString(text);
    write(path, value);
}

void CorePanel::trigger(const QString &path)
{
    Message message;
    message.kind = Kind::Trigger;
    message.id = ++edits;
    message.name = path;
    send(message);
}

void CorePanel::wait(double seconds)
{
    received.clear();
    for (double t = 0; t < seconds - 1e-9; t += 0.005) {
        core_->advance(0.005);
        collect();
    }
}

CorePanel::Message CorePanel::last() const
{
    Message nothing;
    nothing.kind = Kind::Error;
    nothing.text = QStringLiteral("(nothing)");
    return received.empty() ? nothing : received.back();
}

QStringList CorePanel::updatePaths() const
{
    QStringList paths;
    for (const Message &message : received)
        if (message.kind == Kind::Update)
            paths.append(message.name);
    return paths;
}

int CorePanel::count(Kind kind) const
{
    int n = 0;
    for (const Message &message : received)
        n += message.kind == kind ? 1 : 0;
    return n;
}

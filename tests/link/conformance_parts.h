#pragma once

// A controller, and a panel made by hand, for the tests of what every way between the two must do.

#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "link/frame.h"
#include "link/mailbox.h"
#include "support/test_support.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace conformance {

using host::LinkMessage;
using Kind = LinkMessage::Kind;

constexpr int kBoundMs = 10000; // only reached when something is wrong

/// A controller and its ways, with a data folder of its own.
class Side
{
public:
    virtual ~Side() = default;
    /// One more way to the same controller.
    virtual std::unique_ptr<host::Carrier> carrier() = 0;
    /// One without faults.
    virtual std::unique_ptr<host::Carrier> soundCarrier() { return carrier(); }
    /// Mends what a fault left broken, as an operator who puts a plug back.
    virtual void mend() {}
    /// The controller ends, saves what it keeps, and starts again. Ways to a controller in another process
    /// break and find the new one; those in this process are closed before.
    virtual void restart() = 0;
};

struct Way
{
    const char *name;
    std::function<std::unique_ptr<Side>()> make;
    bool isStream; ///< bytes that are no frame end the way, because nobody knows where the next one begins
};

/// A panel made by hand, which can do everything wrong.
class RawPanel : public host::CarrierSink
{
public:
    explicit RawPanel(std::unique_ptr<host::Carrier> carrier) : carrier_(std::move(carrier))
    {
        carrier_->open(this);
    }
    ~RawPanel() override { carrier_->close(); }

    bool send(const LinkMessage &message) { return sendBytes(host::encodeFrame(message)); }
    bool sendBytes(const std::string &bytes)
    {
        waitForWay();
        return carrier_->send(bytes);
    }
    void waitForWay()
    {
        Item item;
        while (!isOpen_ && items_.popUntil(&item, deadline()))
            take(item);
    }
    /// The next message of that kind.
    LinkMessage next(Kind kind)
    {
        Item item;
        while (items_.popUntil(&item, deadline())) {
            take(item);
            if (item.isFrame && item.message.kind == kind)
                return item.message;
        }
        ADD_FAILURE() << "no message of kind " << static_cast<int>(kind) << " came";
        return LinkMessage();
    }
    /// Everything up to and with the next message of that kind.
    std::vector<LinkMessage> upTo(Kind kind)
    {
        std::vector<LinkMessage> messages;
        Item item;
        while (items_.popUntil(&item, deadline())) {
            take(item);
            if (item.isFrame)
                messages.push_back(item.message);
            if (item.isFrame && item.message.kind == kind)
                return messages;
        }
        ADD_FAILURE() << "no message of kind " << static_cast<int>(kind) << " came";
        return messages;
    }
    /// Whether the way ended, which is only waited for where it must.
    bool hasEnded(bool isExpected)
    {
        Item item;
        while (!isExpected && items_.tryPop(&item)) {
            take(item);
            if (!isOpen_)
                return true;
        }
        if (!isExpected)
            return false;
        while (items_.popUntil(&item, deadline())) {
            take(item);
            if (!item.isFrame && !item.isOpen)
                return true;
        }
        return false;
    }

    LinkMessage greet(const char *session, std::uint64_t knows = 0)
    {
        LinkMessage hello;
        hello.kind = Kind::Hello;
        hello.knows = knows;
        hello.payload.ensure(u"session")->setString(QString::fromLatin1(session));
        EXPECT_TRUE(send(hello));
        return next(Kind::Hello);
    }
    /// The answer to a request.
    LinkMessage ask(const char *name, const char *json = "null", std::uint64_t knows = 0)
    {
        LinkMessage request;
        request.kind = Kind::Request;
        request.id = ++lastRequest_;
        request.knows = knows;
        request.name = QString::fromLatin1(name);
        request.payload = nodeFromJson(json);
        EXPECT_TRUE(send(request));
        LinkMessage reply = next(Kind::Reply);
        EXPECT_EQ(reply.id, request.id);
        return reply;
    }
    void write(std::uint64_t number, const char *path, const char *json)
    {
        LinkMessage edit;
        edit.kind = Kind::Write;
        edit.id = number;
        edit.name = QString::fromLatin1(path);
        edit.payload = nodeFromJson(json);
        EXPECT_TRUE(send(edit));
    }
    /// Writes, and returns which edit the controller had taken last then.
    std::uint64_t taken(std::uint64_t number, const char *path, const char *json)
    {
        write(number, path, json);
        return next(Kind::Ping).knows;
    }

private:
    struct Item
    {
        bool isFrame = false;
        bool isOpen = false;
        LinkMessage message;
    };
    static host::Mailbox<Item>::Clock::time_point deadline()
    {
        return host::Mailbox<Item>::Clock::now() + std::chrono::milliseconds(kBoundMs);
    }
    void take(const Item &item)
    {
        if (!item.isFrame)
            isOpen_ = item.isOpen;
    }
    void frameArrived(std::string frame) override
    {
        Item item;
        item.isFrame = true;
        QString error;
        EXPECT_TRUE(host::decodeFrame(frame, &item.message, &error)) << error;
        items_.push(std::move(item));
    }
    void wayChanged(bool open, const std::string &) override
    {
        Item item;
        item.isOpen = open;
        items_.push(std::move(item));
    }

    host::Mailbox<Item> items_;
    std::unique_ptr<host::Carrier> carrier_;
    bool isOpen_ = false;
    std::uint64_t lastRequest_ = 0;
};

/// A value of the state that a Hello told.
inline orba::Node stateAt(const LinkMessage &hello, const char *top, const char *below = "")
{
    const orba::Node *state = hello.payload.child(u"state");
    for (int i = 0; state && i < state->size(); ++i)
        if (state->at(i)->getString(u"path") == QLatin1String(top)) {
            const orba::Node *node = state->at(i)->child(u"value")->find(QString::fromLatin1(below));
            return node ? *node : orba::Node();
        }
    return orba::Node();
}

/// A recipe with so many products, as a controller accepts it.
inline orba::Node recipe(const char *name, int products)
{
    static const orba::Node point =
        nodeFromJson(R"({"trans": [0.8125, -0.25, 0.3], "rot": [0.0, 0.0, 1.5707963267948966],
                         "near": [0.0, 0.0, 0.0, 0.0, 0.0, 0.0], "conf": [0, 0, 0, 0, 0, 0, 0, 0]})");
    orba::Node node;
    node.ensure(u"name")->setString(QString::fromLatin1(name));
    node.ensure(u"desc")->setString(QString());
    node.ensure(u"layers")->reset(orba::Node::Kind::List);
    orba::Node *layer = node.ensure(u"points.put")->add();
    for (int i = 0; i < products; ++i) {
        orba::Node *product = layer->add();
        for (const char16_t *key : {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"})
            product->ensure(key)->assign(point);
    }
    return node;
}

inline std::string conformanceName(const ::testing::TestParamInfo<Way> &info)
{
    return info.param.name;
}

} // namespace conformance

#pragma once

#include "link/carrier.h"
#include "link/frame.h"
#include "link/mailbox.h"

#include <gtest/gtest.h>

#include <memory>

/// A panel made by hand, without an event loop: what its carrier brings waits in a mailbox.
class RawPanel : public host::CarrierSink
{
public:
    using Message = host::LinkMessage;
    using Kind = host::LinkMessage::Kind;

    explicit RawPanel(std::unique_ptr<host::Carrier> carrier) : carrier_(std::move(carrier))
    {
        carrier_->open(this);
    }
    ~RawPanel() override { carrier_->close(); }

    /// What came next: a message, or the way's opening or end.
    struct Arrival
    {
        bool isFrame = false;
        bool isOpen = false;
        std::string text; ///< the frame, or the reason
    };
    /// False when nothing came within the bound, which fails the test.
    bool next(Arrival *arrival)
    {
        const bool isThere =
            arrivals_.popUntil(arrival, host::Mailbox<Arrival>::Clock::now() + std::chrono::seconds(20));
        EXPECT_TRUE(isThere) << "nothing came";
        if (isThere && !arrival->isFrame)
            isOpen_ = arrival->isOpen;
        return isThere;
    }
    bool waitForWay(bool open)
    {
        Arrival arrival;
        while (isOpen_ != open && next(&arrival))
            continue;
        return isOpen_ == open;
    }
    /// The next message of that kind; others are passed over.
    Message nextOf(Kind kind)
    {
        Arrival arrival;
        while (next(&arrival)) {
            Message message;
            if (arrival.isFrame && host::decodeFrame(arrival.text, &message) && message.kind == kind)
                return message;
        }
        return Message();
    }
    bool send(const Message &message) { return carrier_->send(host::encodeFrame(message)); }
    /// Once the way is there.
    Message greet(const QString &session)
    {
        Message hello;
        hello.kind = Kind::Hello;
        hello.payload.ensure(u"session")->setString(session);
        EXPECT_TRUE(waitForWay(true) && send(hello));
        return nextOf(Kind::Hello);
    }
    /// Without waiting for the answer.
    bool request(std::uint64_t id, const QString &name, const orba::Node &payload = orba::Node())
    {
        Message request;
        request.kind = Kind::Request;
        request.id = id;
        request.name = name;
        return carrier_->send(host::encodeFrame(request, payload));
    }
    Message ask(const QString &name, const orba::Node &payload = orba::Node())
    {
        EXPECT_TRUE(request(++requests_, name, payload));
        const Message reply = nextOf(Kind::Reply);
        EXPECT_EQ(requests_, reply.id) << "each request is answered once, in order";
        return reply;
    }

private:
    void frameArrived(std::string frame) override { arrivals_.push({true, true, std::move(frame)}); }
    void wayChanged(bool open, const std::string &reason) override { arrivals_.push({false, open, reason}); }

    host::Mailbox<Arrival> arrivals_;
    std::unique_ptr<host::Carrier> carrier_;
    bool isOpen_ = false;
    std::uint64_t requests_ = 0;
};

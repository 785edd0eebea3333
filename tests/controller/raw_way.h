#pragma once

#include "link/carrier.h"
#include "link/frame.h"
#include "link/mailbox.h"

#include <gtest/gtest.h>

#include <memory>

/// The panel's end of a way, without an event loop: what the carrier brings waits in a mailbox.
class RawWay : public host::CarrierSink
{
public:
    using Message = host::LinkMessage;
    using Kind = host::LinkMessage::Kind;

    explicit RawWay(std::unique_ptr<host::Carrier> carrier) : carrier_(std::move(carrier))
    {
        carrier_->open(this);
    }
    ~RawWay() override { carrier_->close(); }

    host::Carrier *carrier() { return carrier_.get(); }

    /// What came next: a frame, or the way's opening or end.
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
        return isThere;
    }
    bool waitForWay(bool open)
    {
        Arrival arrival;
        while (next(&arrival))
            if (!arrival.isFrame && arrival.isOpen == open)
                return true;
        return false;
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
    Message greet(const QString &session)
    {
        Message hello;
        hello.kind = Kind::Hello;
        hello.payload.ensure(u"session")->setString(session);
        EXPECT_TRUE(send(hello));
        return nextOf(Kind::Hello);
    }
    Message ask(const QString &name, const orba::Node &payload = orba::Node())
    {
        Message request;
        request.kind = Kind::Request;
        request.id = ++requests_;
        request.name = name;
        EXPECT_TRUE(carrier_->send(host::encodeFrame(request, payload)));
        const Message reply = nextOf(Kind::Reply);
        EXPECT_EQ(request.id, reply.id) << "each request is answered once, in order";
        return reply;
    }

private:
    void frameArrived(std::string frame) override { arrivals_.push({true, true, std::move(frame)}); }
    void wayChanged(bool open, const std::string &reason) override { arrivals_.push({false, open, reason}); }

    host::Mailbox<Arrival> arrivals_;
    std::unique_ptr<host::Carrier> carrier_;
    std::uint64_t requests_ = 0;
};

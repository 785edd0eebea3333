// Requests: what comes back, when, and what is dropped.

#include "fake_controller.h"

#include "link/mailbox.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

using host::LinkMessage;
using Kind = LinkMessage::Kind;
using Status = XReply::Status;

namespace {

LinkMessage replyTo(const LinkMessage &request, const char *json)
{
    LinkMessage reply;
    reply.kind = Kind::Reply;
    reply.id = request.id;
    reply.payload = nodeFromJson(json);
    return reply;
}

orba::Node stack()
{
    return nodeFromJson(R"({"name": "A", "points": [0.5, 1.0]})");
}

} // namespace

TEST_F(LinkTest, ARequestCarriesACopyAndBringsTheReply)
{
    connectLink();
    int status = host::status::kDone;
    onRequest([this, &status](const LinkMessage &message) {
        LinkMessage reply = replyTo(message, "-3");
        reply.status = status;
        reply.text = QStringLiteral("\"sys.toolset\" is no request");
        controller.send(reply);
    });
    orba::ModuleObject payload;
    payload.copyFrom(stack());
    XReply reply = xservice()->set(nullptr, QStringLiteral("sys.toolset"), &payload);
    EXPECT_TRUE(reply.isOk());
    EXPECT_EQ(reply.toInt(), -3);
    EXPECT_EQ(controller.seen.back().name, QStringLiteral("sys.toolset"));
    EXPECT_EQ(controller.seen.back().payload, stack());
    status = host::status::kRefused;
    reply = xservice()->execCommand(nullptr, QStringLiteral("sys.toolset"), nullptr);
    EXPECT_EQ(reply.status, Status::Refused);
    EXPECT_EQ(reply.error, QStringLiteral("\"sys.toolset\" is no request"));
    EXPECT_EQ(reply.toInt(), -1);
}

TEST_F(LinkTest, WithoutALinkOrConnectionNothingIsSent)
{
    EXPECT_EQ(xservice()->get(nullptr, QStringLiteral("link.info")).status, Status::NotConnected);
    controller.opensAtOnce = false;
    openLink();
    EXPECT_EQ(xservice()->set(nullptr, QStringLiteral("pallet.data"), stack()).status, Status::NotConnected);
    EXPECT_FALSE(xservice()->command(nullptr, QStringLiteral("motion.stop"), nullptr));
    EXPECT_TRUE(controller.seen.empty());
    EXPECT_EQ(takeRecords(), QStringList()); // the state of the link says it already
}

TEST_F(LinkTest, APayloadWithoutAFormIsRefusedHere)
{
    connectLink();
    orba::Node payload;
    payload.ensure(u"trans.x")->setDouble(std::numeric_limits<double>::infinity());
    const XReply reply = xservice()->set(nullptr, QStringLiteral("pallet.data"), payload);
    EXPECT_EQ(reply.status, Status::Refused);
    EXPECT_TRUE(reply.error.contains(QStringLiteral("trans.x"))) << reply.error;
    EXPECT_EQ(controller.count(Kind::Request), 0);
}

TEST_F(LinkTest, NoAnswerEndsAfterTheCallersTimeAndIsRecordedOnce)
{
    connectLink();
    controller.answers = false;
    const QString push = QStringLiteral("pallet.set.one");
    const XReply reply = xservice()->execCommand(nullptr, push, nullptr, 30);
    EXPECT_EQ(reply.status, Status::Timeout);
    EXPECT_TRUE(reply.error.contains(QStringLiteral("0.03 s"))) << reply.error;
    EXPECT_EQ(xservice()->execCommand(nullptr, push, nullptr, 0).status, Status::Timeout);
    EXPECT_EQ(takeRecords().size(), 1);
}

TEST_F(LinkTest, ALateReplyIsNotTakenForTheNextRequest)
{
    connectLink();
    controller.answers = false;
    EXPECT_EQ(xservice()->get(nullptr, QStringLiteral("pallet.get.list"), 0).status, Status::Timeout);
    const LinkMessage first = controller.seen.back();
    onRequest([&](const LinkMessage &message) {
        controller.send(replyTo(first, "\"late\""));
        controller.send(replyTo(message, "\"right\""));
        controller.send(replyTo(message, "\"double\""));
    });
    EXPECT_EQ(xservice()->get(nullptr, QStringLiteral("link.info")).value.toString(),
              QStringLiteral("right"));
    settle();
    EXPECT_EQ(link->figures().droppedReplies, 2);
}

TEST_F(LinkTest, ALinkThatBreaksEndsTheWaitAtOnce)
{
    connectLink();
    onRequest([this](const LinkMessage &) { controller.breakWay("pulled"); });
    const XReply reply = xservice()->set(nullptr, QStringLiteral("pallet.data"), stack(), 600000);
    EXPECT_EQ(reply.status, Status::NotConnected);
}

TEST_F(LinkTest, ACommandMayBeToldItsAnswer)
{
    connectLink();
    controller.answers = false;
    auto caller = std::make_unique<QObject>();
    QStringList told;
    const auto send = [&] {
        return xservice()->command(caller.get(), QStringLiteral("motion.check"), nullptr,
                                   [&told](const XReply &reply) {
                                       told.append(QStringLiteral("%1 %2 %3")
                                                       .arg(int(reply.status))
                                                       .arg(reply.value.toInt())
                                                       .arg(reply.error));
                                   });
    };
    const auto answer = [this](int status, const char *text) {
        LinkMessage reply = replyTo(controller.seen.back(), "7");
        reply.status = status;
        reply.text = QLatin1String(text);
        controller.send(reply);
    };
    const struct
    {
        std::function<void()> happens;
        const char *told;
    } cases[] = {
        {[&] { answer(host::status::kDone, ""); }, "0 7 "},
        {[&] { answer(host::status::kRefused, "out of reach"); }, "1 0 out of reach"},
        {[&] { pass(1600); }, "2 0 The controller did not answer within 1.6 s."},
        {[&] { controller.breakWay("pulled"); }, "3 0 The link to the controller broke before it answered."},
    };
    for (const auto &each : cases) {
        EXPECT_TRUE(send());
        each.happens();
        EXPECT_TRUE(told.isEmpty() || &each == cases + 2) << "not within the call";
        settle();
        EXPECT_EQ(told, QStringList(QLatin1String(each.told)));
        told.clear();
    }
    controller.openWay();
    settle();
    EXPECT_TRUE(send());
    caller.reset();
    answer(host::status::kDone, "");
    settle();
    EXPECT_EQ(told, QStringList()) << "nobody is told when he has ended";
}

TEST_F(LinkTest, AMoveDoesNotWaitForEdits)
{
    connectLink();
    controller.losesFrames = 1;
    m("quill.project")->set(nullptr, "autoload_prj_path", QStringLiteral("lost on the way"));
    rest();
    EXPECT_TRUE(xservice()->command(nullptr, QStringLiteral("motion.stop"), nullptr));
    EXPECT_EQ(controller.seen.back().name, QStringLiteral("motion.stop"));
    EXPECT_TRUE(xservice()->execCommand(nullptr, QStringLiteral("motion.start"), nullptr).isOk());
    EXPECT_EQ(controller.seen.back().knows, 0U);
    EXPECT_EQ(controller.count(Kind::Request), 2) << "and is not sent again";
    EXPECT_EQ(controller.edits, QStringList());
    EXPECT_TRUE(xservice()->execCommand(nullptr, QStringLiteral("pallet.set.one"), nullptr).isOk());
    EXPECT_EQ(controller.edits.size(), 1) << "others bring the edits before them";
}

TEST_F(LinkTest, AThreadThatWaitsOutlivesTheLink)
{
    connectLink();
    host::Mailbox<int> asked;
    onRequest([&asked](const LinkMessage &) { asked.push(1); });
    XReply reply;
    std::thread worker(
        [&reply] { reply = xservice()->set(nullptr, QStringLiteral("pallet.data"), stack(), 600000); });
    int got = 0;
    asked.pop(&got);
    link.reset();
    worker.join();
    EXPECT_EQ(reply.status, Status::NotConnected);
}

// What the operator sees of a link that does not run as it should: the state's name, the faults, one record each.

#include "fake_controller.h"

#include <gtest/gtest.h>

using host::ControllerLink;
using host::LinkMessage;
using Kind = LinkMessage::Kind;

namespace {

class FaultTest : public LinkTest
{
protected:
    static QString shown(const char *key) { return m("nexo.r")->getString(key); }
    void ask(int timeoutMs)
    {
        xservice()->get(nullptr, QStringLiteral("pallet.get.list"), timeoutMs);
        settle();
    }
    void answerTwice()
    {
        controller.onMessage = [this](const LinkMessage &message) {
            if (message.kind != Kind::Request)
                return false;
            LinkMessage reply;
            reply.kind = Kind::Reply;
            reply.id = message.id;
            controller.send(reply);
            controller.send(reply);
            return true;
        };
    }
    void refuseBy(const char *fault)
    {
        controller.onMessage = [this, fault](const LinkMessage &message) {
            LinkMessage error;
            error.kind = Kind::Error;
            error.name = QLatin1String(fault);
            error.text = QStringLiteral("no");
            if (message.kind == Kind::Hello)
                controller.send(error);
            return true;
        };
    }
};

} // namespace

TEST_F(FaultTest, TheStateHasAName)
{
    EXPECT_EQ(shown("state"), QStringLiteral("closed"));
    controller.opensAtOnce = false;
    openLink();
    EXPECT_EQ(shown("state"), QStringLiteral("connecting"));
    controller.greets = false;
    controller.openWay();
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("greeting"));
    controller.hello(0);
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("connected"));
    EXPECT_EQ(shown("faults"), QString());
    link->close();
    EXPECT_EQ(shown("state"), QStringLiteral("closed"));
}

TEST_F(FaultTest, ARefusalIsShownAndRecordedWithItsWayOut)
{
    const struct
    {
        const char *fault, *text;
    } cases[] = {{host::fault::kBusy, "serves another panel"},
                 {host::fault::kVersion, "Update the older one"}};
    for (const auto &each : cases) {
        refuseBy(each.fault);
        openLink();
        EXPECT_EQ(shown("state"), QStringLiteral("refused"));
        EXPECT_TRUE(shown("link").contains(QLatin1String(each.text))) << shown("link");
        EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("error: ") + shown("link")));
        link.reset();
        keeper.reset();
    }
}

TEST_F(FaultTest, EachKindOfTroubleIsShownAndRecordedOnce)
{
    const struct
    {
        const char *name;
        std::function<void()> happens;
        const char *shown, *record;
    } cases[] = {
        {"nonsense", [this] { controller.sendBytes("nonsense"); }, "Messages that could not be read: 2.",
         "cannot be read and was left out"},
        {"twice",
         [this] {
             answerTwice();
             ask(-1);
         },
         "Answers that came late or twice: 2.", "too late or twice"},
        {"never",
         [this] {
             controller.onMessage = nullptr;
             controller.answers = false;
             ask(0);
         },
         "Requests without an answer: 2.", "did not answer"},
    };
    for (const auto &each : cases) {
        connectLink();
        for (int i = 0; i < 2; ++i)
            each.happens();
        settle();
        EXPECT_EQ(shown("faults"), QLatin1String(each.shown)) << each.name;
        EXPECT_TRUE(link->isConnected()) << each.name;
        const QStringList records = takeRecords();
        ASSERT_EQ(records.size(), 1) << each.name << records.join(QLatin1Char('|'));
        EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: "))) << records[0];
        EXPECT_TRUE(records[0].contains(QLatin1String(each.record))) << records[0];
        link.reset();
        keeper.reset();
    }
}

TEST_F(FaultTest, AfterACalmTimeFaultsAreNoLongerShown)
{
    connectLink();
    controller.sendBytes("nonsense");
    settle();
    const auto live = [this](int ms) {
        for (; ms > 0; ms -= 1000) {
            controller.ping();
            pass(std::min(ms, 1000));
        }
    };
    live(ControllerLink::kFaultShownMs - 1);
    EXPECT_FALSE(shown("faults").isEmpty());
    live(1);
    EXPECT_EQ(shown("faults"), QString());
    EXPECT_TRUE(link->isConnected());
    controller.sendBytes("nonsense");
    settle();
    EXPECT_EQ(shown("faults"), QStringLiteral("Messages that could not be read: 1."));
}

TEST_F(FaultTest, TheControllerCannotWriteWhatThePanelShowsOfTheLink)
{
    connectLink();
    controller.update("nexo.r.state", "\"refused\"");
    controller.update("nexo.r.faults", "\"none\"");
    controller.update("nexo.r", R"({"state": "refused", "faults": "none", "name": "Cell 5"})");
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("connected"));
    EXPECT_EQ(shown("faults"), QStringLiteral("Messages that could not be read: 2."));
    EXPECT_EQ(shown("name"), QStringLiteral("Cell 5"));
}

// The state of the link: greeting, loss, refusal, silence, nonsense; and what the operator sees of it, one record each.

#include "fake_controller.h"

#include "nexo/controller_manager.h"

#include <QSignalSpy>

using host::ControllerLink;
using host::LinkMessage;
using host::LinkState;
using Kind = LinkMessage::Kind;

namespace {

QString shown(const char *key)
{
    return m("nexo.r")->getString(key);
}

LinkMessage errorOf(const char *fault, const char *text = "no")
{
    LinkMessage error;
    error.kind = Kind::Error;
    error.name = QLatin1String(fault);
    error.text = QLatin1String(text);
    return error;
}

} // namespace

TEST_F(LinkTest, ShowsTheControllerOnceItHasGreeted)
{
    QSignalSpy told(nexo::ControllerManager::instance(), &nexo::ControllerManager::rcConnectedChanged);
    EXPECT_EQ(shown("state"), QStringLiteral("closed"));
    controller.opensAtOnce = false;
    openLink();
    EXPECT_EQ(shown("state"), QStringLiteral("connecting"));
    controller.greets = false;
    controller.openWay();
    controller.update("quill.body.toolset", "\"A\"");
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("greeting"));
    EXPECT_EQ(m("quill.body.toolset")->getString(), QString()) << "nothing is mirrored yet";
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    controller.hello(0);
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("connected"));
    EXPECT_TRUE(nexo::ControllerManager::instance()->rcConnected());
    EXPECT_TRUE(m("nexo.r")->getBool("connected"));
    EXPECT_EQ(shown("id"), QStringLiteral("R7"));
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(takeRecords(), QStringList("info: Controller Cell 4 connected, software 2.3.1, robot R7."));
    EXPECT_EQ(shown("link"), link->stateText());
    link.reset();
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    EXPECT_EQ(ControllerLink::current(), nullptr);
}

TEST_F(LinkTest, GreetsAgainUntilItIsAnswered)
{
    controller.losesFrames = 3;
    openLink();
    for (int i = 0; i < 3; ++i) {
        pass(ControllerLink::kGreetMs - 1);
        EXPECT_EQ(controller.count(Kind::Hello), 0);
        pass(1);
    }
    EXPECT_EQ(controller.count(Kind::Hello), 1);
    EXPECT_TRUE(link->isConnected());
    pass(10 * ControllerLink::kGreetMs / 3);
    EXPECT_EQ(controller.count(Kind::Hello), 1);
}

TEST_F(LinkTest, TellsALostLinkOnceAndItsReturn)
{
    connectLink();
    controller.breakWay("the other side closed the connection");
    settle();
    EXPECT_EQ(link->state(), LinkState::Connecting);
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    EXPECT_TRUE(shown("link").contains(QStringLiteral("the other side closed the connection")))
        << shown("link");
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("warning: ") + shown("link")));
    for (int i = 0; i < 3; ++i)
        controller.breakWay("nobody listens at 127.0.0.1:7001");
    settle();
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("warning: ") + shown("link"))) << "told once";
    controller.openWay();
    settle();
    EXPECT_TRUE(link->isConnected());
    EXPECT_EQ(takeRecords().size(), 1);
    EXPECT_EQ(shown("id"), QStringLiteral("R7"));
}

TEST_F(LinkTest, WaitsForTheFirstStateAndNoLonger)
{
    keeper = std::make_unique<host::LogKeeper>();
    link = std::make_unique<ControllerLink>(controller.carrier());
    link->open();
    EXPECT_TRUE(link->waitForState(5000));
    EXPECT_EQ(shown("id"), QStringLiteral("R7"));
    link->close();
    controller.opensAtOnce = false;
    link->open();
    controller.breakWay("nobody is there");
    EXPECT_FALSE(link->waitForState(600000)); // which would be ten minutes
    controller.openWay();
    EXPECT_TRUE(link->waitForState(600000));
}

TEST_F(LinkTest, AnotherVersionIsRefusedOnEitherSide)
{
    LinkMessage hello;
    hello.kind = Kind::Hello;
    hello.version = 3;
    for (const LinkMessage &answer : {hello, errorOf(host::fault::kVersion, "version 1 is not version 3")}) {
        controller.seen.clear();
        controller.onMessage = [&](const LinkMessage &message) {
            if (message.kind == Kind::Hello)
                controller.send(answer);
            return true;
        };
        openLink();
        EXPECT_EQ(shown("state"), QStringLiteral("refused"));
        for (const char *part : {"version 3", "version 1", "Update the older one"})
            EXPECT_TRUE(shown("link").contains(QLatin1String(part))) << shown("link");
        EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("error: ") + shown("link")));
        pass(60000);
        EXPECT_EQ(controller.count(Kind::Hello), 1) << "asking again changes nothing";
        controller.onMessage = nullptr;
        controller.breakWay("restarted"); // with the right version
        controller.openWay();
        settle();
        EXPECT_TRUE(link->isConnected());
        takeRecords();
        link.reset();
        keeper.reset();
    }
}

TEST_F(LinkTest, ASecondPanelAsksUntilTheFirstHasGone)
{
    controller.greets = false;
    openLink();
    for (int i = 0; i < 3; ++i) {
        controller.send(errorOf(host::fault::kBusy));
        settle();
        EXPECT_EQ(link->state(), LinkState::Refused);
        EXPECT_TRUE(link->stateText().contains(QStringLiteral("another panel"))) << link->stateText();
        const int greetings = controller.count(Kind::Hello);
        pass(ControllerLink::kBusyMs - 1);
        EXPECT_EQ(controller.count(Kind::Hello), greetings);
        pass(1);
        EXPECT_EQ(controller.count(Kind::Hello), greetings + 1);
    }
    for (int i = 0; i < 2; ++i) { // a refusal that ends the way keeps its reason
        controller.send(errorOf(host::fault::kBusy));
        controller.breakWay("the other side closed the connection");
        settle();
        EXPECT_EQ(link->state(), LinkState::Connecting);
        EXPECT_TRUE(link->stateText().contains(QStringLiteral("another panel"))) << link->stateText();
        controller.openWay();
        settle();
    }
    EXPECT_EQ(takeRecords().size(), 1);
    controller.hello(0);
    settle();
    EXPECT_TRUE(link->isConnected());
}

TEST_F(LinkTest, SaysSomethingBeforeTheOtherSideGrowsImpatient)
{
    connectLink();
    const int before = controller.count(Kind::Ping);
    pass(ControllerLink::kPingMs - 1);
    EXPECT_EQ(controller.count(Kind::Ping), before);
    pass(1);
    EXPECT_EQ(controller.count(Kind::Ping), before + 1);
    xservice()->get(nullptr, QStringLiteral("link.info")); // as good as a ping
    pass(ControllerLink::kPingMs - 1);
    EXPECT_EQ(controller.count(Kind::Ping), before + 1);
}

TEST_F(LinkTest, ASilentControllerIsGivenUpAndLookedForAnew)
{
    connectLink();
    now += 10 * ControllerLink::kDeadMs; // the panel was busy for long
    controller.ping();                   // and this waits to be read
    link->tick();
    settle();
    EXPECT_TRUE(link->isConnected());
    pass(ControllerLink::kDeadMs - 100);
    EXPECT_TRUE(link->isConnected());
    controller.opensAtOnce = false;
    pass(100);
    EXPECT_EQ(link->state(), LinkState::Connecting);
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("silent for 4 s"))) << link->stateText();
    takeRecords();
    controller.greets = false; // somebody who never greets is no controller
    controller.opensAtOnce = true;
    controller.openWay();
    settle();
    pass(ControllerLink::kDeadMs);
    EXPECT_TRUE(takeRecords().join(QString()).contains(QStringLiteral("did not answer the greeting")));
    EXPECT_EQ(link->state(), LinkState::Greeting); // on a new way
    pass(ControllerLink::kDeadMs);
    EXPECT_EQ(takeRecords(), QStringList());
}

TEST_F(LinkTest, NonsenseIsAnsweredToldOnceAndHarmsNothing)
{
    connectLink();
    const orba::Node before = *orba::findGlobal(u"quill.project");
    const std::string good = host::encodeFrame(LinkMessage());
    LinkMessage wrong;
    wrong.kind = Kind::Write; // which only a panel sends
    wrong.name = QStringLiteral("quill.project.cur_project");
    LinkMessage empty;
    empty.kind = Kind::Hello; // without a state
    controller.sendBytes(good.substr(0, 17));
    controller.sendBytes(std::string());
    controller.send(wrong);
    controller.send(empty);
    for (const char *path :
         {"quill.log.list", "nexo.setting.workspace", "nexo.r.state", "nexo.r.faults", "quill.project_x",
          "quill.project.cur_project.a.b", "quill.project.var._list.#7", ""})
        controller.update(path, "1");
    settle();
    EXPECT_EQ(link->figures().unreadable, 12);
    EXPECT_EQ(controller.count(Kind::Error), 12);
    EXPECT_EQ(*orba::findGlobal(u"quill.project"), before);
    controller.update("nexo.r", R"({"state": "refused", "faults": "none", "name": "Cell 5"})");
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("connected")) << "what the panel shows is not the controller's";
    EXPECT_EQ(shown("name"), QStringLiteral("Cell 5"));
    const QStringList records = takeRecords();
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: The controller sent"))) << records[0];
    EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info")).isOk());
}

TEST_F(LinkTest, AnErrorIsNeverAnswered)
{
    connectLink();
    controller.send(errorOf(host::fault::kFrame, "the message was damaged on its way"));
    settle();
    EXPECT_EQ(controller.count(Kind::Error), 0);
    EXPECT_TRUE(takeRecords().join(QString()).contains(QStringLiteral("the message was damaged")));
    EXPECT_EQ(controller.count(Kind::Hello), 2); // in case the controller was exchanged
}

TEST_F(LinkTest, EachKindOfTroubleIsShownForATimeAndRecordedOnce)
{
    const auto ask = [this](int timeoutMs) {
        xservice()->get(nullptr, QStringLiteral("pallet.get.list"), timeoutMs);
        settle();
    };
    const auto answerTwice = [this](const LinkMessage &message) {
        LinkMessage reply;
        reply.kind = Kind::Reply;
        reply.id = message.id;
        controller.send(reply);
        controller.send(reply);
    };
    const struct
    {
        std::function<void()> happens;
        const char *shown, *record;
    } cases[] = {
        {[&] { controller.sendBytes("nonsense"); }, "Messages that could not be read: 2.",
         "cannot be read and was left out"},
        {[&] { ask(0); }, "Requests without an answer: 2.", "did not answer"},
        {[&] {
             onRequest(answerTwice);
             ask(-1);
         },
         "Answers that came late or twice: 2.", "too late or twice"},
    };
    controller.answers = false;
    for (const auto &each : cases) {
        connectLink();
        for (int i = 0; i < 2; ++i)
            each.happens();
        settle();
        EXPECT_EQ(shown("faults"), QLatin1String(each.shown));
        EXPECT_TRUE(link->isConnected());
        const QStringList records = takeRecords();
        ASSERT_EQ(records.size(), 1) << records.join(QLatin1Char('|'));
        EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: "))) << records[0];
        EXPECT_TRUE(records[0].contains(QLatin1String(each.record))) << records[0];
        for (int ms = 0; ms < ControllerLink::kFaultShownMs; ms += 1000) {
            EXPECT_FALSE(shown("faults").isEmpty()) << ms;
            controller.ping();
            pass(1000);
        }
        EXPECT_EQ(shown("faults"), QString()) << "after a calm time";
        link.reset();
        keeper.reset();
    }
}

TEST_F(LinkTest, PublishedValuesReachThoseWhoWatch)
{
    connectLink();
    QStringList told;
    auto context = std::make_unique<QObject>();
    xservice()->watch(QStringLiteral("a"), context.get(),
                      [&told](const orba::Node &value) { told.append(value.toString()); });
    controller.event("b", "\"other\"");
    controller.event("a", "\"one\"");
    settle();
    context.reset();
    controller.event("a", "\"two\"");
    controller.event("controller.notice", R"({"level": "error", "text": "The disk is full."})");
    settle();
    EXPECT_EQ(told, QStringList(QStringLiteral("one")));
    EXPECT_EQ(takeRecords(), QStringList("error: The disk is full."));
}

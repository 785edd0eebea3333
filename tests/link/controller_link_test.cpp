// The state of the link: greeting, loss, refusal, silence, nonsense.

#include "fake_controller.h"

#include "nexo/controller_manager.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using host::ControllerLink;
using host::LinkMessage;
using host::LinkState;
using Kind = LinkMessage::Kind;

TEST_F(LinkTest, ShowsTheControllerOnceItHasGreeted)
{
    QSignalSpy told(nexo::ControllerManager::instance(), &nexo::ControllerManager::rcConnectedChanged);
    controller.greets = false;
    openLink();
    EXPECT_EQ(link->state(), LinkState::Greeting);
    EXPECT_FALSE(nexo::ControllerManager::instance()->rcConnected());
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    controller.hello(0);
    settle();
    EXPECT_EQ(link->state(), LinkState::Connected);
    EXPECT_TRUE(nexo::ControllerManager::instance()->rcConnected());
    EXPECT_TRUE(m("nexo.r")->getBool("connected"));
    EXPECT_EQ(m("nexo.r.id")->getString(), QStringLiteral("R7"));
    EXPECT_EQ(m("nexo.r.version")->getString(), QStringLiteral("2.3.1"));
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(takeRecords(), QStringList("info: Controller Cell 4 connected, software 2.3.1, robot R7."));
    EXPECT_EQ(m("nexo.r.link")->getString(), link->stateText());
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

TEST_F(LinkTest, TellsALostLinkAndItsReturn)
{
    connectLink();
    controller.breakWay("the other side closed the connection");
    settle();
    EXPECT_EQ(link->state(), LinkState::Connecting);
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    QStringList records = takeRecords();
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: "))) << records[0];
    EXPECT_TRUE(records[0].contains(QStringLiteral("the other side closed the connection"))) << records[0];
    EXPECT_EQ(QStringLiteral("warning: ") + m("nexo.r.link")->getString(), records[0]);
    controller.openWay();
    settle();
    EXPECT_TRUE(link->isConnected());
    EXPECT_EQ(takeRecords().size(), 1);
    EXPECT_EQ(m("nexo.r.id")->getString(), QStringLiteral("R7"));
}

TEST_F(LinkTest, TellsAMissingControllerOnce)
{
    controller.opensAtOnce = false;
    openLink();
    for (int i = 0; i < 3; ++i)
        controller.breakWay("nobody listens at 127.0.0.1:7001");
    settle();
    const QStringList records = takeRecords();
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records[0].contains(QStringLiteral("nobody listens at 127.0.0.1:7001"))) << records[0];
}

TEST_F(LinkTest, WaitsForTheFirstStateAndNoLonger)
{
    keeper = std::make_unique<host::LogKeeper>();
    link = std::make_unique<ControllerLink>(controller.carrier());
    link->open();
    EXPECT_TRUE(link->waitForState(5000));
    EXPECT_EQ(m("nexo.r.id")->getString(), QStringLiteral("R7"));
    EXPECT_TRUE(link->waitForState(5000));
    link->close();
    controller.opensAtOnce = false;
    link->open();
    controller.breakWay("nobody is there");
    EXPECT_FALSE(link->waitForState(600000)); // which would be ten minutes
    controller.openWay();
    EXPECT_TRUE(link->waitForState(600000));
}

TEST_F(LinkTest, RefusesAnotherVersionAndNamesBoth)
{
    controller.onMessage = [this](const LinkMessage &message) {
        if (message.kind != Kind::Hello)
            return false;
        LinkMessage hello = message;
        hello.version = 3;
        controller.send(hello);
        return true;
    };
    openLink();
    EXPECT_EQ(link->state(), LinkState::Refused);
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("version 3"))) << link->stateText();
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("version 1"))) << link->stateText();
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("error: ") + link->stateText()));
    pass(60000);
    EXPECT_EQ(controller.count(Kind::Hello), 1); // asking again changes nothing
    controller.onMessage = nullptr;
    controller.breakWay("restarted"); // with the right version
    controller.openWay();
    settle();
    EXPECT_TRUE(link->isConnected());
}

TEST_F(LinkTest, AControllerThatRefusesThisVersionIsShown)
{
    controller.greets = false;
    openLink();
    LinkMessage error;
    error.kind = Kind::Error;
    error.version = 2;
    error.name = QLatin1String(host::fault::kVersion);
    error.text = QStringLiteral("version 1 is not version 2");
    controller.send(error);
    settle();
    EXPECT_EQ(link->state(), LinkState::Refused);
    EXPECT_TRUE(link->stateText().contains(error.text)) << link->stateText();
}

TEST_F(LinkTest, ASecondPanelAsksUntilTheFirstHasGone)
{
    controller.greets = false;
    openLink();
    LinkMessage busy;
    busy.kind = Kind::Error;
    busy.name = QLatin1String(host::fault::kBusy);
    busy.text = QStringLiteral("serves another panel");
    for (int i = 0; i < 3; ++i) {
        controller.send(busy);
        settle();
        EXPECT_EQ(link->state(), LinkState::Refused);
        const int greetings = controller.count(Kind::Hello);
        pass(ControllerLink::kBusyMs - 1);
        EXPECT_EQ(controller.count(Kind::Hello), greetings);
        pass(1);
        EXPECT_EQ(controller.count(Kind::Hello), greetings + 1);
    }
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("error: ") + link->stateText()));
    controller.hello(0);
    settle();
    EXPECT_TRUE(link->isConnected());
}

TEST_F(LinkTest, ARefusalThatEndsTheWayKeepsItsReason)
{
    controller.greets = false;
    openLink();
    LinkMessage busy;
    busy.kind = Kind::Error;
    busy.name = QLatin1String(host::fault::kBusy);
    for (int i = 0; i < 3; ++i) {
        controller.send(busy);
        controller.breakWay("the other side closed the connection");
        settle();
        EXPECT_EQ(link->state(), LinkState::Connecting);
        EXPECT_TRUE(link->stateText().contains(QStringLiteral("another panel"))) << link->stateText();
        controller.openWay();
        settle();
    }
    EXPECT_EQ(takeRecords().size(), 1);
}

TEST_F(LinkTest, SaysSomethingBeforeTheOtherSideGrowsImpatient)
{
    connectLink();
    const int before = controller.count(Kind::Ping);
    pass(ControllerLink::kPingMs - 1);
    EXPECT_EQ(controller.count(Kind::Ping), before);
    pass(1);
    EXPECT_EQ(controller.count(Kind::Ping), before + 1);
    controller.ping();
    settle();
    xservice()->get(nullptr, QStringLiteral("link.info")); // as good as a ping
    pass(ControllerLink::kPingMs - 1);
    EXPECT_EQ(controller.count(Kind::Ping), before + 1);
}

TEST_F(LinkTest, ASilentControllerIsGivenUpAndLookedForAnew)
{
    connectLink();
    pass(ControllerLink::kDeadMs - 100);
    controller.ping();
    settle();
    pass(ControllerLink::kDeadMs - 100);
    EXPECT_TRUE(link->isConnected());
    controller.opensAtOnce = false;
    pass(100);
    EXPECT_EQ(link->state(), LinkState::Connecting);
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("silent for 4 s"))) << link->stateText();
    controller.openWay();
    settle();
    EXPECT_TRUE(link->isConnected());
}

TEST_F(LinkTest, FramesThatWaitCountAsSignsOfLife)
{
    connectLink();
    now += 10 * ControllerLink::kDeadMs; // the panel was busy for long
    controller.ping();
    link->tick();
    EXPECT_TRUE(link->isConnected());
}

TEST_F(LinkTest, SomebodyWhoNeverGreetsIsNoController)
{
    controller.greets = false;
    openLink();
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
    controller.sendBytes("nonsense");
    controller.sendBytes(good.substr(0, 17));
    controller.sendBytes(std::string());
    controller.send(wrong);
    controller.update("quill.log.list", "[]");
    controller.update("nexo.setting.workspace", "\"/\"");
    controller.update("nexo.r.connected", "false");
    controller.update("quill.project_x", "1");
    controller.update("quill.project.cur_project.a.b", "1");
    controller.update("quill.project.var._list.#7", "1");
    controller.update("", "{}");
    settle();
    EXPECT_EQ(link->figures().unreadable, 11);
    EXPECT_EQ(controller.count(Kind::Error), 11);
    EXPECT_EQ(*orba::findGlobal(u"quill.project"), before);
    EXPECT_TRUE(link->isConnected());
    const QStringList records = takeRecords();
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: The controller sent"))) << records[0];
    EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info")).isOk());
}

TEST_F(LinkTest, AnErrorIsNeverAnswered)
{
    connectLink();
    LinkMessage error;
    error.kind = Kind::Error;
    error.name = QLatin1String(host::fault::kFrame);
    error.text = QStringLiteral("the message was damaged on its way");
    controller.send(error);
    settle();
    EXPECT_EQ(controller.count(Kind::Error), 0);
    EXPECT_TRUE(takeRecords().join(QString()).contains(error.text));
    EXPECT_EQ(controller.count(Kind::Hello), 2); // in case the controller was exchanged
}

TEST_F(LinkTest, AGreetingWithoutAStateIsNotTaken)
{
    controller.greets = false;
    openLink();
    LinkMessage hello;
    hello.kind = Kind::Hello;
    controller.send(hello);
    settle();
    EXPECT_EQ(link->state(), LinkState::Greeting);
    EXPECT_EQ(link->figures().unreadable, 1);
}

TEST_F(LinkTest, ANoticeOfTheControllerBecomesARecord)
{
    connectLink();
    controller.event("controller.notice", R"({"level": "error", "text": "The disk is full."})");
    settle();
    EXPECT_EQ(takeRecords(), QStringList("error: The disk is full."));
}

TEST_F(LinkTest, PublishedValuesReachThoseWhoWatch)
{
    connectLink();
    QStringList told;
    auto context = std::make_unique<QObject>();
    xservice()->watch(QStringLiteral("a"), context.get(),
                      [&told](const orba::Node &value) { told.append(value.toString()); });
    xservice()->watch(QStringLiteral("b"), this->keeper.get(),
                      [&told](const orba::Node &) { told.append(QStringLiteral("b")); });
    controller.event("a", "\"one\"");
    settle();
    context.reset();
    controller.event("a", "\"two\"");
    settle();
    EXPECT_EQ(told, QStringList(QStringLiteral("one")));
}

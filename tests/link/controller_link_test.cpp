// The state of the link: greeting, loss, refusal, silence, nonsense, what the operator sees of it; and the nodes that the
// controller keeps current.

#include "fake_controller.h"

#include "nexo/controller_manager.h"

#include <QPointer>
#include <QSignalSpy>

using host::ControllerLink;
using host::LinkMessage;
using host::LinkState;
using orba::ModuleObject;
using Kind = LinkMessage::Kind;

namespace {

const char *const kVariables =
    R"([{"name": "flagL", "pers": true, "value": 0}, {"name": "SetZ", "pers": true, "value": 700}])";

QString shown(const char *key)
{
    return m("nexo.r")->getString(key);
}

} // namespace

TEST_F(LinkTest, ShowsTheControllerOnceItHasGreeted)
{
    QSignalSpy told(nexo::ControllerManager::instance(), &nexo::ControllerManager::rcConnectedChanged);
    EXPECT_EQ(shown("state"), QStringLiteral("closed"));
    controller.greets = false;
    openLink();
    controller.update("quill.body.toolset", "\"A\"");
    settle();
    EXPECT_EQ(shown("state"), QStringLiteral("greeting"));
    EXPECT_EQ(m("quill.body.toolset")->getString(), QString()) << "nothing is mirrored yet";
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    controller.hello(0);
    settle();
    EXPECT_TRUE(nexo::ControllerManager::instance()->rcConnected());
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(takeRecords(), QStringList("info: Controller Cell 4 connected, software 2.3.1, robot R7."));
    link.reset();
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
}

TEST_F(LinkTest, TellsALostLinkOnceAndItsReturn)
{
    connectLink();
    controller.breakWay("the other side closed the connection");
    settle();
    EXPECT_FALSE(m("nexo.r")->getBool("connected"));
    EXPECT_TRUE(shown("link").contains(QStringLiteral("the other side closed the connection")));
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("warning: ") + shown("link")));
    for (int i = 0; i < 3; ++i)
        controller.breakWay("nobody listens at 127.0.0.1:7001");
    settle();
    EXPECT_EQ(takeRecords(), QStringList(QStringLiteral("warning: ") + shown("link"))) << "told once";
    controller.openWay();
    settle();
    EXPECT_TRUE(link->isConnected());
    EXPECT_EQ(takeRecords().size(), 1);
}

TEST_F(LinkTest, AnotherVersionIsRefusedOnEitherSide)
{
    LinkMessage hello;
    hello.kind = Kind::Hello;
    hello.version = 3;
    LinkMessage error;
    error.kind = Kind::Error;
    error.name = QLatin1String(host::fault::kVersion);
    error.text = QStringLiteral("version 1 is not version 3");
    for (const LinkMessage &answer : {hello, error}) {
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
        link.reset();
        keeper.reset();
    }
}

TEST_F(LinkTest, ASilentControllerIsGivenUpAndLookedForAnew)
{
    connectLink();
    const int pings = controller.count(Kind::Ping);
    pass(ControllerLink::kPingMs);
    EXPECT_EQ(controller.count(Kind::Ping), pings + 1) << "or the controller would give up the panel";
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
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("silent for 4 s")));
    takeRecords();
    controller.greets = false; // somebody who never greets is no controller
    controller.opensAtOnce = true;
    controller.openWay();
    settle();
    pass(ControllerLink::kDeadMs);
    EXPECT_TRUE(takeRecords().join(QString()).contains(QStringLiteral("did not answer the greeting")));
    EXPECT_EQ(link->state(), LinkState::Greeting); // on a new way
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
    const QStringList records = takeRecords();
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records[0].startsWith(QStringLiteral("warning: The controller sent"))) << records[0];
    EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info")).isOk());
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

// ---------------------------------------------------------------- nodes that the controller keeps current

TEST_F(LinkTest, NodesThatPagesHoldStayAliveAndAreToldOnce)
{
    const QPointer<ModuleObject> list = m("quill.project.var._list");
    connectLink();
    controller.update("quill.project.var._list", kVariables);
    settle();
    ASSERT_EQ(list.data(), m("quill.project.var._list"));
    QSignalSpy changed(list->c(1)->c("value"), &ModuleObject::changed);
    QSignalSpy grown(list.data(), &ModuleObject::structureChanged);
    for (int i = 0; i < 2; ++i)
        controller.update("quill.project.var._list.#1.value", "650"); // the same once more tells nothing
    settle();
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toInt(), 650);
    EXPECT_EQ(changed[0][1].toInt(), 700);
    EXPECT_EQ(grown.size(), 0);
    controller.update("quill.project.var._list.#2", R"({"name": "new", "value": 1})");
    settle();
    EXPECT_EQ(grown.size(), 1);
    EXPECT_EQ(list->getString("#2.name"), QStringLiteral("new"));
    EXPECT_EQ(controller.count(Kind::Write), 0); // what the controller told is no edit
}

TEST_F(LinkTest, TheTemplatesNodesOutliveAControllerThatLacksThem)
{
    const QPointer<ModuleObject> build = m("quill.project.rsync.build");
    connectLink();
    controller.update("quill.project", R"({"cur_project": "R7/P", "var": {"_list": []}, "extra": 1})");
    controller.update("nexo.r", R"({"id": "R8"})");
    settle();
    EXPECT_TRUE(build);
    EXPECT_EQ(m("quill.project.extra")->getInt(), 1);
    EXPECT_TRUE(m("nexo.r")->getBool("connected"));
    EXPECT_EQ(controller.count(Kind::Write) + controller.count(Kind::Trigger), 0);
}

TEST_F(LinkTest, OlderAndDoubleUpdatesAreDropped)
{
    connectLink();
    controller.update("quill.body.toolset", "\"new\"");
    settle();
    for (int i = 0; i < 2; ++i) {
        controller.lastUpdate = 0; // the same number again
        controller.update("quill.body.toolset", "\"old\"");
    }
    settle();
    EXPECT_EQ(m("quill.body.toolset")->getString(), QStringLiteral("new"));
    EXPECT_EQ(link->figures().droppedUpdates, 2);
}

TEST_F(LinkTest, AMissingUpdateIsMadeGoodByTheWholeState)
{
    for (const bool isLast : {true, false}) {
        connectLink();
        controller.state = nodeFromJson(R"([{"path": "quill.body.toolset", "value": null}])");
        controller.state.find(u"#0.value")->setBool(isLast);
        controller.greets = false;
        ++controller.lastUpdate; // it got lost
        if (isLast)
            controller.ping();
        else
            controller.update("quill.body.toolset", "\"later\"");
        settle();
        EXPECT_EQ(link->figures().missedUpdates, 1);
        controller.greets = true;
        pass(host::ControllerLink::kGreetMs); // the greeting was lost as well
        EXPECT_EQ(m("quill.body.toolset")->getBool(), isLast);
        EXPECT_EQ(m("quill.body.toolset")->node().kind(), orba::Node::Kind::Bool);
        EXPECT_EQ(takeRecords(), QStringList()); // nobody needs to know
        link.reset();
        keeper.reset();
    }
}

TEST_F(LinkTest, ListenersMayAskAndEditWhileTheyAreTold)
{
    connectLink();
    bool asked = false;
    QObject::connect(m("quill.body.toolset"), &ModuleObject::changed, link.get(), [&asked] {
        m("quill.project.var._list")->clear(); // also what the rest of the update is about
        asked = xservice()->get(nullptr, QStringLiteral("link.info")).isOk();
    });
    controller.update("quill.project.var._list", kVariables);
    controller.update("quill.body.toolset", "\"A\"");
    controller.update("quill.project.var._list.#0.value", "9");
    settle();
    EXPECT_TRUE(asked);
    EXPECT_EQ(controller.edits, QStringList("quill.project.var._list = []"));
}

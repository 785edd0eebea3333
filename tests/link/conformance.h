#pragma once

// What every way to a controller must do alike. One source of a test program includes this and instantiates
// it:
//     INSTANTIATE_TEST_SUITE_P(Ways, LinkConformance, ::testing::Values(conformance::Way{"InProcess", ...},
//                              conformance::Way{"Tcp", ...}), conformance::conformanceName);
// and RemoteLinkConformance with the ways that lead to another process, FaultyLinkConformance with ways that
// lose, delay and cut.

#include "link/conformance_parts.h"

class LinkConformance : public ::testing::TestWithParam<conformance::Way>
{
protected:
    using LinkMessage = host::LinkMessage;
    using Kind = LinkMessage::Kind;
    using RawPanel = conformance::RawPanel;

    void SetUp() override { ASSERT_TRUE(host::buildGlobalNodes()); }
    ~LinkConformance() override
    {
        link.reset();
        keeper.reset();
        host::removeGlobalNodes();
    }

    void connectLink()
    {
        keeper = std::make_unique<host::LogKeeper>();
        link = std::make_unique<host::ControllerLink>(side->carrier());
        link->open();
        ASSERT_TRUE(waitUntil([this] { return link->isConnected(); }, conformance::kBoundMs))
            << link->stateText();
    }
    /// A project with one persistent and one plain variable.
    static void declareVariables()
    {
        orba::ModuleObject *list = m("quill.project.var._list");
        for (const char *json :
             {R"({"name": "SetZ", "type": "int", "pers": "true", "value": {"[0][0][0]": 700}})",
              R"({"name": "boxheight", "type": "int", "pers": "false", "value": {"[0][0][0]": 300}})"})
            list->addUnnamed()->copyFrom(nodeFromJson(json));
    }
    static bool isTold(const std::function<bool()> &condition)
    {
        return waitUntil(condition, conformance::kBoundMs);
    }

    ScriptedPresenter presenter;
    std::unique_ptr<conformance::Side> side = GetParam().make();
    std::unique_ptr<host::LogKeeper> keeper;
    std::unique_ptr<host::ControllerLink> link;
};

// ---------------------------------------------------------------- greeting

TEST_P(LinkConformance, AGreetingIsAnsweredWithTheWholeState)
{
    RawPanel panel(side->carrier());
    const LinkMessage hello = panel.greet("one");
    EXPECT_EQ(hello.version, host::kLinkVersion);
    EXPECT_EQ(hello.knows, 0u);
    EXPECT_FALSE(hello.payload.getString(u"session").isEmpty());
    EXPECT_FALSE(hello.payload.getString(u"controller").isEmpty());
    EXPECT_FALSE(conformance::stateAt(hello, "nexo.r", "id").toString().isEmpty());
    EXPECT_FALSE(conformance::stateAt(hello, "nexo.r", "version").toString().isEmpty());
    EXPECT_EQ(conformance::stateAt(hello, "nexo.robot", "joints").size(), 6);
    EXPECT_EQ(conformance::stateAt(hello, "nexo.robot", "pose.trans").size(), 3);
    EXPECT_EQ(conformance::stateAt(hello, "quill.project", "var._list").kind(), orba::Node::Kind::List);
    EXPECT_EQ(panel.greet("one").payload, hello.payload); // as often as the panel likes
}

TEST_P(LinkConformance, NothingIsDoneBeforeAGreeting)
{
    RawPanel panel(side->carrier());
    panel.write(1, "quill.project.autoload_prj_path", "\"x\"");
    EXPECT_EQ(panel.next(Kind::Error).name, QLatin1String(host::fault::kFrame));
    const LinkMessage hello = panel.greet("one");
    EXPECT_EQ(hello.knows, 0u);
    EXPECT_EQ(conformance::stateAt(hello, "quill.project", "autoload_prj_path").toString(), QString());
}

TEST_P(LinkConformance, AnotherVersionIsRefusedWithBothNamed)
{
    RawPanel panel(side->carrier());
    LinkMessage hello;
    hello.kind = Kind::Hello;
    hello.version = 7;
    hello.payload.ensure(u"session")->setString(QStringLiteral("new"));
    panel.send(hello);
    const LinkMessage error = panel.next(Kind::Error);
    EXPECT_EQ(error.name, QLatin1String(host::fault::kVersion));
    EXPECT_TRUE(error.text.contains(QLatin1Char('7')) && error.text.contains(QLatin1Char('1'))) << error.text;
}

TEST_P(LinkConformance, ASecondPanelIsRefusedUntilTheFirstHasGone)
{
    auto first = std::make_unique<RawPanel>(side->carrier());
    first->greet("first");
    keeper = std::make_unique<host::LogKeeper>();
    link = std::make_unique<host::ControllerLink>(side->carrier());
    link->open();
    ASSERT_TRUE(isTold([this] { return link->state() == host::LinkState::Refused; })) << link->stateText();
    EXPECT_TRUE(link->stateText().contains(QStringLiteral("another panel"))) << link->stateText();
    EXPECT_EQ(first->ask("link.info").status, host::status::kDone); // and was not disturbed
    first.reset();
    EXPECT_TRUE(isTold([this] { return link->isConnected(); })) << link->stateText();
}

// ---------------------------------------------------------------- frames

TEST_P(LinkConformance, AMessageThatCannotBeReadIsAnsweredAndHarmsNothing)
{
    const std::string good = host::encodeFrame(LinkMessage());
    const auto changed = [&good](std::size_t at, char byte) {
        std::string frame = good;
        frame[at] = byte;
        return frame;
    };
    LinkMessage reply;
    reply.kind = Kind::Reply; // which no panel sends
    RawPanel panel(side->carrier());
    panel.greet("one");
    for (const std::string &frame : {changed(4, 9), changed(6, 77), changed(7, 1), changed(12, '!'),
                                     changed(16, '['), host::encodeFrame(reply)}) {
        EXPECT_TRUE(panel.sendBytes(frame));
        const LinkMessage error = panel.next(Kind::Error);
        EXPECT_EQ(error.name, QLatin1String(host::fault::kFrame));
        EXPECT_FALSE(error.text.isEmpty());
        EXPECT_EQ(panel.ask("link.info").status, host::status::kDone);
    }
}

TEST_P(LinkConformance, BytesThatAreNoMessageHarmNothing)
{
    std::string huge = host::encodeFrame(LinkMessage());
    huge.replace(8, 4, "\xff\xff\xff\xff");
    for (const std::string &bytes :
         {std::string("GET / HTTP/1.1\r\nHost: localhost\r\n\r\n"), huge, std::string(100000, '\0')}) {
        RawPanel panel(side->carrier());
        panel.greet("one");
        EXPECT_TRUE(panel.sendBytes(bytes));
        EXPECT_EQ(panel.next(Kind::Error).name, QLatin1String(host::fault::kFrame));
        EXPECT_EQ(panel.hasEnded(GetParam().isStream), GetParam().isStream);
        EXPECT_EQ(panel.greet("one").version, host::kLinkVersion); // on a new way, where the old one ended
        EXPECT_EQ(panel.ask("link.info").status, host::status::kDone);
    }
}

TEST_P(LinkConformance, ALargeMessageArrivesWhole)
{
    connectLink();
    orba::Node all;
    all.reset(orba::Node::Kind::List);
    for (const char *name : {"A", "B.b", "#1"})
        all.add()->assign(conformance::recipe(name, 2000)); // some 7 MB
    const XReply stored = xservice()->set(nullptr, QStringLiteral("pallet.data"), all, conformance::kBoundMs);
    ASSERT_TRUE(stored.isOk()) << stored.error;
    const XReply list = xservice()->get(nullptr, QStringLiteral("pallet.get.list"), conformance::kBoundMs);
    ASSERT_EQ(list.value.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(list.value.at(i)->getString(u"name"), all.at(i)->getString(u"name"));
        EXPECT_EQ(list.value.at(i)->getInt(u"products"), 2000);
    }
}

// ---------------------------------------------------------------- requests

TEST_P(LinkConformance, AnUnknownRequestIsRefusedByItsName)
{
    connectLink();
    const XReply reply = xservice()->execCommand(nullptr, QStringLiteral("pallet.bake"), nullptr);
    EXPECT_EQ(reply.status, XReply::Status::Refused);
    EXPECT_TRUE(reply.error.contains(QStringLiteral("pallet.bake"))) << reply.error;
    EXPECT_EQ(reply.toInt(), -1);
}

TEST_P(LinkConformance, RequestsInARowAreEachAnsweredOnce)
{
    connectLink();
    const orba::Node one = conformance::recipe("A", 3);
    for (int i = 0; i < 500; ++i)
        ASSERT_TRUE(
            xservice()->set(nullptr, QStringLiteral("pallet.set.one"), one, conformance::kBoundMs).isOk())
            << i;
    EXPECT_EQ(xservice()->get(nullptr, QStringLiteral("pallet.get.list")).value.size(), 1);
    EXPECT_EQ(link->figures().droppedReplies, 0);
    EXPECT_EQ(link->figures().unreadable, 0);
}

TEST_P(LinkConformance, ThreadsMayAskBesideTheGuiThread)
{
    connectLink();
    const orba::Node all = [] {
        orba::Node list;
        list.add()->assign(conformance::recipe("A", 50));
        return list;
    }();
    int done = 0;
    std::thread worker([&] {
        for (int i = 0; i < 20; ++i)
            done += xservice()->set(nullptr, QStringLiteral("pallet.data"), all, conformance::kBoundMs).isOk()
                        ? 1
                        : 0;
    });
    for (int i = 0; i < 50; ++i)
        EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info"), conformance::kBoundMs).isOk());
    worker.join();
    EXPECT_EQ(done, 20);
}

// ---------------------------------------------------------------- edits

TEST_P(LinkConformance, EditsAreTakenInTheirOrderAndOnce)
{
    const char *path = "quill.project.autoload_prj_path";
    RawPanel panel(side->carrier());
    panel.greet("one");
    EXPECT_EQ(panel.taken(1, path, "\"a\""), 1u);
    EXPECT_EQ(panel.taken(1, path, "\"again\""), 1u);
    EXPECT_EQ(panel.taken(3, path, "\"early\""), 1u);
    EXPECT_EQ(panel.ask("link.info", "null", 2).status, host::status::kBehind);
    EXPECT_EQ(panel.taken(2, path, "\"b\""), 2u);
    const LinkMessage info = panel.ask("link.info", "null", 2);
    EXPECT_EQ(info.status, host::status::kDone);
    EXPECT_EQ(info.payload.getInt(u"taken"), 2);
    EXPECT_EQ(conformance::stateAt(panel.greet("one"), "quill.project", "autoload_prj_path").toString(),
              QStringLiteral("b"));
}

TEST_P(LinkConformance, EditsOfPlacesThatCannotBeAreCountedAndChangeNothing)
{
    RawPanel panel(side->carrier());
    const orba::Node before = conformance::stateAt(panel.greet("one"), "quill.project");
    std::uint64_t number = 0;
    for (const char *path :
         {"nexo.r.id", "quill.log.list", "quill.project.var._list.#5", "quill.project..x", "", "quill"}) {
        ++number;
        EXPECT_EQ(panel.taken(number, path, "{\"a\": 1}"), number) << path;
    }
    const LinkMessage hello = panel.greet("one");
    EXPECT_EQ(conformance::stateAt(hello, "quill.project"), before);
    EXPECT_NE(conformance::stateAt(hello, "nexo.r", "id").kind(), orba::Node::Kind::Map);
}

TEST_P(LinkConformance, TheCountGoesOnOverANewWayAndARestart)
{
    const char *path = "quill.project.autoload_prj_path";
    {
        RawPanel panel(side->carrier());
        panel.greet("one");
        EXPECT_EQ(panel.taken(1, path, "\"a\""), 1u);
        EXPECT_EQ(panel.taken(2, path, "\"b\""), 2u);
    }
    {
        RawPanel panel(side->carrier());
        EXPECT_EQ(panel.greet("one", 1).knows, 2u); // it knows better than the panel
        EXPECT_EQ(panel.taken(2, path, "\"double\""), 2u);
    }
    {
        RawPanel other(side->carrier());
        EXPECT_EQ(other.greet("two", 0).knows, 0u);
        EXPECT_EQ(other.taken(1, path, "\"c\""), 1u);
    }
    side->restart();
    RawPanel panel(side->carrier());
    EXPECT_EQ(panel.greet("one", 8).knows, 8u); // it was started anew and believes the panel
    EXPECT_EQ(panel.taken(9, path, "\"d\""), 9u);
}

TEST_P(LinkConformance, ASwitchOfTheProjectBringsItsListsBeforeItIsConfirmed)
{
    RawPanel panel(side->carrier());
    panel.greet("one");
    std::uint64_t number = 0;
    for (const char *project : {"\"R/one\"", "\"R/two\"", "\"R/two\"", "\"R/one\""}) {
        panel.write(++number, "quill.project.cur_project", project);
        QStringList told;
        for (const LinkMessage &message : panel.upTo(Kind::Ping))
            if (message.kind == Kind::Update && message.knows == number)
                told.append(message.name);
        for (const char *list : {"task", "var", "var_monitor"})
            EXPECT_TRUE(told.contains(QStringLiteral("quill.project.%1._list").arg(QLatin1String(list))))
                << project << ": " << told.join(QLatin1Char(' '));
        if (number == 1)
            panel.taken(++number, "quill.project.task._list", R"([{"name": "task0"}])");
    }
    EXPECT_EQ(conformance::stateAt(panel.greet("one"), "quill.project", "task._list.#0.name").toString(),
              QStringLiteral("task0"));
}

// ---------------------------------------------------------------- a whole panel

TEST_P(LinkConformance, ThePanelKnowsTheRobotAndKeepsItsNodes)
{
    const QPointer<orba::ModuleObject> id = m("nexo.r.id");
    connectLink();
    ASSERT_TRUE(id);
    EXPECT_FALSE(id->getString().isEmpty());
    EXPECT_TRUE(m("nexo.r")->getBool("connected"));
}

TEST_P(LinkConformance, ListsFollowTheProjectWhenSetReturns)
{
    connectLink();
    const QPointer<orba::ModuleObject> variables = m("quill.project.var._list");
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/one"));
    declareVariables();
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/two"));
    EXPECT_EQ(variables->cmobjCount(), 0);
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/one"));
    ASSERT_TRUE(variables);
    EXPECT_EQ(variables->cmobjCount(), 2);
    EXPECT_EQ(variables->getString("#0.name"), QStringLiteral("SetZ"));
}

TEST_P(LinkConformance, APersistentVariableIsChangedMirroredAndKept)
{
    connectLink();
    m("quill.project")->set(nullptr, "cur_project", QStringLiteral("R/one"));
    declareVariables();
    orba::ModuleObject modify(QStringLiteral("modify"));
    modify.add(QStringLiteral("SetZ"))->set(nullptr, "", 650);
    ASSERT_TRUE(xservice()->command(nullptr, QStringLiteral("monitor.pers.modify"), &modify));
    const auto value = [] { return m("quill.project.var._list.#0.value")->c(0)->getInt(); };
    EXPECT_TRUE(isTold([&value] { return value() == 650; })) << value();
    orba::ModuleObject nothing(QStringLiteral("modify"));
    EXPECT_TRUE(xservice()->execCommand(nullptr, QStringLiteral("monitor.pers.modify"), &nothing).isOk());
    modify.add(QStringLiteral("boxheight"))->set(nullptr, "", 1);
    const XReply refused = xservice()->execCommand(nullptr, QStringLiteral("monitor.pers.modify"), &modify);
    EXPECT_EQ(refused.status, XReply::Status::Refused);
    EXPECT_TRUE(refused.error.contains(QStringLiteral("boxheight"))) << refused.error;

    m("quill.project.var._list.#0.value")
        ->c(0)
        ->node()
        .setInt(0); // shows that what comes is the controller's
    link.reset();
    side->restart();
    connectLink();
    EXPECT_EQ(m("quill.project.cur_project")->getString(), QStringLiteral("R/one"));
    EXPECT_EQ(value(), 650);
    EXPECT_EQ(m("quill.project.var._list.#1.value")->c(0)->getInt(), 300);
}

TEST_P(LinkConformance, OpeningAndClosingLeavesNothingBehind)
{
    for (int round = 0; round < 20; ++round) {
        connectLink();
        ASSERT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info"), conformance::kBoundMs).isOk())
            << round;
        link.reset();
    }
}

TEST_P(LinkConformance, TheActiveToolIsMirrored)
{
    connectLink();
    orba::ModuleObject tool(QStringLiteral("temp_toolset"));
    tool.copyFrom(nodeFromJson(R"({"name": "PalletTool1",
        "end": {"trans": [0.0, 0.0, 0.2], "rot": [0.0, 0.0, 0.0]},
        "load": {"cog": [0.0, 0.0, 0.0], "inertia": [0.0, 0.0, 0.0], "mass": 5.0},
        "ref": {"trans": [0, 0, 0], "rot": [0, 0, 0]}})"));
    const XReply reply = xservice()->set(nullptr, QStringLiteral("sys.toolset"), &tool);
    EXPECT_TRUE(reply.isOk()) << reply.error;
    EXPECT_EQ(reply.toInt(), 0);
    EXPECT_TRUE(isTold([] { return m("quill.body.toolset")->getString() == QLatin1String("PalletTool1"); }));
    tool.remove("end");
    EXPECT_LT(xservice()->set(nullptr, QStringLiteral("sys.toolset"), &tool).toInt(), 0);
}

// ---------------------------------------------------------------- ways to another process

class RemoteLinkConformance : public LinkConformance
{
};

TEST_P(RemoteLinkConformance, ARestartIsShownAndLosesNoEdit)
{
    connectLink();
    QSignalSpy states(link.get(), &host::ControllerLink::stateChanged);
    m("quill.project")->set(nullptr, "autoload_prj_path", QStringLiteral("before"));
    xservice()->get(nullptr, QStringLiteral("link.info"));
    side->restart();
    m("quill.project")->set(nullptr, "autoload_prj_path", QStringLiteral("after"));
    ASSERT_TRUE(isTold([&] { return states.size() > 1 && link->isConnected(); }));
    EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QStringLiteral("after"));
    link.reset();
    RawPanel panel(side->carrier());
    EXPECT_EQ(conformance::stateAt(panel.greet("raw"), "quill.project", "autoload_prj_path").toString(),
              QStringLiteral("after"));
}

// ---------------------------------------------------------------- bad ways

class FaultyLinkConformance : public LinkConformance
{
};

TEST_P(FaultyLinkConformance, EveryEditArrivesOnceAndNothingBlocks)
{
    constexpr int kEdits = 24;
    constexpr int kTimeoutMs = 200;
    constexpr int kMarginMs = 400; // of a machine that is busy with other things
    connectLink();
    QElapsedTimer sinceEvent;
    qint64 longestGap = 0;
    QTimer pulse;
    QObject::connect(&pulse, &QTimer::timeout,
                     [&] { longestGap = std::max(longestGap, sinceEvent.restart()); });
    sinceEvent.start();
    pulse.start(5);
    orba::ModuleObject *list = m("quill.project.var._list");
    list->clear();
    for (int i = 0; i < kEdits; ++i) {
        orba::ModuleObject *variable = list->addUnnamed();
        variable->copyFrom(nodeFromJson(R"({"type": "int", "pers": "true", "value": {"[0][0][0]": 0}})"));
        variable->ensure("name")->set(nullptr, "", QStringLiteral("v%1").arg(i));
        if (i % 4 == 0)
            xservice()->get(nullptr, QStringLiteral("link.info"), kTimeoutMs);
        if (i % 4 == 2)
            m("quill.project.refresh_project")->trigger();
        QCoreApplication::processEvents();
        const auto isBack = [this] {
            side->mend();
            return link->isConnected();
        };
        ASSERT_TRUE(isTold(isBack)) << link->stateText();
    }
    const orba::Node edited = list->node();
    const auto taken = [this] {
        side->mend();
        const XReply info = xservice()->get(nullptr, QStringLiteral("link.info"), kTimeoutMs);
        return info.isOk() && link->unsettledEdits() == 0;
    };
    EXPECT_TRUE(waitUntil(taken, 6 * conformance::kBoundMs));
    EXPECT_LE(longestGap, kTimeoutMs + kMarginMs);
    EXPECT_EQ(list->node(), edited); // no update put anything back
    link.reset();
    RawPanel panel(side->soundCarrier());
    const orba::Node list2 = conformance::stateAt(panel.greet("raw"), "quill.project", "var._list");
    EXPECT_EQ(list2, edited);
}

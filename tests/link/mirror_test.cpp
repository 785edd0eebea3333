// Nodes that the controller keeps current.

#include "fake_controller.h"

#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

using host::LinkMessage;
using orba::ModuleObject;
using Kind = LinkMessage::Kind;

namespace {

const char *const kVariables =
    R"([{"name": "flagL", "pers": true, "value": 0}, {"name": "SetZ", "pers": true, "value": 700}])";

} // namespace

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

TEST_F(LinkTest, TheRobotIsOneMoment)
{
    connectLink();
    QStringList seen;
    QObject::connect(m("nexo.robot.progress"), &ModuleObject::changed, link.get(), [&seen] {
        seen.append(m("nexo.robot")->getString("pose.trans.#0") + m("nexo.robot")->getString("moving"));
    });
    controller.update("nexo.robot",
                      R"({"progress": 0.25, "moving": true, "pose": {"trans": [0.5, 0.0, 1.0]}})");
    settle();
    EXPECT_EQ(seen, QStringList("0.5true"));
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
    const auto later = [this] { controller.update("quill.body.toolset", "\"later\""); };
    const auto ping = [this] { controller.ping(); }; // tells that the last one got lost
    connectLink();
    int missed = 0;
    for (const std::function<void()> &shows : {std::function<void()>(later), std::function<void()>(ping)}) {
        controller.greets = false;
        ++controller.lastUpdate; // it got lost
        for (int i = 0; i < 2; ++i) {
            shows();
            settle();
            EXPECT_EQ(link->figures().missedUpdates, missed + 1);
            EXPECT_EQ(controller.count(Kind::Hello), 2 * missed + 2);
        }
        ++missed;
        controller.greets = true;
        controller.state = nodeFromJson(R"([{"path": "quill.project.autoload_prj_path", "value": "lost"}])");
        controller.state.find(u"#0.value")->setString(QString::number(missed));
        pass(host::ControllerLink::kGreetMs); // the greeting was lost as well
        EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QString::number(missed));
    }
    EXPECT_TRUE(link->isConnected());
    EXPECT_EQ(takeRecords(), QStringList()); // nobody needs to know
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

TEST_F(LinkTest, AHeldNodeMayEndWhileListenersRun)
{
    connectLink();
    controller.update("quill.project.var._list", kVariables);
    settle();
    const QPointer<ModuleObject> second = m("quill.project.var._list")->c(1);
    QString seen;
    QObject::connect(m("quill.project.var._list"), &ModuleObject::structureChanged, link.get(), [&] {
        seen = second ? second->getString("name") : QStringLiteral("gone"); // it ends after this notification
    });
    controller.update("quill.project.var._list", "[]");
    settle();
    EXPECT_EQ(seen, QStringLiteral("SetZ"));
    EXPECT_TRUE(second.isNull());
}

#include "core_panel.h"
#include "recipes.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace controller;
using orba::Node;
using Kind = host::LinkMessage::Kind;
using Message = host::LinkMessage;

namespace {

const QString kCurrent = QStringLiteral("quill.project.cur_project");
const QString kVariables = QStringLiteral("quill.project.var._list");
const QString kTasks = QStringLiteral("quill.project.task._list");

class CoreTest : public ::testing::Test
{
protected:
    CoreTest()
    {
        options.workspaceFolder = folder.filePath("workspace");
        restart();
    }
    void restart()
    {
        core.reset(); // the folder serves one at a time
        core = std::make_unique<Core>(options);
        panel = std::make_unique<CorePanel>(core.get(), 1);
    }

    QTemporaryDir folder;
    StationOptions options;
    std::unique_ptr<Core> core;
    std::unique_ptr<CorePanel> panel;
};

Message plain(Kind kind)
{
    Message message;
    message.kind = kind;
    return message;
}

Node listOf(const Node &only)
{
    Node list;
    list.add()->assign(only);
    return list;
}

} // namespace

TEST_F(CoreTest, AnswersWhatItCannotReadAndGoesOn)
{
    Message hello = plain(Kind::Hello);
    hello.version = 9;
    panel->send(hello);
    EXPECT_EQ("version", panel->last().name);
    EXPECT_EQ("The panel speaks version 9 of the link, the controller version 1.", panel->last().text);
    panel->hello();
    panel->sendFrame("nonsense");
    EXPECT_EQ("frame", panel->last().name);
    EXPECT_EQ(host::status::kDone, panel->request("link.info").status);
}

TEST_F(CoreTest, ServesOnePanelUntilItFallsSilent)
{
    panel->hello();
    panel->write(kCurrent, "SIM-0001/A");
    CorePanel second(core.get(), 2, "panel-2");
    panel->wait(3.5);
    ASSERT_EQ(3, panel->count(Kind::Ping)) << "it has nothing else to say";
    EXPECT_EQ(1u, panel->last().knows);
    EXPECT_EQ(panel->updates, panel->last().id);
    panel->wait(6);
    EXPECT_EQ("busy", second.hello().name);
    EXPECT_EQ("serves another panel", second.last().text);
    EXPECT_FALSE(panel->isClosed);
    panel->wait(0.6);
    EXPECT_TRUE(panel->isClosed);
    EXPECT_EQ(Kind::Hello, second.hello().kind);
}

TEST_F(CoreTest, EveryRequestRefusesNonsenseAndChangesNothing)
{
    panel->hello();
    EXPECT_EQ("the controller knows no request \"motion.startle\"", panel->request("motion.startle").text);
    panel->request("pallet.set.one", makeRecipe("A", 1, 1));
    for (const char *name : {"pallet.set.one", "pallet.data", "pallet.set.name", "sys.toolset",
                             "project.remove_task", "project.overview.set_autoload", "motion.start"})
        for (const char *payload : {"null", "\"x\"", "[1,2,3]", R"({"name":{"a":1}})"}) {
            const Message reply = panel->request(name, nodeFromJson(payload));
            EXPECT_EQ(host::status::kRefused, reply.status) << name << payload;
            EXPECT_NE(QString(), reply.text);
            EXPECT_EQ(QStringList(), panel->updatePaths()) << name << payload;
        }
    EXPECT_EQ(1, core->station().pallets().count());
}

TEST_F(CoreTest, TakesEditsInOrderAndOnce)
{
    panel->hello();
    panel->write(kVariables, listOf(makeVariable("a", "int", "1")));
    EXPECT_EQ(1u, panel->last().knows);
    EXPECT_EQ(QStringList(), panel->updatePaths()) << "the panel has that already";
    for (const std::uint64_t id : {3, 1}) { // number 2 is missing, number 1 is there already
        Message edit = plain(Kind::Write);
        edit.id = id;
        edit.name = kCurrent;
        edit.payload.setString("X");
        panel->send(edit);
        EXPECT_EQ(Kind::Ping, panel->last().kind);
        EXPECT_EQ(1u, panel->last().knows);
    }
    EXPECT_EQ("", core->station().tree().getString(u"quill.project.cur_project"));
    EXPECT_EQ(host::status::kBehind, panel->request("pallet.set.one", makeRecipe("A", 1, 1), 2).status);
    EXPECT_EQ(0, core->station().pallets().count()) << "nothing was done";
    EXPECT_EQ(host::status::kDone, panel->request("pallet.set.one", makeRecipe("A", 1, 1), 1).status);
}

TEST_F(CoreTest, RefusesWritesWhereThePanelMayNotWrite)
{
    panel->hello();
    const Node before = core->station().tree();
    const struct
    {
        QString path;
        Node value;
    } cases[] = {
        {"nexo.r.id", nodeFromJson("\"evil\"")},
        {"quill.projector", nodeFromJson("1")},
        {"quill.project", nodeFromJson("1")},
        {"quill.project.cur_project.below", nodeFromJson("1")},
        {"quill.project.task._list.#7", nodeFromJson("1")},
        {"quill.project" + QString(".a").repeated(600), nodeFromJson("1")},
    };
    for (const auto &c : cases) {
        panel->write(c.path, c.value);
        ASSERT_EQ(1, panel->count(Kind::Error)) << c.path;
        EXPECT_EQ((QStringList{"quill.project"}), panel->updatePaths())
            << "so that the panel has what is there";
        EXPECT_EQ(panel->edits, panel->last().knows) << "taken: it would not become better";
        EXPECT_EQ(before, core->station().tree()) << c.path;
    }
}

TEST_F(CoreTest, ComesBackAfterARestart)
{
    options.dataFolder = folder.filePath("data");
    restart();
    panel->hello();
    panel->request("pallet.set.one", makeRecipe("A", 2, 2));
    panel->write(kCurrent, "SIM-0001/Line 1");
    panel->write(kTasks, listOf(nodeFromJson(R"({"name":"task0"})")));
    Node list = listOf(makeVariable("kept", "int", "1"));
    list.add()->assign(makeVariable("loose", "int", "1", false));
    panel->write(kVariables, list);
    panel->request("monitor.pers.modify", nodeFromJson(R"({"kept":42})"));
    core->station().assignVariable("loose", nodeFromJson("42"));
    panel->request("sys.toolset", nodeFromJson(R"({"name":"grip","end":{"trans":[0,0,0.2],"rot":[0,0,0]},
        "ref":{"trans":[0,0,0],"rot":[0,0,0]},"load":{"mass":4,"cog":[0,0,0],"inertia":[0,0,0]}})"));
    EXPECT_TRUE(core->station().save());
    restart();
    panel->hello();
    EXPECT_EQ("SIM-0001/Line 1", panel->tree.getString(kCurrent));
    EXPECT_EQ("task0", panel->tree.getString(kTasks + ".#0.name"));
    EXPECT_EQ("42", panel->tree.getString(kVariables + ".#0.value.[0][0][0]"));
    EXPECT_EQ("1", panel->tree.getString(kVariables + ".#1.value.[0][0][0]")) << "not persistent";
    EXPECT_EQ("grip", panel->tree.getString(u"quill.body.toolset"));
    EXPECT_EQ(host::summaryOf(makeRecipe("A", 2, 2)).toNode(),
              *panel->request("pallet.get.list").payload.at(0));
    EXPECT_FALSE(core->station().isChanged());
}

// ---------------------------------------------------------------- the held button: whose signs count, what stops the robot

namespace {

class HeldMotion : public ::testing::Test
{
protected:
    HeldMotion()
    {
        panel->hello();
        EXPECT_EQ(host::status::kDone, panel->request("motion.start", move).status);
        panel->wait(0.2);
    }
    Node robot() { return *core.station().tree().find(u"nexo.robot"); }
    bool isMoving() { return robot().getBool(u"moving"); }

    const Node move = nodeFromJson(R"({"type":"l","motion":{"toolset":"no use","speed":250},
        "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0]}})");
    Core core{StationOptions(), "run-1"};
    std::unique_ptr<CorePanel> panel = std::make_unique<CorePanel>(&core, 1);
};

} // namespace

TEST_F(HeldMotion, AStopWaitsForNoEdit)
{
    EXPECT_EQ(host::status::kBehind, panel->request("motion.hold", Node(), 7).status);
    EXPECT_EQ(host::status::kDone, panel->request("motion.stop", Node(), 7).status);
    panel->wait(0.2);
    EXPECT_FALSE(isMoving());
}

TEST_F(HeldMotion, ANewWayStopsItAndSignsOfTheOldOneCountForNothing)
{
    CorePanel again(&core, 2); // the same panel
    again.hello();
    EXPECT_EQ("stopped: the link to the panel is lost", again.tree.getString(u"nexo.robot.fault"));
    again.wait(0.2);
    EXPECT_FALSE(isMoving());
    again.request("motion.start", move);
    for (int i = 0; i < 4; ++i) {
        host::LinkMessage sign;
        sign.kind = Kind::Request;
        sign.name = "motion.hold";
        panel->send(sign);
        again.wait(0.1);
    }
    EXPECT_EQ("stopped: no sign from the held button for 300 ms", robot().getString(u"fault"));
}

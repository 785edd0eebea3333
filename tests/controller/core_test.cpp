#include "core_panel.h"
#include "recipes.h"

#include <QDir>
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
const QString kMonitor = QStringLiteral("quill.project.var_monitor._list");

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
    /// Keeps state and starts again, as after switching the power off and on.
    void saveAndRestart()
    {
        EXPECT_TRUE(core->station().save());
        restart();
        panel->hello();
    }
    void makeProject(const QString &name) { QDir().mkpath(options.workspaceFolder + "/SIM-0001/" + name); }

    QTemporaryDir folder;
    StationOptions options;
    std::unique_ptr<Core> core;
    std::unique_ptr<CorePanel> panel;
};

const char *const kTool = R"({"name":"grip","end":{"trans":[0,0,0.2],"rot":[0,0,0]},
    "ref":{"trans":[0,0,0],"rot":[0,0,0]},"load":{"mass":4,"cog":[0,0,0],"inertia":[0,0,0]}})";

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

TEST_F(CoreTest, GreetsWithItsWholeState)
{
    options.version = "2.4.1";
    options.id = "R7";
    restart();
    const Message hello = panel->hello(5);
    EXPECT_EQ(0u, hello.id);
    EXPECT_EQ(5u, hello.knows) << "it was started anew and goes on with the panel's count";
    EXPECT_EQ("Simulated controller 2.4.1", hello.payload.getString(u"controller"));
    EXPECT_EQ("R7", panel->tree.getString(u"nexo.r.id"));
    EXPECT_EQ("main", panel->tree.getString(u"quill.project.task.default.files.#0.name"));
    EXPECT_EQ("no use", panel->tree.getString(u"quill.body.toolset"));
}

TEST_F(CoreTest, DoesNothingBeforeAHello)
{
    Message request = plain(Kind::Request);
    request.name = "pallet.get.list";
    for (Message message : {request, plain(Kind::Write), plain(Kind::Trigger), plain(Kind::Update)}) {
        panel->send(message);
        EXPECT_EQ(Kind::Error, panel->last().kind);
        EXPECT_EQ("frame", panel->last().name);
    }
    panel->send(plain(Kind::Ping));
    panel->wait(3);
    EXPECT_TRUE(panel->received.empty()) << "nor is anybody told anything";
}

TEST_F(CoreTest, AnswersWhatItCannotReadAndGoesOn)
{
    Message hello = plain(Kind::Hello);
    panel->send(hello);
    EXPECT_EQ("frame", panel->last().name) << "a Hello without a session";
    hello.version = 9;
    panel->send(hello);
    EXPECT_EQ("version", panel->last().name);
    EXPECT_EQ("The panel speaks version 9 of the link, the controller version 1.", panel->last().text);
    panel->hello();
    const std::string good = host::encodeFrame(plain(Kind::Ping));
    std::string damaged = good;
    damaged.back() = '!';
    for (const std::string &frame : {std::string(), std::string("nonsense"), damaged, good.substr(0, 17)}) {
        panel->sendFrame(frame);
        EXPECT_EQ(Kind::Error, panel->last().kind);
        EXPECT_EQ("frame", panel->last().name);
        EXPECT_NE(QString(), panel->last().text);
    }
    panel->send(plain(Kind::Update));
    EXPECT_EQ("a panel sends no message of the kind 4", panel->last().text);
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

TEST_F(CoreTest, TheSamePanelOnANewWayGoesOn)
{
    panel->hello();
    panel->write(kCurrent, "SIM-0001/A");
    CorePanel again(core.get(), 2, "panel-1");
    EXPECT_EQ(1u, again.hello(0).knows) << "the count that it has, not the one that the panel remembers";
    panel->wait(0.005);
    EXPECT_EQ(0u, core->takeOutgoing().size());
    CorePanel other(core.get(), 3, "panel-2");
    EXPECT_EQ("busy", other.hello().name);
    core->peerGone(2);
    EXPECT_EQ(7u, other.hello(7).knows) << "another panel counts for itself";
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
    Node deep;
    Node *node = &deep;
    for (int i = 0; i < 150; ++i)
        node = node->add();
    const struct
    {
        QString path;
        Node value;
    } cases[] = {
        {"nexo.r.id", nodeFromJson("\"evil\"")},
        {"quill.body.toolset", nodeFromJson("\"evil\"")},
        {"quill.projector", nodeFromJson("1")},
        {"quill.project", nodeFromJson("1")},
        {"quill.project.cur_project.below", nodeFromJson("1")},
        {"quill.project.task._list.#7", nodeFromJson("1")},
        {"quill.project..x", nodeFromJson("1")},
        {"quill.project.deep", deep},
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
    panel->trigger("quill.project.rsync.explode");
    EXPECT_EQ("there is no event \"quill.project.rsync.explode\"", panel->received[0].text);
    EXPECT_EQ(host::status::kDone, panel->request("link.info", Node(), panel->edits).status);
}

TEST_F(CoreTest, BearsAnyShapeThatThePanelGivesTheProject)
{
    panel->hello();
    for (const char *path :
         {"task", "var", "var._list", "var_monitor", "cur_project", "autoload_prj_path", "_list"})
        for (const char *value : {"null", "[1,2]", "{}", R"([{"name":[]}])"}) {
            panel->write(QStringLiteral("quill.project.") + QLatin1String(path), nodeFromJson(value));
            panel->request("monitor.pers.modify", nodeFromJson(R"({"a":1})"));
            panel->request("project.remove_task", nodeFromJson(R"({"name":"A"})"));
            panel->trigger("quill.project.rsync.build");
            panel->trigger("quill.project.rsync.push");
            panel->trigger("quill.project.refresh_project");
            panel->write(kCurrent, "SIM-0001/A");
            EXPECT_EQ(*core->station().tree().find(u"quill.project"), *panel->tree.find(u"quill.project"));
        }
    EXPECT_TRUE(core->station().save());
    EXPECT_EQ(Kind::Hello, panel->hello().kind);
}

TEST_F(CoreTest, ASwitchExchangesTheLists)
{
    panel->hello();
    panel->write(kCurrent, "SIM-0001/A");
    EXPECT_EQ((QStringList{kTasks, kVariables, kMonitor}), panel->updatePaths().mid(0, 3))
        << "told also when they did not change";
    EXPECT_EQ(Kind::Ping, panel->last().kind) << "and before the edit is confirmed";
    panel->write(kTasks, listOf(nodeFromJson(R"({"name":"task0"})")));
    panel->write(kVariables, listOf(makeVariable("a", "int", "1")));
    panel->request("monitor.pers.modify", nodeFromJson(R"({"a":5})"));
    panel->write(kCurrent, "SIM-0001/B");
    EXPECT_EQ(0, panel->tree.find(kTasks)->size());
    EXPECT_EQ(0, panel->tree.find(kVariables)->size());
    EXPECT_EQ(host::status::kRefused,
              panel->request("monitor.pers.modify", nodeFromJson(R"({"a":6})")).status);
    panel->write(kCurrent, "SIM-0001/A");
    EXPECT_EQ("task0", panel->tree.getString(kTasks + ".#0.name"));
    EXPECT_EQ("5", panel->tree.getString(kVariables + ".#0.value.[0][0][0]"));
    panel->request("project.remove_task", nodeFromJson(R"({"name":"A"})"));
    EXPECT_EQ((QStringList{kTasks}), panel->updatePaths()) << "an edit of the current project, not its end";
}

TEST_F(CoreTest, ADeletedProjectStartsAfresh)
{
    panel->hello();
    for (const bool isCurrent : {true, false}) {
        panel->write(kCurrent, "SIM-0001/A");
        panel->write(kTasks, listOf(nodeFromJson(R"({"name":"task0"})")));
        panel->write(kVariables, listOf(makeVariable("a", "int", "1")));
        if (!isCurrent)
            panel->write(kCurrent, "SIM-0001/B");
        panel->request("project.remove_task", nodeFromJson(R"({"name":"A"})"));
        panel->write(kCurrent, "");
        panel->write(kCurrent, "SIM-0001/A");
        EXPECT_EQ(0, panel->tree.find(kVariables)->size()) << (isCurrent ? "current" : "not current");
        EXPECT_EQ(0, panel->tree.find(kTasks)->size());
    }
}

TEST_F(CoreTest, BuildsAProjectThatHasItsFolder)
{
    makeProject("A");
    panel->hello();
    const auto isBuilt = [this](const char *project) {
        panel->write(kCurrent, QLatin1String(project));
        EXPECT_FALSE(panel->tree.getBool(u"quill.project.task.built")) << "another project";
        panel->trigger("quill.project.rsync.build");
        return panel->tree.getBool(u"quill.project.task.built");
    };
    EXPECT_TRUE(isBuilt("SIM-0001/A"));
    for (const char *name : {"SIM-0001/missing", "../../../../../../../../usr"}) {
        EXPECT_FALSE(isBuilt(name)) << name;
        ASSERT_EQ(1, panel->count(Kind::Event));
        EXPECT_EQ("controller.notice", panel->received[0].name);
        EXPECT_EQ("error", panel->received[0].payload.getString(u"level"));
        EXPECT_TRUE(
            panel->received[0].payload.getString(u"text").contains("cannot be built: it has no folder"));
    }
    EXPECT_TRUE(isBuilt("")) << "no project is built at once";
}

TEST_F(CoreTest, WithoutAWorkspaceNothingOfTheWorkingFolderIsTaken)
{
    options.workspaceFolder.clear();
    options.id = "tmp";
    restart();
    panel->hello();
    panel->write(kCurrent, "tmp");
    panel->trigger("quill.project.rsync.build");
    EXPECT_FALSE(panel->tree.getBool(u"quill.project.task.built"));
    EXPECT_EQ(0, panel->tree.find(u"quill.project._list")->size());
}

TEST_F(CoreTest, ReadsTheListOfProjectsAnew)
{
    for (const char *name : {"B", "A", "_build", "palx_default", ".palx-staging"})
        makeProject(name);
    panel->hello();
    panel->trigger("quill.project.refresh_project");
    EXPECT_EQ(nodeFromJson(R"(["A","B"])"), *panel->tree.find(u"quill.project._list"));
    makeProject("C");
    panel->trigger("quill.project.refresh_project");
    EXPECT_EQ(nodeFromJson(R"(["A","B","C"])"), *panel->tree.find(u"quill.project._list"));
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
    panel->request("sys.toolset", nodeFromJson(kTool));
    saveAndRestart();
    EXPECT_EQ("SIM-0001/Line 1", panel->tree.getString(kCurrent));
    EXPECT_EQ("task0", panel->tree.getString(kTasks + ".#0.name"));
    EXPECT_EQ("42", panel->tree.getString(kVariables + ".#0.value.[0][0][0]"));
    EXPECT_EQ("1", panel->tree.getString(kVariables + ".#1.value.[0][0][0]")) << "not persistent";
    EXPECT_EQ("grip", panel->tree.getString(u"quill.body.toolset"));
    EXPECT_EQ(host::summaryOf(makeRecipe("A", 2, 2)).toNode(),
              *panel->request("pallet.get.list").payload.at(0));
    EXPECT_FALSE(core->station().isChanged());
}

TEST_F(CoreTest, StartsWithTheProjectThatIsSetForIt)
{
    options.dataFolder = folder.filePath("data");
    restart();
    panel->hello();
    panel->write(kCurrent, "SIM-0001/A");
    panel->write(kTasks, listOf(nodeFromJson(R"({"name":"a"})")));
    panel->write(kCurrent, "SIM-0001/B");
    panel->request("project.overview.set_autoload",
                   nodeFromJson(R"({"autoload_prj_path":"A/_build/A.prj"})"));
    saveAndRestart();
    EXPECT_EQ("A/_build/A.prj", panel->tree.getString(u"quill.project.autoload_prj_path"));
    EXPECT_EQ("SIM-0001/A", panel->tree.getString(kCurrent));
    EXPECT_EQ("a", panel->tree.getString(kTasks + ".#0.name"));
}

TEST_F(CoreTest, ReportsDamagedStateToThePanel)
{
    options.dataFolder = folder.filePath("data");
    restart();
    EXPECT_TRUE(core->station().save());
    core.reset();
    QFile file(options.dataFolder + "/controller.state");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("palx_controller 1 7 0\n{\"id\":");
    file.close();
    restart();
    panel->hello();
    const QString report = panel->tree.getString(u"nexo.r.report.#0");
    EXPECT_TRUE(report.startsWith("\"controller.state\" is damaged")) << report;
    EXPECT_EQ(1, panel->count(Kind::Event));
    EXPECT_EQ("SIM-0001", panel->tree.getString(u"nexo.r.id"));
}

TEST_F(CoreTest, WorksWithoutAFolderAndSaysSo)
{
    options.dataFolder = folder.filePath("data");
    const Core first(options);
    restart();
    panel->hello();
    EXPECT_EQ(QStringLiteral("nothing will be kept: another controller uses the folder \"%1\"")
                  .arg(options.dataFolder),
              panel->tree.getString(u"nexo.r.report.#0"));
    EXPECT_EQ(host::status::kDone, panel->request("pallet.set.one", makeRecipe("A", 1, 1)).status);
    EXPECT_TRUE(core->station().save());
}

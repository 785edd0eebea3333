// What the panel changes below "quill.project": found, sent in order, never lost and never doubled.

#include "fake_controller.h"

#include "nexo/setting_manager.h"

#include <QPointer>

#include <gtest/gtest.h>
using host::ControllerLink;
using host::LinkMessage;
using orba::ModuleObject;
using Kind = LinkMessage::Kind;

namespace {

void addVariable(const char *name)
{
    ModuleObject *variable = m("quill.project.var._list")->addUnnamed();
    variable->ensure("name")->set(nullptr, "", QString::fromLatin1(name));
}

void setAutoload(const char *path)
{
    m("quill.project")->set(nullptr, "autoload_prj_path", QString::fromLatin1(path));
}

const QString kBuild = QStringLiteral("quill.project.rsync.build !");

QStringList autoloads(int from, int to)
{
    QStringList edits;
    for (int i = from; i <= to; ++i)
        edits << QStringLiteral("quill.project.autoload_prj_path = \"%1\"").arg(i) << kBuild;
    return edits;
}

/// An edit and a trigger behind it, `from` to `to` times.
void editAndTrigger(int from, int to)
{
    for (int i = from; i <= to; ++i) {
        setAutoload(QByteArray::number(i));
        m("quill.project.rsync.build")->trigger();
    }
}

} // namespace

TEST_F(LinkTest, EditsAreFoundWhenTheEventLoopRests)
{
    connectLink();
    addVariable("flagL");
    setAutoload("P");
    m("quill.toolpage")->set(nullptr, "toolset", QStringLiteral("A")); // these stay in the panel
    rest();
    EXPECT_EQ(controller.edits, QStringList({"quill.project.autoload_prj_path = \"P\"",
                                             "quill.project.var._list = [{\"name\":\"flagL\"}]"}));
    addVariable("flagR");
    m("quill.project.var._list.#0.name")->node().setString(QStringLiteral("flag")); // nobody is told
    controller.edits.clear();
    rest();
    rest();
    EXPECT_EQ(controller.edits, QStringList({"quill.project.var._list.#0.name = \"flag\"",
                                             "quill.project.var._list.#1 = {\"name\":\"flagR\"}"}));
    EXPECT_EQ(link->figures().resentEdits, 0);
}

TEST_F(LinkTest, EditsGoBeforeARequestAndATrigger)
{
    connectLink();
    editAndTrigger(1, 100); // more than may be under way, and nobody has time for the answers
    EXPECT_LT(controller.edits.size(), 200);
    EXPECT_TRUE(xservice()->get(nullptr, QStringLiteral("link.info")).isOk());
    EXPECT_EQ(controller.edits, autoloads(1, 100));
    EXPECT_EQ(controller.seen.back().knows, 200u);
}

TEST_F(LinkTest, ANewLinkGoesOnWhereTheControllerIs)
{
    connectLink();
    controller.takesEdits = false;
    int done = 0;
    for (const int takenInSecret : {0, 1, 4}) { // by the controller, and the panel does not know it
        editAndTrigger(done + 1, done + 2);     // four edits
        done += 2;
        QStringList expected = autoloads(done - 1, done);
        controller.breakWay("cut");
        settle();
        controller.taken += static_cast<std::uint64_t>(takenInSecret);
        controller.takesEdits = true;
        controller.edits.clear();
        controller.openWay();
        settle();
        EXPECT_EQ(controller.edits, expected.mid(takenInSecret)) << takenInSecret;
        controller.takesEdits = false;
    }
}

TEST_F(LinkTest, ARequestThatOvertookItsEditsComesAgain)
{
    connectLink();
    setAutoload("P");
    controller.losesFrames = 1;
    EXPECT_TRUE(xservice()->execCommand(nullptr, QStringLiteral("project.remove_task"), nullptr).isOk());
    const std::vector<LinkMessage> &seen = controller.seen;
    ASSERT_EQ(controller.count(Kind::Request), 2);
    EXPECT_EQ(seen.at(1).kind, Kind::Request);
    EXPECT_EQ(seen.at(2).kind, Kind::Write);
    EXPECT_EQ(seen.back().id, seen.at(1).id);
    EXPECT_EQ(link->figures().droppedReplies, 0);
}

// ---------------------------------------------------------------- edits and updates meet

TEST_F(LinkTest, AnUpdateDoesNotUndoALaterEdit)
{
    const struct
    {
        const char *path, *json; ///< as the controller knew it before the edit
        int other;               ///< what is told of the variable beside it
    } cases[] = {
        {"quill.project.var._list.#0.value", "1", 2},
        {"quill.project.var", R"({"_list": [{"name": "a", "value": 1}, {"name": "b", "value": 30}]})", 30},
    };
    connectLink();
    const auto value = [](int i) { return m("quill.project.var._list")->c(i)->getInt("value"); };
    for (const auto &item : cases) {
        controller.takesEdits = true;
        controller.update("quill.project.var._list",
                          R"([{"name": "a", "value": 1}, {"name": "b", "value": 2}])");
        settle();
        controller.takesEdits = false;
        m("quill.project.var._list.#0")->set(nullptr, "value", 9);
        controller.update(item.path, item.json);
        settle();
        EXPECT_EQ(value(0), 9) << item.path;
        EXPECT_EQ(value(1), item.other) << item.path;
        controller.takesEdits = true;
        rest();
        pass(ControllerLink::kResendMs);
        controller.update("quill.project.var._list.#0.value", "10"); // which knows the edit
        settle();
        EXPECT_EQ(value(0), 10);
    }
}

TEST_F(LinkTest, TheStateOfAGreetingDoesNotUndoEditsEither)
{
    connectLink();
    controller.breakWay("pulled");
    settle();
    setAutoload("mine");
    addVariable("mine");
    controller.state = nodeFromJson(
        R"([{"path": "quill.project", "value": {"cur_project": "R7/P", "autoload_prj_path": "theirs",
                                          "var": {"_list": [{"name": "old"}]}}}])");
    controller.openWay();
    settle();
    EXPECT_EQ(m("quill.project.cur_project")->getString(), QStringLiteral("R7/P"));
    EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QStringLiteral("mine"));
    EXPECT_EQ(m("quill.project.var._list")->getString("#0.name"), QStringLiteral("mine"));
    EXPECT_EQ(controller.edits, QStringList({"quill.project.autoload_prj_path = \"mine\"",
                                             "quill.project.var._list = [{\"name\":\"mine\"}]"}));
}

// ---------------------------------------------------------------- another project

namespace {

/// Answers the switch as a controller does: takes it, tells the lists of that project, then says so.
void answerSwitches(FakeController *controller, const char *tasks)
{
    controller->onMessage = [controller, tasks](const LinkMessage &message) {
        if (message.kind == Kind::Write && message.name == QLatin1String("quill.project.cur_project") &&
            message.id == controller->taken + 1) {
            ++controller->taken;
            controller->edits.append(QStringLiteral("switch ") + message.payload.toString());
            controller->update("quill.project.task._list", tasks);
            controller->update("quill.project.var._list", "[]");
            controller->ping();
            return true;
        }
        return false;
    };
}

void switchTo(const char *project)
{
    m("quill.project")->set(nullptr, "cur_project", QString::fromLatin1(project));
}

} // namespace

TEST_F(LinkTest, AfterASwitchTheListsAreThoseOfTheProject)
{
    controller.state = nodeFromJson(R"([{"path": "quill.project", "value": {"cur_project": "R7/A",
        "task": {"_list": [{"name": "task0"}, {"name": "task1"}]}, "var": {"_list": [{"name": "a"}]}}}])");
    connectLink();
    answerSwitches(&controller, R"([{"name": "other"}])");
    const QPointer<ModuleObject> tasks = m("quill.project.task._list");
    m("quill.project.task._list.#0")->ensure("built")->set(nullptr, "", false); // of the old project
    switchTo("R7/B");
    EXPECT_EQ(tasks->cmobjCount(), 1); // when set returns
    EXPECT_EQ(tasks.data(), m("quill.project.task._list"));
    EXPECT_EQ(tasks->getString("#0.name"), QStringLiteral("other"));
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 0);
    addVariable("b");
    rest();
    EXPECT_EQ(controller.edits, QStringList({"quill.project.task._list.#0.built = false", "switch R7/B",
                                             "quill.project.var._list = [{\"name\":\"b\"}]"}));
}

TEST_F(LinkTest, ASwitchWithoutALinkBeginsWithEmptyListsAndKeepsThemUntilItIsTaken)
{
    controller.state = nodeFromJson(R"([{"path": "quill.project", "value": {"cur_project": "R7/A",
        "task": {"_list": [{"name": "task0"}]}, "var": {"_list": [{"name": "a"}]}}}])");
    connectLink();
    answerSwitches(&controller, R"([{"name": "kept"}])");
    const QPointer<ModuleObject> list = m("quill.project.var._list");
    controller.breakWay("pulled");
    settle();
    switchTo("R7/B");
    EXPECT_EQ(list->cmobjCount(), 0);
    addVariable("b");
    controller.takesLate = true;
    controller.openWay(); // its greeting still tells the lists of the old project
    settle();
    controller.update("quill.project.task._list", R"([{"name": "task0"}])", 0);
    controller.update("quill.project.var._list.#0.name", "\"a\"", 0);
    settle();
    EXPECT_EQ(m("quill.project.task._list")->cmobjCount(), 0);
    controller.takesLate = false;
    controller.event("sign.of.life");
    settle();
    pass(ControllerLink::kResendMs);
    ASSERT_TRUE(list && list->cmobjCount() == 1);
    EXPECT_EQ(list->getString("#0.name"), QStringLiteral("b"));
    EXPECT_EQ(m("quill.project.task._list")->getString("#0.name"), QStringLiteral("kept"));
    EXPECT_EQ(controller.edits, QStringList({"switch R7/B", "quill.project.var._list = [{\"name\":\"b\"}]"}));
}

TEST_F(LinkTest, ASwitchThatIsNotAnsweredEndsAfterTheTimeout)
{
    nexo::SettingManager::instance()->setOverride(QStringLiteral("rc_timeout"), QStringLiteral("100"));
    controller.state =
        nodeFromJson(R"([{"path": "quill.project.task._list", "value": [{"name": "task0"}]}])");
    connectLink();
    controller.losesFrames = 1;
    switchTo("R7/B");
    EXPECT_EQ(m("quill.project.task._list")->cmobjCount(), 0);
    answerSwitches(&controller, R"([{"name": "kept"}])");
    pass(ControllerLink::kResendMs);
    EXPECT_EQ(m("quill.project.task._list")->getString("#0.name"), QStringLiteral("kept"));
}

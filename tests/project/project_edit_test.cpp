// Editing, deleting, switching: the order of things, the start-up project, and that nothing else is touched.

#include "project_fixture.h"

#include "formats/obstacles.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "project/rules/staged_folder.h"
#include "workstation/plugin_node.h"

#include <QDir>

#include <optional>

using orba::Node;

namespace {

const char *const kBoth = R"({"scheme_layout": 2, "bollard": 1})";
const QString kBothTask = QStringLiteral("task0: main BackHome Init ZuoMaduo YouMaduo");

QString startUp()
{
    return m("quill.project.autoload_prj_path")->getString();
}

/// What the panel and the controller know of projects, to be compared whole.
std::string stateText()
{
    Node state;
    state.ensure(u"projects")->assign(palx::projectsNode()->node());
    state.ensure(u"project")->assign(m("quill.project")->node());
    state.remove(u"project._list"); // the folders, as the controller saw them last
    for (const char *part : {"task", "var", "var_monitor"})
        state.remove(QStringLiteral("project.%1.built").arg(QLatin1String(part)));
    return nodeText(state).toStdString();
}

} // namespace

TEST_F(ProjectTest, AnEditMakesTheProjectAnew)
{
    add(QStringLiteral("P"));
    putFile(QStringLiteral("P/task0/own.mod"), "by hand");
    palx::createVar(QStringLiteral("mine"), QString(), QStringLiteral("int"), QStringLiteral("5"));
    add(QStringLiteral("Other"));
    ASSERT_TRUE(palx::setDefaultProject(QStringLiteral("P")));
    takeMessages();
    presenter.answer(true);
    steps.parameters = nodeFromJson(kBoth);
    ASSERT_TRUE(palx::editProject(QStringLiteral("P"), QStringLiteral("P"), &steps));
    EXPECT_EQ(takeMessages(), QStringList({"ask: Are you sure to update and switch to project P?",
                                           "info: Set P to auto load project success!"}));
    const auto after = files();
    EXPECT_EQ(after.count("SIM-0001/P/task0/own.mod"), 0U);
    EXPECT_EQ(after.count("SIM-0001/P/task5/"), 0U);
    EXPECT_EQ(after.count("SIM-0001/P/task0/YouMaduo.mod"), 1U);
    EXPECT_EQ(after.count(".palx-staging/"), 0U);
    start();
    EXPECT_EQ(tasks(), QStringList({kBothTask, "task1: main", "task2: main", "task3: main", "task4: main"}));
    EXPECT_EQ(palx::projectRecord("P")->getInt("scheme_layout"), 2);
    EXPECT_EQ(startUp(), QStringLiteral("P/_build/P.prj"));
    EXPECT_TRUE(palx::checkVarExists(QStringLiteral("mine"))) << "though another one was current";
}

TEST_F(ProjectTest, ARenamedProjectLeavesNothingOfItsOldName)
{
    add(QStringLiteral("Other"));
    const auto other = files();
    add(QStringLiteral("P"));
    presenter.answer(true);
    steps.parameters = nodeFromJson(kBoth);
    ASSERT_TRUE(palx::editProject(QStringLiteral("Q"), QStringLiteral("P"), &steps));
    EXPECT_EQ(takeMessages(), QStringList("ask: Are you sure to update and switch to project Q?"));
    settle(); // the controller builds it
    ASSERT_TRUE(palx::removeFolder(place(QStringLiteral("Q"))));
    EXPECT_EQ(files(), other);
    EXPECT_TRUE(palx::projectRecord("P")->isEmptyMobj());
    start();
    EXPECT_EQ(current(), QStringLiteral("SIM-0001/Q"));
    EXPECT_EQ(tasks().size(), 5);
    EXPECT_EQ(startUp(), QStringLiteral("Q")); // the bare name: the comparison comes after the change
}

TEST_F(ProjectTest, AFailedCommitLeavesTheOldProjectWhole)
{
    add(QStringLiteral("Other"), kBoth);
    add(QStringLiteral("P"));
    ASSERT_TRUE(palx::setDefaultProject(QStringLiteral("P")));
    takeMessages();
    const struct
    {
        const char *name;
        const char *oldName; ///< null: an added one
        rlim_t room;         ///< bytes that a file may have
    } cases[] = {{"P", "P", 900}, {"New", "P", 10}, {"New", nullptr, 900}};
    const auto before = files();
    const std::string state = stateText();
    for (const auto &each : cases) {
        presenter.answer(true);
        steps.parameters = nodeFromJson(kBoth);
        bool isDone = true;
        {
            const FullDisk full(each.room);
            isDone = each.oldName ? palx::editProject(each.name, each.oldName, &steps)
                                  : palx::addProject(each.name, std::nullopt, &steps);
        }
        EXPECT_FALSE(isDone);
        EXPECT_TRUE(takeMessages().join('|').contains("error: Cannot write to file: ")) << each.name;
        EXPECT_EQ(files(), before) << each.name;
        EXPECT_EQ(stateText(), state) << each.name;
        start(); // and so does the controller
        EXPECT_EQ(stateText(), state) << each.name;
    }
}

TEST_F(ProjectTest, DeletingRemovesTheProjectAndNothingElse)
{
    add(QStringLiteral("Other"));
    const auto other = files();
    for (const bool isCurrent : {true, false}) {
        add(QStringLiteral("P"));
        if (!isCurrent) {
            presenter.answer(true);
            ASSERT_TRUE(palx::reloadProject(QStringLiteral("Other"), &steps));
            ASSERT_TRUE(palx::setDefaultProject(QStringLiteral("P")));
        }
        takeMessages();
        presenter.answer(true);
        ASSERT_TRUE(palx::deleteProject(QStringLiteral("P"), &steps));
        EXPECT_EQ(takeMessages(),
                  QStringList({"ask: Are you sure to delete project P?", "info: Project P removed"}));
        EXPECT_EQ(files(), other);
        EXPECT_TRUE(palx::projectRecord("P")->isEmptyMobj());
        start();
        EXPECT_EQ(current(), isCurrent ? QString() : QStringLiteral("SIM-0001/Other"));
        EXPECT_EQ(startUp(), QString());
        EXPECT_EQ(tasks().size(), isCurrent ? 0 : 6);
    }
}

TEST_F(ProjectTest, EditsAndDeletionsCanBeRefused)
{
    add(QStringLiteral("P"));
    add(QStringLiteral("Q"));
    const QString removing = QStringLiteral("error: Remove folder %1 failed");
    const struct
    {
        QString name;
        bool answer;
        bool isEdit; ///< of the project P
        bool isLocked;
        QString message;
    } cases[] = {{"Q", true, true, false, "error: Cannot rename to an existing project"},
                 {"../P", true, true, false, "error: Try to add invalid project name"},
                 {QString(), true, false, false, "error: Cannot remove empty project"},
                 {"P", false, false, false, "ask: Are you sure to delete project P?"},
                 {"../SIM-0001", true, false, false, removing.arg("../SIM-0001")},
                 {"P", true, false, true, removing.arg(place("P"))}};
    const auto before = files();
    const std::string state = stateText();
    for (const auto &each : cases) {
        presenter.answer(each.answer);
        const auto act = [&] {
            return each.isEdit ? palx::editProject(each.name, QStringLiteral("P"), &steps)
                               : palx::deleteProject(each.name, &steps);
        };
        std::optional<ReadOnlyFolder> locked;
        if (each.isLocked)
            locked.emplace(place(QString()));
        EXPECT_FALSE(act());
        locked.reset();
        EXPECT_EQ(takeMessages().last(), each.message);
        EXPECT_EQ(files(), before);
        EXPECT_EQ(stateText(), state);
    }
}

TEST_F(ProjectTest, AnInterruptedOperationIsPutRight)
{
    add(QStringLiteral("P"));
    const auto before = files();
    const QDir top(workspace());
    for (const bool isBegun : {false, true}) { // the power failed before or after the new folder was made
        ASSERT_TRUE(top.mkpath(QStringLiteral(".palx-staging/SIM-0001")));
        ASSERT_TRUE(top.mkpath(QStringLiteral(".palx-staging/.discarded/0/task0")));
        ASSERT_TRUE(QDir().rename(place(QStringLiteral("P")),
                                  top.filePath(QStringLiteral(".palx-staging/SIM-0001/P"))));
        if (isBegun)
            putFile(QStringLiteral("P/task0/main.mod"), "half");
        presenter.answer(false);
        EXPECT_FALSE(palx::editProject(QStringLiteral("P"), QStringLiteral("P"), &steps));
        EXPECT_EQ(files(), before);
    }
}

// Making a project: refusals, what it consists of, and what reaches the controller.

#include "project_fixture.h"

#include "nexo/controller_manager.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"

#include <QDir>

using orba::Node;

namespace {

const char *const kRight = R"({"scheme_layout": 1, "palletizing_type": 1, "type_of_sucker": 1, "bollard": 1,
                               "clapboard": 1, "left_stack_recipe": 2, "right_stack_recipe": 3})";

} // namespace

TEST_F(ProjectTest, WhatCannotBeAddedChangesNothing)
{
    QDir().mkpath(place(QStringLiteral("taken")));
    const QString invalid = QStringLiteral("error: Try to add invalid project name");
    const QString tooLong(256, QLatin1Char('a'));
    const struct
    {
        QString name;
        bool answer;
        QString message;
    } cases[] = {
        {QString(), true, invalid},
        {"_temp", true, invalid},
        {"a/b", true, invalid},
        {QStringLiteral("a") + QChar::Null, true, invalid},
        {"taken", true, "error: Project already exists"},
        {tooLong, true, "error: Cannot create path: " + place(tooLong)},
        {"P", false, "ask: Are you sure to create and switch to new project: P?"},
    };
    const auto before = files();
    for (const auto &each : cases) {
        presenter.answer(each.answer);
        EXPECT_FALSE(palx::addProject(each.name, std::nullopt, &steps));
        EXPECT_EQ(takeMessages().last(), each.message);
        EXPECT_EQ(files(), before);
        EXPECT_EQ(palx::projectsNode()->cmobjCount(), 0);
    }
    EXPECT_EQ(current(), QString());
}

TEST_F(ProjectTest, AnAddedProjectHasItsPartsEverywhere)
{
    presenter.answer(true);
    steps.parameters = nodeFromJson(kRight);
    ASSERT_TRUE(palx::addProject(QStringLiteral("P"), std::nullopt, &steps));
    EXPECT_EQ(takeMessages(), QStringList({"ask: Are you sure to create and switch to new project: P?",
                                           "info: Set P to auto load project success!"}));
    EXPECT_EQ(palx::projectRecord("P")->node(),
              nodeFromJson(R"({"name": "P", "scheme_layout": 1, "palletizing_type": 1,
        "type_of_sucker": 1, "bollard": 1, "clapboard": 1, "left_stack_recipe": 2, "right_stack_recipe": 3})"));
    settle(); // the controller builds it
    QStringList paths;
    for (const auto &each : files())
        paths.append(QString::fromStdString(each.first).section('/', 2));
    EXPECT_EQ(paths.join(' '),
              QStringLiteral("  .rlprog task0/ task0/BackHome.mod task0/Init.mod task0/YouMaduo.mod "
                             "task0/main.mod task1/ task1/main.mod task2/ task2/main.mod task3/ "
                             "task3/main.mod task4/ task4/main.mod var.json var.xml var_monitor.json"));
    start(); // what the controller knows
    EXPECT_EQ(current(), QStringLiteral("SIM-0001/P"));
    EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QStringLiteral("P/_build/P.prj"));
    EXPECT_EQ(tasks(), QStringList({"task0: main BackHome Init YouMaduo", "task1: main", "task2: main",
                                    "task3: main", "task4: main"}));
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 38);
    EXPECT_TRUE(m("quill.project.task.built")->getBool());
}

TEST_F(ProjectTest, WithThePlugPulledTheControllerGetsTheProjectLater)
{
    add(QStringLiteral("A"));
    const auto isConnected = [] { return nexo::ControllerManager::instance()->rcConnected(); };
    pullPlug();
    ASSERT_TRUE(waitUntil([&] { return !isConnected(); }));
    takeMessages();
    presenter.answer(true);
    steps.parameters = nodeFromJson(kRight);
    EXPECT_TRUE(palx::addProject(QStringLiteral("B"), std::nullopt, &steps));
    EXPECT_EQ(takeMessages().last(),
              QStringLiteral("error: The controller did not take the start-up project"));
    plugIn();
    ASSERT_TRUE(waitUntil(isConnected));
    start();
    EXPECT_EQ(current(), QStringLiteral("SIM-0001/B"));
    EXPECT_EQ(tasks().first(), QStringLiteral("task0: main BackHome Init YouMaduo"));
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 38);
    EXPECT_EQ(m("quill.project.autoload_prj_path")->getString(), QStringLiteral("A/_build/A.prj"));
}

// Requests for programs and the cell, and what the panel is told.

#include "controller/core.h"
#include "controller/core_panel.h"
#include "controller/recipes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using orba::Node;

namespace {

constexpr const char *kLoop = "GLOBAL PROC main()\n    WHILE true\n        Wait(1)\n        count := count + "
                              "1\n    ENDWHILE\nENDPROC\n";

class DeskTest : public ::testing::Test
{
protected:
    DeskTest() : core(options(), QStringLiteral("run")), panel(&core, 1) { panel.hello(); }
    controller::StationOptions options() const
    {
        controller::StationOptions made;
        made.workspaceFolder = folder.path();
        return made;
    }
    void makeProject(const char *program)
    {
        QDir(folder.path()).mkpath(QStringLiteral("SIM-0001/P/task0"));
        QFile file(folder.filePath(QStringLiteral("SIM-0001/P/task0/main.mod")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(program);
        file.close();
        panel.write(QStringLiteral("quill.project.cur_project"), QStringLiteral("SIM-0001/P"));
        panel.write(QStringLiteral("quill.project.task._list"),
                    nodeFromJson(R"([{"name":"task0","description":"Default","type":"motion","priority":2,
                                      "files":[{"name":"main","type":"MOD"}]}])"));
        Node variables;
        variables.reset(Node::Kind::List);
        variables.add()->assign(makeVariable("count", "int", "0"));
        panel.write(QStringLiteral("quill.project.var._list"), variables);
    }
    QString ask(const char *name, const char *payload = "null")
    {
        return panel.request(QString::fromLatin1(name), nodeFromJson(payload)).text;
    }
    QString cell(const char *path) const
    {
        return panel.tree.getString(QStringLiteral("nexo.cell.") + QLatin1String(path));
    }

    QTemporaryDir folder;
    controller::Core core;
    CorePanel panel;
};

struct RefusalCase
{
    const char *request;
    const char *payload;
    const char *why;
};

} // namespace

TEST_F(DeskTest, RunsPausesAndStopsTheProgramsOfTheProject)
{
    makeProject(kLoop);
    EXPECT_EQ("", ask("program.run"));
    EXPECT_EQ("running", cell("program.state"));
    panel.wait(3.5);
    EXPECT_EQ("3", panel.tree.getString(u"quill.project.var._list.#0.value.#0")) << "in real time";
    EXPECT_EQ("task0", cell("tasks.#0.name"));
    EXPECT_EQ("Default", cell("tasks.#0.description"));
    EXPECT_EQ("main.mod", cell("tasks.#0.file"));
    EXPECT_EQ("3", cell("tasks.#0.line"));
    EXPECT_EQ("waiting", cell("tasks.#0.state"));
    EXPECT_EQ("", ask("program.pause"));
    EXPECT_EQ("paused", cell("program.state"));
    EXPECT_EQ("paused at the panel", cell("program.why"));
    panel.wait(5);
    EXPECT_EQ("3", panel.tree.getString(u"quill.project.var._list.#0.value.#0"));
    EXPECT_EQ("", ask("program.speed", R"({"factor":10})"));
    EXPECT_EQ("", ask("program.run"));
    panel.wait(1);
    EXPECT_GE(panel.tree.getInt(u"quill.project.var._list.#0.value.#0"), 12);
    EXPECT_EQ("", ask("program.stop"));
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_FALSE(core.station().isBusy());
}

TEST_F(DeskTest, ThePanelChangesAVariableOfARunningProgram)
{
    makeProject(kLoop);
    ask("program.run");
    panel.wait(1.5);
    EXPECT_EQ("", ask("monitor.pers.modify", R"({"count":100})"));
    panel.wait(1);
    EXPECT_EQ("101", panel.tree.getString(u"quill.project.var._list.#0.value.#0"));
}

TEST_F(DeskTest, TellsProblemsOfProgramsWhenTheyAreBuiltAndRefusesToRunThem)
{
    makeProject("GLOBAL PROC main()\n    counts := 1\n    SetDO(DO9_9, true)\nENDPROC\n");
    panel.trigger(QStringLiteral("quill.project.rsync.build"));
    ASSERT_EQ(2, panel.tree.find(u"nexo.cell.program.problems")->size());
    const QString first = cell("program.problems.#0");
    EXPECT_TRUE(first.startsWith(QStringLiteral("task0/main.mod:2:5: "))) << first;
    EXPECT_EQ(2, panel.count(CorePanel::Kind::Event));
    EXPECT_EQ("the programs have problems: " + first, ask("program.run"));
    EXPECT_EQ("stopped", cell("program.state"));
}

TEST_F(DeskTest, TellsWhyAProgramStopped)
{
    makeProject("GLOBAL PROC main()\n    Wait(1)\n    PalletUpdate(\"none\", 1, 1)\nENDPROC\n");
    EXPECT_EQ("", ask("program.run"));
    panel.wait(2);
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_TRUE(panel.tree.getBool(u"nexo.cell.program.fault"));
    EXPECT_EQ("task0 main.mod:3: there is no recipe \"none\"", cell("program.why"));
    makeProject("GLOBAL PROC main()\n    Wait(1)\nENDPROC\n");
    EXPECT_EQ("", ask("program.run"));
    panel.wait(2);
    EXPECT_EQ("the program is at its end", cell("program.why"));
    EXPECT_FALSE(panel.tree.getBool(u"nexo.cell.program.fault"));
}

TEST_F(DeskTest, AnotherProjectEndsThePrograms)
{
    makeProject(kLoop);
    ask("program.run");
    panel.write(QStringLiteral("quill.project.cur_project"), QString());
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_EQ("there is no current project", ask("program.run"));
}

TEST_F(DeskTest, AProjectThatIsLeftKeepsWhatItsProgramsCounted)
{
    makeProject(
        "GLOBAL PROC main()\n    WHILE true\n        Wait(0.01)\n        count := count + 1\n    ENDWHILE\n"
        "ENDPROC\n");
    ask("program.run");
    panel.wait(0.57);
    const qint64 counted = std::get<std::int64_t>(core.station().desk().runner().variables()->value(0));
    EXPECT_LT(panel.tree.getInt(u"quill.project.var._list.#0.value.#0"), counted) << "not told yet";
    panel.write(QStringLiteral("quill.project.cur_project"), QString());
    panel.write(QStringLiteral("quill.project.cur_project"), QStringLiteral("SIM-0001/P"));
    EXPECT_EQ(counted, panel.tree.getInt(u"quill.project.var._list.#0.value.#0"));
}

TEST_F(DeskTest, NobodyMovesTheRobotByHandWhileAProgramRuns)
{
    makeProject(kLoop);
    ask("program.run");
    const char *move = R"({"type":"j","motion":{"toolset":"no use","speed":500},
        "point":{"trans":[1.2,0.4,0.8],"rot":[3.141592653589793,0,0],"near":[0,0,0,0,0,0],"conf":[]}})";
    EXPECT_EQ("a program runs; pause it first", ask("motion.start", move));
    ask("program.pause");
    EXPECT_EQ("", ask("motion.start", move));
}

TEST_F(DeskTest, ShowsTheCellWithoutAProgram)
{
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_EQ(static_cast<int>(controller::cell::signalTable().size()),
              panel.tree.find(u"nexo.cell.signals")->size());
    EXPECT_EQ("DI2_0", cell("signals.#0.name"));
    EXPECT_EQ("start button", cell("signals.#0.text"));
    EXPECT_EQ("", ask("cell.input", R"({"signal":"DI2_0","on":true})"));
    EXPECT_EQ("true", cell("signals.#0.on"));
    EXPECT_EQ("", ask("cell.input", R"({"signal":"DI2_0","on":false})"));
    EXPECT_EQ("", ask("cell.pallet", R"({"side":1,"action":"take"})"));
    EXPECT_EQ("false", cell("pallets.#1.in_place"));
    EXPECT_EQ("", ask("cell.fault", R"({"name":"conveyor-jam","on":true})"));
    EXPECT_EQ("true", cell("faults.#2.on"));
    EXPECT_EQ("true", cell("conveyor.jammed"));
}

TEST_F(DeskTest, AButtonIsPressedForAWhile)
{
    EXPECT_EQ("", ask("cell.input", R"({"signal":"DI2_3","seconds":0.5})"));
    EXPECT_EQ("true", cell("signals.#3.on"));
    panel.wait(0.7);
    EXPECT_EQ("false", cell("signals.#3.on"));
    EXPECT_FALSE(core.station().isBusy());
}

TEST_F(DeskTest, RefusesWhatItCannotDo)
{
    const RefusalCase cases[] = {
        {"program.run", "null", "there is no current project"},
        {"program.step", "null", "no program runs"},
        {"program.speed", R"({"factor":0.05})", "\"factor\" is no number from 0.1 to 1000"},
        {"program.speed", R"({"factor":"fast"})", "\"factor\" is no number from 0.1 to 1000"},
        {"cell.input", R"({"signal":"DO2_0","on":true})", "there is no input \"DO2_0\""},
        {"cell.input", R"({"signal":"DI2_0"})", "\"on\" is missing or neither true nor false"},
        {"cell.input", R"({"signal":"DI2_0","seconds":-1})", "\"on\" is missing or neither true nor false"},
        {"cell.fault", R"({"name":"fire","on":true})",
         "there is no fault \"fire\", there are no-vacuum, lost-box, conveyor-jam, pallet-pulled, e-stop, "
         "collision, power-cut"},
        {"cell.fault", R"({"name":"e-stop"})", "\"on\" is missing or neither true nor false"},
        {"cell.pallet", R"({"side":2,"action":"take"})", "\"side\" is neither 0 (left) nor 1 (right)"},
        {"cell.pallet", R"({"side":0,"action":"burn"})",
         "\"action\" is \"burn\", neither \"take\" nor \"bring\""},
        {"cell.gripper", R"({"action":"open"})", "\"action\" is \"open\", not \"clear\""},
    };
    for (const RefusalCase &each : cases)
        EXPECT_EQ(each.why, ask(each.request, each.payload)) << each.request << " " << each.payload;
}

TEST_F(DeskTest, AProjectWithoutAFolderIsRefused)
{
    panel.write(QStringLiteral("quill.project.cur_project"), QStringLiteral("SIM-0001/None"));
    EXPECT_NE("", ask("program.run"));
}

// Requests for programs and the cell, what the panel is told, and programs that are damaged or do what they must not.

#include "controller/core.h"
#include "controller/core_panel.h"
#include "controller/recipes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using orba::Node;

namespace {

constexpr const char *kLoop = R"(GLOBAL PROC main()
    WHILE true
        Wait(1)
        count := count + 1
    ENDWHILE
ENDPROC
)";

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
    QString file() const { return folder.filePath(QStringLiteral("SIM-0001/P/task0/main.mod")); }
    void makeProject(const QByteArray &program)
    {
        QDir(folder.path()).mkpath(QStringLiteral("SIM-0001/P/task0"));
        QFile main(file());
        ASSERT_TRUE(main.open(QIODevice::WriteOnly));
        main.write(program);
        main.close();
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

QByteArray inMain(const QByteArray &statements)
{
    return "GLOBAL PROC main()\n" + statements + "\nENDPROC\n";
}

} // namespace

TEST_F(DeskTest, RunsPausesAndStopsTheProgramsOfTheProject)
{
    makeProject(kLoop);
    EXPECT_EQ("", ask("program.run"));
    EXPECT_EQ("running", cell("program.state"));
    panel.wait(3.5);
    EXPECT_EQ("3", panel.tree.getString(u"quill.project.var._list.#0.value.#0")) << "in real time";
    EXPECT_EQ("3", cell("tasks.#0.line"));
    EXPECT_EQ("waiting", cell("tasks.#0.state"));
    EXPECT_EQ("", ask("program.pause"));
    EXPECT_EQ("paused at the panel", cell("program.why"));
    panel.wait(2);
    EXPECT_EQ("", ask("program.speed", R"({"factor":10})"));
    EXPECT_EQ("", ask("program.run"));
    panel.wait(1);
    EXPECT_NEAR(13, panel.tree.getInt(u"quill.project.var._list.#0.value.#0"), 1);
    EXPECT_EQ("", ask("program.stop"));
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_FALSE(core.station().isBusy());
}

TEST_F(DeskTest, RefusesABadProgramWithFileLineAndColumn)
{
    const struct
    {
        QByteArray program;
        const char *why; ///< begin of the first problem
    } cases[] = {
        {"", "task0/main.mod:"},
        {QByteArray(400000, '!'), "task0/main.mod:1:1: the file has 400000 bytes, 262144 are allowed"},
        {QByteArray("\0\0\0\0", 4), "task0/main.mod:1:1: "},
        {inMain("    count := 1\n    x\xFF := 1"), "task0/main.mod:3:6: the byte 255 is no part of a text"},
    };
    for (const auto &each : cases) {
        makeProject(each.program);
        const QString refusal = ask("program.run");
        const QString begin = QStringLiteral("the programs have problems: ") + QLatin1String(each.why);
        EXPECT_TRUE(refusal.startsWith(begin)) << refusal << " instead of " << begin;
        EXPECT_EQ("stopped", cell("program.state"));
    }
}

TEST_F(DeskTest, RefusesAProgramThatIsNoFile)
{
    const auto refusal = [this] { return ask("program.run").section(QStringLiteral("main.mod: "), 1); };
    makeProject("");
    QFile::remove(file());
    EXPECT_EQ("the file cannot be read: No such file or directory", refusal());
    ASSERT_EQ(0, mkfifo(file().toLocal8Bit().constData(), 0600));
    EXPECT_EQ("this is no file", refusal());
}

TEST_F(DeskTest, TellsWhyAProgramStopped)
{
    const struct
    {
        QByteArray statements;
        const char *why;
    } cases[] = {
        {"    Wait(0.1)", "the program is at its end"},
        {"    count := 0\n    count := 1 / count", "task0 main.mod:3: division by 0"},
        {"    main()", "task0 main.mod:2: more than 64 calls inside each other"},
        {"    WriteRegister(\"Nothing\", 1)", "task0 main.mod:2: there is no register \"Nothing\""},
        {"    PalletUpdate(\"none\", 1, 1)", "task0 main.mod:2: there is no recipe \"none\""},
    };
    for (const auto &each : cases) {
        makeProject(inMain(each.statements));
        EXPECT_EQ("", ask("program.run")) << each.why;
        panel.wait(0.5);
        EXPECT_EQ("stopped", cell("program.state")) << each.why;
        EXPECT_EQ(each.why, cell("program.why"));
        EXPECT_EQ(&each != cases, panel.tree.getBool(u"nexo.cell.program.fault"));
    }
}

TEST_F(DeskTest, StopsAProgramThatNeverEnds)
{
    makeProject(inMain("    WHILE true\n        count := 1 - count\n    ENDWHILE"));
    EXPECT_EQ("", ask("program.run"));
    const double begin = panel.tree.getDouble(u"nexo.cell.time");
    panel.wait(0.5);
    EXPECT_EQ("running", cell("program.state"));
    EXPECT_NEAR(0.5, panel.tree.getDouble(u"nexo.cell.time") - begin, 0.2) << "time goes on";
    EXPECT_EQ("", ask("program.pause"));
    EXPECT_EQ("paused", cell("program.state"));
    EXPECT_EQ("", ask("program.stop"));
    EXPECT_EQ("stopped", cell("program.state"));
}

TEST_F(DeskTest, AProjectThatIsLeftEndsAndKeepsWhatItsProgramsCounted)
{
    makeProject(inMain("    WHILE true\n        Wait(0.01)\n        count := count + 1\n    ENDWHILE"));
    ask("program.run");
    panel.wait(0.57);
    const qint64 counted = std::get<std::int64_t>(core.station().desk().runner().variables()->value(0));
    EXPECT_LT(panel.tree.getInt(u"quill.project.var._list.#0.value.#0"), counted) << "not told yet";
    panel.write(QStringLiteral("quill.project.cur_project"), QString());
    EXPECT_EQ("stopped", cell("program.state"));
    EXPECT_EQ("there is no current project", ask("program.run"));
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

TEST_F(DeskTest, RefusesWhatItCannotDo)
{
    const struct
    {
        const char *request, *payload, *why;
    } cases[] = {
        {"program.run", "null", "there is no current project"},
        {"program.step", "null", "no program runs"},
        {"program.speed", R"({"factor":0.05})", "\"factor\" is no number from 0.1 to 1000"},
        {"cell.input", R"({"signal":"DO2_0","on":true})", "there is no input \"DO2_0\""},
        {"cell.input", R"({"signal":"DI2_0","seconds":-1})", "\"on\" is missing or neither true nor false"},
        {"cell.pallet", R"({"side":2,"action":"take"})", "\"side\" is neither 0 (left) nor 1 (right)"},
    };
    for (const auto &each : cases)
        EXPECT_EQ(each.why, ask(each.request, each.payload)) << each.request << " " << each.payload;
}

// Programs that are damaged, or do what they must not: refused before anything runs, or stopped; always with the place.

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

class BadProgram : public ::testing::Test
{
protected:
    BadProgram() : core(options(), QStringLiteral("run")), panel(&core, 1)
    {
        panel.hello();
        QDir(folder.path()).mkpath(QStringLiteral("SIM-0001/P/task0"));
        panel.write(QStringLiteral("quill.project.cur_project"), QStringLiteral("SIM-0001/P"));
        panel.write(QStringLiteral("quill.project.task._list"),
                    nodeFromJson(R"([{"name":"task0","type":"motion","priority":2,
                                      "files":[{"name":"main","type":"MOD"}]}])"));
        Node variables;
        variables.reset(Node::Kind::List);
        variables.add()->assign(makeVariable("count", "int", "0"));
        panel.write(QStringLiteral("quill.project.var._list"), variables);
    }
    controller::StationOptions options() const
    {
        controller::StationOptions made;
        made.workspaceFolder = folder.path();
        return made;
    }
    QString file() const { return folder.filePath(QStringLiteral("SIM-0001/P/task0/main.mod")); }
    void write(const QByteArray &program)
    {
        QFile program_(file());
        ASSERT_TRUE(program_.open(QIODevice::WriteOnly));
        program_.write(program);
    }
    QString ask(const char *name) { return panel.request(QString::fromLatin1(name), Node()).text; }
    QString state() const { return panel.tree.getString(u"nexo.cell.program.state"); }
    QString why() const { return panel.tree.getString(u"nexo.cell.program.why"); }

    QTemporaryDir folder;
    controller::Core core;
    CorePanel panel;
};

QByteArray inMain(const QByteArray &statements)
{
    return "GLOBAL PROC main()\n" + statements + "\nENDPROC\n";
}

} // namespace

TEST_F(BadProgram, IsRefusedWithFileLineAndColumn)
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
        {QByteArray("\xFF\xFEG\0L\0", 6), "task0/main.mod:1:1: the byte 255 is no part of a text"},
        {inMain("    SetDO(DO9_9, true)"), "task0/main.mod:2:11: "},
        {inMain("    WaitUntil(DI7_1)"), "task0/main.mod:2:15: "},
        {inMain("    counts := 1"), "task0/main.mod:2:5: "},
        {inMain("    nothing()"), "task0/main.mod:2:5: "},
        {inMain("    WHILE true"), "task0/main.mod:3:1: "},
        {inMain("    count := \"one\""), "task0/main.mod:2:14: "},
    };
    for (const auto &each : cases) {
        write(each.program);
        const QString refusal = ask("program.run");
        const QString begin = QStringLiteral("the programs have problems: ") + QLatin1String(each.why);
        EXPECT_TRUE(refusal.startsWith(begin)) << refusal << " instead of " << begin;
        EXPECT_EQ("stopped", state());
    }
}

TEST_F(BadProgram, IsRefusedWhenItIsNoFile)
{
    EXPECT_EQ(
        "the programs have problems: task0/main.mod: the file cannot be read: No such file or directory",
        ask("program.run"));
    ASSERT_EQ(0, mkfifo(file().toLocal8Bit().constData(), 0600));
    EXPECT_EQ("the programs have problems: task0/main.mod: this is no file", ask("program.run"));
    QFile::remove(file());
    QDir().mkpath(file());
    EXPECT_EQ("the programs have problems: task0/main.mod: this is no file", ask("program.run"));
}

TEST_F(BadProgram, IsStoppedWithFileAndLine)
{
    const struct
    {
        QByteArray program;
        const char *why;
    } cases[] = {
        {inMain("    count := 0\n    count := 1 / count"), "task0 main.mod:3: division by 0"},
        {inMain("    main()"), "task0 main.mod:2: more than 64 calls inside each other"},
        {inMain("    count := 1.5"), "task0 main.mod:2: "},
        {inMain("    Wait(-1)"), "task0 main.mod:2: "},
        {inMain("    WriteRegister(\"Nothing\", 1)"), "task0 main.mod:2: there is no register \"Nothing\""},
        {inMain("    PalletUpdate(\"none\", 1, 1)"), "task0 main.mod:2: there is no recipe \"none\""},
    };
    for (const auto &each : cases) {
        write(each.program);
        EXPECT_EQ("", ask("program.run")) << each.why;
        panel.wait(0.5);
        EXPECT_EQ("stopped", state()) << each.why;
        EXPECT_TRUE(why().startsWith(QLatin1String(each.why))) << why() << " instead of " << each.why;
        EXPECT_TRUE(panel.tree.getBool(u"nexo.cell.program.fault"));
    }
}

TEST_F(BadProgram, ThatNeverEndsCanBeStopped)
{
    for (const char *loop :
         {"    WHILE true\n    ENDWHILE", "    WHILE true\n        count := 1 - count\n    ENDWHILE"}) {
        write(inMain(loop));
        EXPECT_EQ("", ask("program.run"));
        const double begin = panel.tree.getDouble(u"nexo.cell.time");
        panel.wait(1);
        EXPECT_EQ("running", state());
        EXPECT_NEAR(1, panel.tree.getDouble(u"nexo.cell.time") - begin, 0.2) << "time goes on";
        EXPECT_EQ("", ask("program.pause"));
        EXPECT_EQ("paused", state());
        EXPECT_EQ("", ask("program.stop"));
        EXPECT_EQ("stopped", state());
    }
}

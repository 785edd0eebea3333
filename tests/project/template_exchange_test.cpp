// The program templates as an archive: out, in, and back to those that are built in.

#include "exchange_fixture.h"

#include "project/rules/program_template.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using palx::TemplateAction;

namespace {

class TemplateExchangeTest : public ExchangeTest
{
protected:
    bool run(TemplateAction action, const QString &archive = QString())
    {
        palx::NoProgress nobody;
        palx::ImportRequest request;
        request.templates = action;
        request.templateArchive = onDisk(archive);
        request.programFolder = programs();
        return palx::importProjects(request, &nobody);
    }
    QString mod(const QString &path = QString()) const { return programs() + "/mod" + path; }
    void putTemplate(const QString &path, const QByteArray &text) const
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(mod(path)).path()));
        QFile file(mod(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray text(const QString &path) const
    {
        QFile file(mod(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
};

} // namespace

TEST_F(TemplateExchangeTest, BuiltInTemplatesGoOutAndComeBackAsFiles)
{
    palx::NoProgress nobody;
    ASSERT_TRUE(palx::exportProjects({{}, true, disk(), programs()}, &nobody)) << takeMessages().join("|");
    EXPECT_EQ(names(disk()), QStringList("mod.zip"));
    takeMessages();
    ASSERT_TRUE(run(TemplateAction::Custom, QStringLiteral("mod.zip"))) << records.join("|");
    EXPECT_EQ(takeMessages(), QStringList({"info: Import project templates success!",
                                           "info: Project templates import success!"}));
    EXPECT_EQ(palx::programTemplateRoot(programs()), mod());
    for (const QString &path : palx::programTemplates()) {
        QFile builtIn(":/palx_workstation/mod" + path);
        ASSERT_TRUE(builtIn.open(QIODevice::ReadOnly)) << path;
        EXPECT_EQ(builtIn.readAll(), text(path)) << path;
    }
    EXPECT_EQ(names(programs()).filter("palx"), QStringList());
    ASSERT_TRUE(run(TemplateAction::Reset));
    EXPECT_EQ(takeMessages(), QStringList("info: Reset project templates success!"));
    EXPECT_EQ(palx::programTemplateRoot(programs()), QStringLiteral(":/palx_workstation/mod"));
}

TEST_F(TemplateExchangeTest, TheContentsOfASingleFolderMoveUp)
{
    putTemplate(QStringLiteral("/old.mod"), "old");
    putArchive(QStringLiteral("t.zip"), {{"top/a.mod", "a", 0, 0, 0, {}, {}, 0},
                                         {"top/normal/task_stop.mod", "b", 0, 0, 0, {}, {}, 0}});
    ASSERT_TRUE(run(TemplateAction::Custom, QStringLiteral("t.zip")));
    EXPECT_EQ(names(mod()), QStringList({"a.mod", "normal", "normal/task_stop.mod"}));
    palx::forgetLastImport();
    EXPECT_EQ(QDir(programs()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("mod"));
}

TEST_F(TemplateExchangeTest, ResetGoesBackToTheBuiltInOnes)
{
    putTemplate(QStringLiteral("/old.mod"), "old");
    ASSERT_TRUE(run(TemplateAction::Reset));
    EXPECT_EQ(takeMessages(), QStringList("info: Reset project templates success!"));
    EXPECT_EQ(palx::programTemplateRoot(programs()), QStringLiteral(":/palx_workstation/mod"));
    ASSERT_TRUE(palx::undoLastImport());
    EXPECT_EQ(text(QStringLiteral("/old.mod")), QByteArray("old"));
}

TEST_F(TemplateExchangeTest, ARefusedArchiveLeavesTheTemplates)
{
    putTemplate(QStringLiteral("/old.mod"), "old");
    putArchive(QStringLiteral("t.zip"),
               {{"a.mod", "text", 0, 0, 0, {}, {}, 0}, {"../b.mod", "text", 0, 0, 0, {}, {}, 0}});
    putArchive(QStringLiteral("project.zip"), {{"task0/main.mod", "text", 0, 0, 0, {}, {}, 0}});
    for (const char *name : {"t.zip", "none.zip", "project.zip"}) {
        EXPECT_FALSE(run(TemplateAction::Custom, QLatin1String(name)));
        EXPECT_EQ(takeMessages().last(), QStringLiteral("warning: Import project templates failed!"));
        EXPECT_EQ(names(programs()), QStringList({"mod", "mod/old.mod"}));
    }
    EXPECT_TRUE(palx::lastImported().isEmpty());
}

TEST_F(TemplateExchangeTest, AnInterruptedReplacementIsPutRight)
{
    putTemplate(QStringLiteral("/old.mod"), "old");
    const QString killed = QStringLiteral("-999999999-0");
    const QString kept = QStringLiteral(".palx-mod-before-%1-7").arg(QCoreApplication::applicationPid());
    ASSERT_TRUE(QDir().rename(mod(), programs() + "/.palx-mod-before" + killed));
    ASSERT_TRUE(QDir().mkpath(programs() + "/.palx-mod-new" + killed + "/top"));
    ASSERT_TRUE(QDir().mkpath(programs() + '/' + kept));
    palx::recoverExchange(programs());
    EXPECT_EQ(names(programs()), QStringList({kept, "mod", "mod/old.mod"}))
        << "one that runs may still undo it";
}

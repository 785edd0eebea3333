// The programs that a project starts from, and what comes of it when one of them is not there.

#include "project/rules/program_template.h"

#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// A copy of `palx` in a folder of its own, with the templates beside it except one.
class MissingTemplate : public ::testing::Test
{
protected:
    MissingTemplate()
    {
        EXPECT_TRUE(QFile::copy(QStringLiteral(PALX_BIN_DIR "/palx"), path("palx")));
        for (const QString &file : palx::programTemplates()) {
            QDir().mkpath(QFileInfo(path("mod") + file).path());
            EXPECT_TRUE(QFile::copy(":/palx_workstation/mod" + file, path("mod") + file)) << file;
        }
        EXPECT_TRUE(QFile::remove(missing));
    }
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    /// What `palx project` tells as a result, or why it refuses.
    QString run(const QStringList &arguments, int code) const
    {
        QProcess palx;
        palx.start(path("palx"), QStringList("project") + arguments +
                                     QStringList{"--data", path("data"), "--workspace", path("work")});
        EXPECT_TRUE(palx.waitForFinished(60000));
        EXPECT_EQ(palx.exitCode(), code) << arguments.join(' ');
        return QString::fromUtf8(code == 0 ? palx.readAllStandardOutput() : palx.readAllStandardError());
    }
    QStringList folders() const
    {
        return QDir(path("work/SIM-0001")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }

    const QTemporaryDir folder;
    const QString missing = path("mod/motion/right/YouMaDuo_single_suction_no_bollard_no_clapboard.mod");
};

TEST_F(MissingTemplate, isNamedAndNoHalfProjectIsLeft)
{
    run({"create", "Left", "--scheme", "left", "--lift", "no"}, 0);
    const QString listed = run({"list"}, 0);
    const QStringList before = folders();
    const QString why = QStringLiteral("Cannot read program template: ") + missing;
    for (const QStringList &refused : {QStringList{"create", "Half", "--scheme", "right", "--lift", "no"},
                                       QStringList{"edit", "Left", "--rename", "Half", "--scheme", "both"}}) {
        const QString told = run(refused, 1);
        EXPECT_TRUE(told.contains(why)) << told;
        EXPECT_EQ(folders(), before) << refused.first();
        EXPECT_FALSE(QFileInfo::exists(path("work/.palx-staging"))) << refused.first();
        EXPECT_EQ(run({"list"}, 0), listed) << refused.first();
    }
}

} // namespace

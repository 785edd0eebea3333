// The programs that a project starts from, and what comes of it when one of them is not there.

#include "project/rules/program_template.h"

#include "support/test_support.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using palx::TemplateChoice;

/// What made projects do not show.
const struct
{
    const char *task;
    const char *file;
    TemplateChoice choice; ///< scheme, bollard, towards left, towards right
    const char *path;
} kCases[] = {
    {"task1", "anything", {3, 1, 1, 1}, "/semi_static/conveyor_belt_inspection.mod"},
    {"task5", "Helper", {0, 0, 0, 0}, "/helper/bollard_helper.mod"},
    {"task9", "main", {2, 0, 0, 0}, "/motion/main/main_single_both.mod"},
    {"task0", "main", {3, 0, 0, 0}, ""},
    {"task0", "ZuoMaduo", {0, 0, 0, 0}, "/motion/left/ZuoMaDuo_single_suction_bollard_no_clapboard.mod"},
    {"task0", "ZuoMaDuo", {0, 0, 0, 0}, ""}, // the file's name is spelled otherwise
    {"task0", "YouMaduo", {1, 2, 0, 0}, "/motion/right/YouMaDuo_single_suction_no_bollard_no_clapboard.mod"},
    {"task0", "BackHome", {2, 1, 0, 1}, "/motion/back_home/BackHome_Backwards_both.mod"},
    {"task0", "BackHome", {3, 1, 1, 0}, ""},
};

TEST(ProgramTemplate, isChosenByTaskFileAndParameters)
{
    for (const auto &c : kCases)
        EXPECT_EQ(palx::programTemplate(QLatin1String(c.task), QLatin1String(c.file), c.choice), c.path)
            << c.task << " " << c.file << " scheme " << c.choice.schemeLayout;
}

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

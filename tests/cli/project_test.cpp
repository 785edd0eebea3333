// `palx project`: what it makes stays from run to run, as a panel on the same folders would find it.

#include "palx_run.h"

#include "support/test_support.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PalxProject : public ::testing::Test
{
protected:
    PalxRun run(const QStringList &arguments) const
    {
        return runPalx(QStringList{"project"} + arguments +
                           QStringList{"--data", "data", "--workspace", "work"},
                       folder.path());
    }
    QStringList names() const { return childTexts(run({"list"}).out, u"name"); }
    static QStringList childTexts(const QByteArray &out, QStringView key)
    {
        QStringList found;
        const orba::Node all = parsed(out);
        const orba::Node *projects = all.child(u"projects");
        for (int i = 0; projects && i < projects->size(); ++i)
            found.append(projects->at(i)->getString(key));
        return found;
    }
    QString place(const QString &path) const { return folder.filePath("work/SIM-0001/" + path); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PalxProject, MakesEditsSwitchesAndDeletes)
{
    const PalxRun made = run({"create", "Line 1", "--scheme", "both", "--lift", "no", "--clapboard", "no"});
    ASSERT_EQ(made.code, 0) << made.err.constData();
    const orba::Node all = parsed(made.out);
    const orba::Node *project = all.find(u"projects.#0");
    ASSERT_TRUE(project);
    EXPECT_TRUE(project->getBool(u"current") && project->getBool(u"start_up"));
    EXPECT_EQ(project->child(u"files")->size(), 9);
    EXPECT_TRUE(QFileInfo(place(QStringLiteral("Line 1/task0/YouMaduo.mod"))).size() > 0);
    EXPECT_EQ(run({"create", "Copy", "--clone", "Line 1", "--scheme", "left"}).code, 0);
    const PalxRun edited = run({"edit", "Line 1", "--rename", "Линия", "--scheme", "right"});
    EXPECT_EQ(childTexts(edited.out, u"name"), QStringList({"Copy", "Линия"}));
    EXPECT_EQ(childTexts(edited.out, u"parameters.scheme_layout"), QStringList({"0", "1"}));
    EXPECT_EQ(childTexts(edited.out, u"parameters.bollard"), QStringList({"1", "1"})); // as they were
    const PalxRun switched = run({"switch", "Copy"});
    EXPECT_EQ(childTexts(switched.out, u"current"), QStringList({"true", "false"}));
    EXPECT_EQ(childTexts(run({"start-up", "Линия"}).out, u"start_up"), QStringList({"false", "true"}));
    EXPECT_EQ(run({"delete", "Линия"}).code, 0);
    EXPECT_EQ(names(), QStringList("Copy"));

    EXPECT_EQ(run({"switch"}).code, 0);
    QFile damaged(place(QStringLiteral("Copy/.rlprog")));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("{") == 1);
    damaged.close();
    EXPECT_EQ(run({"switch", "Copy"}).code, 1) << "the controller does not take it";
}

TEST_F(PalxProject, RefusesWithTheReason)
{
    ASSERT_EQ(run({"create", "A"}).code, 0);
    const struct
    {
        QStringList arguments;
        int code;
        const char *reason;
    } cases[] = {
        {{"create", "A"}, 1, "Project already exists"},
        {{"create", "B", "--clone", "none"}, 1, "no project is called \"none\"; there are: A"},
        {{"create", "B", "--left-recipe", "box"}, 1, "no recipe of the left pallet is called \"box\""},
        {{"delete", "none"}, 1, "no project is called \"none\""},
        {{"list", "--controller", "nonsense"}, 1, "\"nonsense\" is no controller"},
        {{"export", "-o", "zips"}, 1, "please select item!"},
        {{"import", "none.zip"}, 1, "there is no such file"},
        {{"create", "B", "--scheme", "up"}, 2, "--scheme"},
        {{}, 2, "A subcommand is required"},
    };
    for (const auto &each : cases) {
        const PalxRun refused = run(each.arguments);
        EXPECT_EQ(refused.code, each.code) << each.arguments.join(' ');
        EXPECT_TRUE(refused.err.contains(each.reason)) << refused.err.constData();
        EXPECT_TRUE(refused.out.isEmpty()) << refused.out.constData();
    }
    EXPECT_EQ(names(), QStringList("A"));
}

TEST_F(PalxProject, LeaveAsArchivesAndComeBack)
{
    ASSERT_EQ(run({"create", "Line 1", "--scheme", "both", "--lift", "no"}).code, 0);
    const PalxRun out = run({"export", "Line 1", "-o", "disk/zips", "--templates"});
    ASSERT_EQ(out.code, 0) << out.err.constData();
    EXPECT_TRUE(out.err.contains("Export to ")) << out.err.constData();
    EXPECT_EQ(QDir(folder.filePath("disk/zips")).entryList(QDir::Files),
              QStringList({"Line 1.zip", "mod.zip"}));
    const PalxRun renamed = run({"import", "disk/zips/Line 1.zip"});
    ASSERT_EQ(renamed.code, 0) << renamed.err.constData();
    EXPECT_EQ(childTexts(renamed.out, u"name"), QStringList({"Line 1", "Line 1(1)"}));
    EXPECT_EQ(childTexts(renamed.out, u"parameters.scheme_layout"), QStringList({"2", "2"}));
    EXPECT_EQ(run({"edit", "Line 1", "--scheme", "left"}).code, 0);
    EXPECT_EQ(run({"import", "disk/zips/Line 1.zip", "--on-clash", "replace"}).code, 0);
    EXPECT_EQ(childTexts(run({"list"}).out, u"parameters.scheme_layout"), QStringList({"2", "2"})); // is kept
    EXPECT_EQ(QDir(folder.filePath("work")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("SIM-0001"));
}

/// As `palx project create lift-pair --scheme both --lift yes` makes it now: whoever changes the templates exports it anew.
TEST_F(PalxProject, TheExampleIsWhatTheTemplatesMake)
{
    ASSERT_EQ(run({"import", examplePath("lift-pair.zip")}).code, 0);
    ASSERT_EQ(run({"create", "made", "--scheme", "both", "--lift", "yes"}).code, 0);
    ASSERT_EQ(names(), QStringList({"lift-pair", "made"}));
    const auto files = [this](const QString &project) {
        QMap<QString, QByteArray> found;
        QDirIterator all(place(project), {"*.mod", "var.json"}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString file = all.next();
            found.insert(QDir(place(project)).relativeFilePath(file), fileContent(file));
        }
        return found;
    };
    EXPECT_EQ(files("lift-pair"), files("made"));
    EXPECT_EQ(files("made").size(), 13);
    EXPECT_EQ(childTexts(run({"list"}).out, u"parameters.bollard"), QStringList({"0", "0"}));
}

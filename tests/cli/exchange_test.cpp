// `palx export` and `palx import`: recipes go from one panel's data to another's by a file.

#include "palx_run.h"

#include "orba/module_manager.h"
#include "support/test_support.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PalxExchange : public ::testing::Test
{
protected:
    PalxRun run(const QStringList &arguments, const char *data = "data") const
    {
        return runPalx(arguments + QStringList{"--data", data, "--workspace", "work", "--format", "json"},
                       folder.path());
    }
    /// "recipe outcome name place; ..."
    static QString outcomes(const PalxRun &run)
    {
        EXPECT_EQ(run.code, 0) << run.err.constData();
        QStringList found;
        const orba::Node result = parsed(run.out);
        const orba::Node *recipes = result.child(u"recipes");
        for (int i = 0; recipes && i < recipes->size(); ++i)
            found.append(
                QStringList({recipes->at(i)->getString(u"recipe"), recipes->at(i)->getString(u"outcome"),
                             recipes->at(i)->getString(u"name"), recipes->at(i)->getString(u"place")})
                    .join(QLatin1Char(' ')));
        return found.join(QStringLiteral("; "));
    }
    QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }
    QStringList files() const
    {
        return QDir(folder.path()).entryList({"*.xml*"}, QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PalxExchange, RecipesComeToAnotherPanelAsTheyAre)
{
    const QString example = examplePath("line-left.xml");
    EXPECT_EQ(outcomes(run({"import", example})), "Line left new Line left 1");
    const PalxRun written = run({"export", "-o", "out"});
    ASSERT_EQ(written.code, 0) << written.err.constData();
    EXPECT_EQ(parsed(written.out).getString(u"file"), path("out.xml"));
    orba::Node content;
    ASSERT_TRUE(orba::ModuleManager::readFromXmlFile(path("out.xml"), &content));
    EXPECT_EQ(content.at(0)->name(), orba::Name(u"default"));
    content.remove(u"default");
    EXPECT_EQ(content, exampleContent("line-left.xml"));
    EXPECT_EQ(outcomes(run({"import", "out.xml"}, "other")), "Line left new Line left 1");
    for (const auto &[way, outcome] :
         {std::pair("rename", "Line left renamed Line left1 2"), std::pair("discard", "Line left skipped  0"),
          std::pair("replace", "Line left replaced Line left 2")})
        EXPECT_EQ(outcomes(run({"import", example, "--on-clash", way})), outcome);
}

TEST_F(PalxExchange, RefusalsSayWhyAndLeaveEverything)
{
    ASSERT_EQ(run({"import", examplePath("line-left.xml")}).code, 0);
    writeFile(path("bad.xml"), "<node type='list'><node type='map'/></nod>");
    writeFile(path("old.xml"), "old");
    QDir(folder.path()).mkpath("folder.xml");
    const struct
    {
        QStringList arguments;
        int code;
        const char *reason;
    } cases[] = {
        {{"import", "bad.xml"}, 1, "bad.xml:1:"},
        {{"import", "none.xml"}, 1, "none.xml: the file does not exist"},
        {{"import", "bad.xml", "--controller", "nonsense"}, 1, "\"nonsense\" is no controller"},
        {{"import", "bad.xml", "--on-clash", "ask"}, 2, "--on-clash"},
        {{"export"}, 2, "--output is required"},
        {{"export", "-o", "old.xml", "Box"}, 1, "no recipe is called \"Box\"; there are: \"Line left\""},
        {{"export", "-o", "folder.xml"}, 1, "folder.xml: cannot be written"},
    };
    for (const auto &each : cases) {
        const PalxRun refused = run(each.arguments);
        EXPECT_EQ(refused.code, each.code) << each.arguments.join(' ');
        EXPECT_TRUE(refused.err.contains(each.reason)) << refused.err.constData();
        EXPECT_TRUE(refused.out.isEmpty()) << refused.out.constData();
    }
    EXPECT_EQ(fileContent(path("old.xml")), QByteArray("old"));
    EXPECT_EQ(files(), (QStringList{"bad.xml", "old.xml"}));
    EXPECT_EQ(texts(*parsed(run({"export", "-o", "all.xml"}).out).child(u"recipes")),
              QStringList("Line left"));
}

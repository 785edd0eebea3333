// Program files, copies of folders, variables.

#include "project_fixture.h"

#include "orba/module_manager.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using orba::Node;

TEST_F(ProjectTest, AClonedProjectIsACopyWithItsNewName)
{
    add(QStringLiteral("Old"), R"({"scheme_layout": 2, "bollard": 1})");
    putFile("Old/.rlprog",
            "{\"project_name\":  \"Old\", \"x\": \"\xff\", \n\"project_name\":\"a\", \"other\": \"Old\"}");
    putFile("Old/deep/.hidden", QByteArray("\0\1\2", 3));
    putFile("Old/project.rlprog", "{\"project_name\": \"Old\"}");
    QFile::link("../task0", place("Old/link"));
    auto expected = files();
    presenter.answer(true);
    const QString name = QStringLiteral("N\"ew");
    steps.parameters = nodeFromJson(R"({"scheme_layout": 1})");
    ASSERT_TRUE(palx::addProject(name, QStringLiteral("Old"), &steps)) << takeMessages().join('|');
    const QByteArray field = "\"project_name\": \"N\\u0022ew\"";
    EXPECT_EQ(content(name + "/.rlprog"),
              "{" + field + ", \"x\": \"\xff\", \n" + field + ", \"other\": \"Old\"}");
    for (const char *file : {"deep/.hidden", "project.rlprog", "task0/main.mod", "task0/YouMaduo.mod"})
        EXPECT_EQ(content(name + '/' + file), content(QStringLiteral("Old/") + file)) << file;
    EXPECT_TRUE(QFileInfo(place(name + "/link")).isSymLink());
    EXPECT_TRUE(m("quill.project.task._list")->cmobjCount() == 0) << "the copy has its tasks in its files";
    EXPECT_EQ(palx::projectRecord(name)->getInt("scheme_layout"), 1);
    ASSERT_TRUE(QDir(place(name)).removeRecursively());
    EXPECT_EQ(files(), expected);
}

TEST_F(ProjectTest, ACopyThatFailsLeavesNothing)
{
    add(QStringLiteral("Old"));
    ::mkfifo(place("Old/pipe").toLocal8Bit().constData(), 0644); // nobody writes into it
    const auto before = files();
    for (const QString &source : {QStringLiteral("Old"), QStringLiteral("nobody"), QString()}) {
        presenter.answer(true);
        EXPECT_FALSE(palx::addProject(QStringLiteral("New"), source, &steps));
        EXPECT_EQ(takeMessages().last(), "error: Failed to clone project from: " + source);
        EXPECT_EQ(files(), before);
        EXPECT_TRUE(palx::projectRecord("New")->isEmptyMobj());
    }
}

TEST_F(ProjectTest, VariablesAreKeptInFilesAsTheSoftwareWants)
{
    add(QStringLiteral("P"));
    Node file;
    ASSERT_TRUE(orba::ModuleManager::readFromJson(place("P/var.json"), &file));
    EXPECT_EQ(file.getString(u"version"), QStringLiteral("0.2"));
    EXPECT_EQ(*file.child(u"variables"), m("quill.project.var._list")->node());
    m("quill.project.var_monitor.default")->ensure("marker")->set(nullptr, "", 3);
    palx::createPERSVar("more", "one more", "int", "4");
    Node monitored;
    ASSERT_TRUE(orba::ModuleManager::readFromJson(place("P/var_monitor.json"), &monitored));
    EXPECT_EQ(monitored.size(), 33);
    EXPECT_EQ(*monitored.at(32),
              nodeFromJson(R"({"name": "more", "description": "one more", "type": "int", "marker": 3})"));
}

// Program files, copies of folders, variables.

#include "project_fixture.h"

#include "orba/module_manager.h"
#include "project/rules/project_files.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "support/cell_variables.h"
#include "workstation/plugin_node.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using orba::Node;

TEST_F(ProjectTest, AProgramThatCannotBeWrittenIsTold)
{
    add(QStringLiteral("P"));
    putFile(QStringLiteral("P/blocked"), "no folder");
    EXPECT_FALSE(palx::createMod(nullptr, "main", "blocked", true));
    EXPECT_EQ(takeMessages(), QStringList("error: Cannot create task folder: blocked"));
    EXPECT_FALSE(palx::createMod(nullptr, "main", "blocked", false));
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_TRUE(palx::createMod(nullptr, "main", "task1", false)); // over the one that is there
}

TEST_F(ProjectTest, AClonedProjectIsACopyWithItsNewName)
{
    add(QStringLiteral("Old"), R"({"scheme_layout": 2, "bollard": 1})");
    putFile("Old/.rlprog",
            "{\"project_name\":  \"Old\", \"x\": \"\xff\", \n\"project_name\":\"a\", \"other\": \"Old\"}");
    putFile("Old/deep/er/.rlprog", "{\"project_name\": \"\"}");
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
    EXPECT_EQ(content(name + "/deep/er/.rlprog"), "{" + field + "}");
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
    EXPECT_FALSE(palx::copyDirectory(place("Old"), place("Old/inside"), "x"));
    EXPECT_EQ(files(), before);
}

TEST_F(ProjectTest, VariablesAreThoseOfTheProgramsInTheirOrder)
{
    add(QStringLiteral("P"));
    const orba::ModuleObject *list = m("quill.project.var._list");
    const Node before = list->node();
    QMap<QString, QString> values;
    QStringList names;
    for (const orba::ModuleObject *each : list->cmobjs()) {
        names.append(each->getString("name"));
        values[names.last()] = each->getString("value.[0][0][0]") + QLatin1Char(' ') +
                               each->getString("type") + QLatin1Char(' ') + each->getString("pers");
    }
    QStringList wanted;
    for (const auto &variable : cellVariables())
        wanted.append(QString::fromStdString(variable.name));
    EXPECT_EQ(names, wanted);
    for (const auto &[name, value] :
         {std::pair("enableStackR", "false bool true"), std::pair("currentLayerL", "1 int true"),
          std::pair("boxHeightR", "300 int true"), std::pair("SetZ", "700 int true"),
          std::pair("MaxZ", "1000 int true"), std::pair("Margin", "400 int true"),
          std::pair("liftHeight", "550 int true"), std::pair("rise", "1 int true"),
          std::pair("cycleTimeL", "0.0 double true"), std::pair("clock0", " clock false"),
          std::pair("flag", "false bool false")})
        EXPECT_EQ(values[name], QLatin1String(value)) << name;
    palx::createProjectVariables(); // again
    palx::createVar("SetZ", QString(), "int", "1");
    EXPECT_EQ(list->node(), before);
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
    start("2.5.0");
    add(QStringLiteral("Q"));
    EXPECT_FALSE(QFileInfo::exists(place("Q/var.json")));
    EXPECT_FALSE(QFileInfo::exists(place("Q/var_monitor.json")));
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 38);
}

// Program files, copies of folders, variables.

#include "project_fixture.h"

#include "formats/obstacles.h"
#include "orba/module_manager.h"
#include "project/rules/program_template.h"
#include "project/rules/project_files.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "workstation/plugin_node.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using orba::Node;

namespace {

QByteArray templateText(const char *path)
{
    return palx::readResourceFile(palx::programTemplateRoot() + QLatin1String(path)).toUtf8();
}

QStringList variableTexts()
{
    QStringList lines;
    for (const orba::ModuleObject *each : m("quill.project.var._list")->cmobjs())
        lines.append(QStringLiteral("%1|%2|%3|%4|%5")
                         .arg(each->getString("name"), each->getString("description"),
                              each->getString("type"), each->getString("value.[0][0][0]"),
                              each->getString("pers")));
    return lines;
}

} // namespace

TEST_F(ProjectTest, FilesHaveTheirPlaceInTheCurrentProject)
{
    const QString top = workspace() + QLatin1Char('/');
    EXPECT_EQ(palx::getFileName("main.mod", "task0"), top + "LOCALHOST/_temp/task0/main.mod");
    m("quill.project.cur_project")->set(nullptr, "", QStringLiteral("SIM-0001/P"));
    EXPECT_EQ(palx::getFileName("main.mod", "task0"), top + "SIM-0001/P/task0/main.mod");
    EXPECT_EQ(palx::getFileName("var.json", ""), top + "SIM-0001/P/var.json");
    EXPECT_EQ(QDir::cleanPath(palx::getFileName("", "task0")), top + "SIM-0001/P/task0");
}

TEST_F(ProjectTest, ProgramsAreTheChosenTemplates)
{
    palx::pluginNode()->c("global_wobj")->copyFrom(nodeFromJson(R"([{"towards": 0}, {"towards": 1}])"));
    add(QStringLiteral("P"), R"({"scheme_layout": 2, "bollard": 0})");
    const struct
    {
        const char *file;
        const char *source;
    } cases[] = {
        {"task0/main.mod", "/motion/main/main_single_both.mod"},
        {"task0/Init.mod", "/motion/init/Init_single_bollard_both.mod"},
        {"task0/BackHome.mod", "/motion/back_home/BackHome_Backwards_bollard_both.mod"},
        {"task0/ZuoMaduo.mod", "/motion/left/ZuoMaDuo_single_suction_bollard_no_clapboard.mod"},
        {"task0/YouMaduo.mod", "/motion/right/YouMaDuo_single_suction_bollard_no_clapboard.mod"},
        {"task0/Helper.mod", "/helper/bollard_helper.mod"},
        {"task1/main.mod", "/semi_static/conveyor_belt_inspection.mod"},
        {"task4/main.mod", "/normal/task_stop.mod"},
        {"task5/main.mod", "/semi_static/check_bollard_state.mod"},
        {"task5/Helper.mod", "/helper/bollard_helper.mod"},
    };
    for (const auto &each : cases) {
        const QByteArray text = templateText(each.source);
        EXPECT_FALSE(text.isEmpty()) << each.source;
        EXPECT_EQ(content(QStringLiteral("P/") + QLatin1String(each.file)), text) << each.file;
    }
}

TEST_F(ProjectTest, AProgramIsWrittenOrToldWhyNot)
{
    add(QStringLiteral("P"));
    putFile(QStringLiteral("P/blocked"), "no folder");
    putFile(QStringLiteral("P/task1/dir.mod/x"), "");
    const struct
    {
        const char *file;
        const char *task;
        bool report;
        bool isWritten;
        QString message;
    } cases[] = {
        {"main", "task1", true, false, "warning: File main already exists!"},
        {"main", "task1", false, true, QString()},
        {"more", "task1", true, true, QString()},
        {"main", "task9", true, true, QString()},
        {"main", "blocked", true, false, "error: Cannot create task folder: blocked"},
        {"main", "blocked", false, false, QString()},
        {"dir", "task1", false, false, QString()},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(palx::createMod(nullptr, each.file, each.task, each.report), each.isWritten) << each.file;
        EXPECT_EQ(takeMessages().join('|'), each.message);
    }
    bool isWritten = true;
    {
        const FullDisk full(10);
        isWritten = palx::createMod(nullptr, "more", "task2", true);
    }
    EXPECT_FALSE(isWritten);
    EXPECT_EQ(takeMessages(), QStringList("error: Cannot write to file: " + place("P/task2/more.mod")));
    EXPECT_EQ(QDir(place("P/task2")).entryList(QDir::Files), QStringList("main.mod"));
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

TEST_F(ProjectTest, VariablesAreCreatedOnceInTheirOrder)
{
    add(QStringLiteral("P"));
    QStringList expected{"enableStackL|Enable left-side stacking|bool|false|true",
                         "enableStackR|Enable right-side stacking|bool|false|true"};
    for (const QChar side : QStringLiteral("LR")) {
        for (const char *line : {"palletIndex%1|%2 side recipe index|int|0|true",
                                 "palletCount%1|%2 side pallet count|int|0|true",
                                 "palletTotalCount%1|%2 side pallet total count|int|0|true",
                                 "currentLayer%1|%2 side current layer|int|1|true",
                                 "layerCount%1|%2 side current layer count|int|1|true",
                                 "totalPallets%1|%2 side total pallets|int|0|true",
                                 "totalPiledCount%1|%2 side total piled count|int|0|true",
                                 "cycleTime%1|%2 side cycle time|double|0.0|true",
                                 "boxHeight%1|%2 side box height|int|300|true"})
            expected.append(QString::fromLatin1(line).arg(side, side == 'L' ? QStringLiteral("Left")
                                                                            : QStringLiteral("Right")));
    }
    expected += QStringList{
        "palletStatus|Left: 1, Right: 2|int|0|true",
        "flagL|Left full flag|int|0|true",
        "flagR|Right full flag|int|0|true",
        "flagL1||int|0|true",
        "flagR1||int|0|true",
        "rise|Lifting column state, 1 up, 0 down|int|1|true",
        "use_rise|Using lifting column|int|0|true",
        "SetZ|Stacking maximum height|int|700|true",
        "MaxZ|Maximum height reachable by the robot in the stacking scene|int|1000|true",
        "grabbing|Gripping materials|bool|false|true",
        "Margin|StandBy Point Margin|int|400|true",
        "liftHeight|Lift height|int|550|true",
        "clock0|calculate time|clock||false",
        "boxheight|box height|int|300|false",
        "flagLL||bool|false|false",
        "flagRR||bool|false|false",
        "flag||bool|false|false",
        "BHOME|current pos|robtarget|p:{{0,0,0},{0,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}|false"};
    EXPECT_EQ(variableTexts(), expected);
    palx::createProjectVariables();
    palx::createVar("SetZ", QString(), "int", "1");
    EXPECT_EQ(variableTexts(), expected);
    EXPECT_EQ(m("quill.project.var._list")->cmobj(1)->node(),
              nodeFromJson(R"({"id": 1, "name": "enableStackR",
        "description": "Enable right-side stacking", "type": "bool", "pers": "true", "d": [0, 0, 0],
        "value": {"[0][0][0]": "false"}})"));
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
    EXPECT_EQ(m("quill.project.var_monitor._list")->cmobjCount(), 0);
    EXPECT_FALSE(m("quill.project.var._list")->cmobj(0)->has("id"));
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 38);
}

TEST_F(ProjectTest, WithoutARecordNoVariablesAreCreated)
{
    m("quill.project.cur_project")->set(nullptr, "", QStringLiteral("SIM-0001/foreign"));
    palx::createProjectVariables();
    EXPECT_EQ(m("quill.project.var._list")->cmobjCount(), 0);
}

TEST_F(ProjectTest, RecipesAreListedByTheirSide)
{
    const Node stacks =
        nodeFromJson(R"([{"name": "a", "pallet_position": 0}, {"name": "b", "pallet_position": 1},
                                         {"name": "c"}, {"name": "d", "pallet_position": 2}])");
    EXPECT_EQ(palx::sideRecipes(stacks, true), QStringList({"a", "c"}));
    EXPECT_EQ(palx::sideRecipes(stacks, false), QStringList({"b", "d"}));
}

// Projects leave as archives and come back.

#include "exchange_fixture.h"

#include "orba/module_manager.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"

#include <QDir>
#include <QFile>

using orba::Node;
using palx::OnClash;

namespace {

const QByteArray kVariables = "<node type=\"list\">\n <node type=\"map\">\n  <node name=\"name\" "
                              "type=\"string\">flagL</node>\n </node>\n</node>\n";

const char *const kAll = R"({"scheme_layout": 2, "palletizing_type": 1, "type_of_sucker": 1, "bollard": 1,
    "clapboard": 1, "left_stack_recipe": 3, "right_stack_recipe": 4})";

class ProjectExchangeTest : public ExchangeTest
{
protected:
    /// Without what a project gets by being imported: parameters as variables, permissions.
    std::map<std::string, std::string> filesBut(const QString &except) const
    {
        auto all = files();
        for (auto each = all.begin(); each != all.end();)
            each = QString::fromStdString(each->first).contains(except) ? all.erase(each) : std::next(each);
        return all;
    }
    QStringList variables(const QString &path) const
    {
        Node list;
        QStringList shown;
        EXPECT_TRUE(orba::ModuleManager::fromXml(content(path), &list));
        for (int i = 0; i < list.size(); ++i)
            shown.append(list.at(i)->getString(u"name") + QLatin1Char('=') +
                         list.at(i)->getString(u"value.[0][0][0]"));
        return shown;
    }
};

} // namespace

TEST_F(ProjectExchangeTest, AnExportedProjectComesBackWithItsParameters)
{
    putProject(QStringLiteral("Line 1.2"), kVariables);
    setRecord(QStringLiteral("Line 1.2"), kAll);
    const auto before = files();
    ASSERT_TRUE(exportNames({"Line 1.2"}));
    EXPECT_EQ(takeMessages(), QStringList("info: Export to " + disk() + " success!"));
    EXPECT_EQ(files(), before);
    EXPECT_EQ(names(disk()), QStringList("Line 1.2.zip"));

    QDir(place(QStringLiteral("Line 1.2"))).removeRecursively();
    palx::projectRecord(QStringLiteral("Line 1.2"))->remove();
    ASSERT_TRUE(import({"Line 1.2.zip"}, OnClash::Replace));
    EXPECT_TRUE(waitUntil([] { return nodeText(m("quill.project._list")->node()).contains("Line 1.2"); }))
        << "the controller reads its projects again";
    EXPECT_EQ(takeMessages(), QStringList("info: " + onDisk("Line 1.2.zip") + " import success!"));
    EXPECT_EQ(record(QStringLiteral("Line 1.2")), QStringLiteral("Line 1.2 2 1 1 1 1 3 4"));
    EXPECT_EQ(filesBut("var.xml"), [&] {
        auto all = before;
        all.erase("SIM-0001/Line 1.2/var.xml");
        return all;
    }());
    EXPECT_EQ(variables("Line 1.2/var.xml"),
              QStringList({"flagL=", "bollard=1", "clapboard=1", "left_stack_recipe=3", "palletizing_type=1",
                           "right_stack_recipe=4", "scheme_layout=2", "type_of_sucker=1"}));
    EXPECT_EQ(int(QFileInfo(place("Line 1.2/.rlprog")).permissions()), 0x7777);

    // Once more: the parameters are there already, and stay one of each.
    ASSERT_TRUE(exportNames({"Line 1.2"}));
    ASSERT_TRUE(import({"Line 1.2.zip"}, OnClash::Rename));
    EXPECT_EQ(variables("Line 1.2(1)/var.xml").size(), 8);
}

TEST_F(ProjectExchangeTest, RenamingTakesTheFirstFreeNumber)
{
    putProject(QStringLiteral("P"));
    ASSERT_TRUE(exportNames({"P"}));
    ASSERT_TRUE(import({"P.zip"}, OnClash::Rename));
    ASSERT_TRUE(import({"P.zip"}, OnClash::Rename));
    EXPECT_EQ(palx::projectNames(), QStringList({"P", "P(1)", "P(2)"}));
    QDir(place(QStringLiteral("P(1)"))).removeRecursively();
    ASSERT_TRUE(import({"P.zip", "P.zip"}, OnClash::Rename));
    EXPECT_EQ(palx::projectNames(), QStringList({"P", "P(1)", "P(2)", "P(3)"}));
}

TEST_F(ProjectExchangeTest, ProjectsWithoutParametersKeepTheDefaults)
{
    const std::vector<RawEntry> plain{{"main.mod", "x", 0, 0, 0, {}, {}, 0},
                                      {"var.xml", kVariables, 0, 0, 0, {}, {}, 0}};
    putArchive(QStringLiteral("P.zip"), plain);
    putArchive(QStringLiteral("Q.zip"), {plain.front()});
    ASSERT_TRUE(import({"P.zip", "Q.zip"}, OnClash::Rename)) << takeMessages().join("|");
    EXPECT_EQ(record(QStringLiteral("P")), QStringLiteral("P 0 0 0 0 0 0 0"));
    EXPECT_EQ(record(QStringLiteral("Q")), QStringLiteral("Q 0 0 0 0 0 0 0"));
    EXPECT_EQ(content("P/main.mod"), QByteArray("x"));
    EXPECT_EQ(content("Q/var.xml"), QByteArray("(no file)"));
}

TEST_F(ProjectExchangeTest, RefusedArchivesChangeNothing)
{
    putProject(QStringLiteral("P"));
    setRecord(QStringLiteral("P"), kAll);
    const auto variable = [](const char *value) {
        return QByteArray("<node type=\"list\"><node type=\"map\"><node name=\"name\" type=\"string\">"
                          "scheme_layout</node><node name=\"value\" type=\"map\"><node name=\"[0][0][0]\" "
                          "type=\"string\">") +
               value + "</node></node></node></node>";
    };
    const struct
    {
        const char *name;
        QByteArray variables;
        const char *reason;
    } cases[] = {
        {"../P", "", "leads out of the folder"},
        {"var.xml", "<node", "var.xml"},
        {"var.xml", "<node type=\"int\">3</node>", "holds no list of variables"},
        {"var.xml", variable("7"), "scheme_layout is none that a project can have"},
        {"var.xml", variable(""), "scheme_layout is none that a project can have"},
    };
    const auto before = files();
    for (const auto &each : cases) {
        SCOPED_TRACE(each.reason);
        putArchive(QStringLiteral("P.zip"),
                   {{"ok", "1", 0, 0, 0, {}, {}, 0}, {each.name, each.variables, 0, 0, 0, {}, {}, 0}});
        records.clear();
        EXPECT_FALSE(import({"P.zip"}, OnClash::Replace));
        EXPECT_EQ(takeMessages().last(), QString("warning: Import " + onDisk("P.zip") + " failed!"));
        EXPECT_TRUE(records.join("|").contains(each.reason)) << records.join("|");
        EXPECT_EQ(files(), before);
        EXPECT_EQ(record(QStringLiteral("P")), QStringLiteral("P 2 1 1 1 1 3 4"));
        EXPECT_TRUE(palx::lastImported().isEmpty());
    }
    putArchive(QStringLiteral("B.zip"), {{"b", "1", 0, 0, 0, {}, {}, 0}});
    EXPECT_FALSE(import({"P.zip", "B.zip"}, OnClash::Replace)); // but the others come
    EXPECT_EQ(palx::lastImported(), QStringList("B"));
}

TEST_F(ProjectExchangeTest, RequestsWithoutContentAreRefused)
{
    palx::NoProgress nobody;
    records.clear();
    EXPECT_FALSE(palx::exportProjects({{"P"}, false, QString(), programs()}, &nobody));
    EXPECT_EQ(records, QStringList("error: Export path can not be empty!"));
    takeMessages();
    EXPECT_FALSE(exportNames({}));
    EXPECT_EQ(takeMessages(), QStringList("error: please select item!"));
    EXPECT_FALSE(import({}, OnClash::Rename));
    EXPECT_EQ(takeMessages(), QStringList("error: please select item!"));
    for (const char *name : {"none", "../P", "_build"}) {
        EXPECT_FALSE(exportNames({name}));
        EXPECT_EQ(takeMessages().last(), QStringLiteral("warning: Export %1 failed!").arg(name));
    }
    EXPECT_EQ(names(disk()), QStringList());
}

TEST_F(ProjectExchangeTest, ExportEndsWithTheFirstFailure)
{
    for (const char *name : {"A", "B", "C"})
        putProject(QLatin1String(name));
    ASSERT_TRUE(QFile::link("main.mod", place("B/task0/link.mod")));
    records.clear();
    EXPECT_FALSE(exportNames({"A", "B", "C"}));
    EXPECT_EQ(takeMessages().last(), QStringLiteral("warning: Export B failed!"));
    EXPECT_EQ(records, QStringList("error: Export B failed!: \"task0/link.mod\" is a link"));
    EXPECT_EQ(names(disk()), QStringList("A.zip"));
    EXPECT_FALSE(exportNames({"C", "C"})); // as "c" and "C" on a disk that takes them for one
    EXPECT_TRUE(records.last().contains("another of this export for one")) << records.last();
    putFile(QStringLiteral("C/var.xml"), "no xml");
    EXPECT_FALSE(exportNames({"C"}));
    EXPECT_EQ(names(disk()), QStringList({"A.zip", "C.zip"}));
    EXPECT_EQ(content("C/var.xml"), QByteArray("no xml"));
}

TEST_F(ProjectExchangeTest, TheLastImportCanBeUndone)
{
    putProject(QStringLiteral("P"));
    putProject(QStringLiteral("Q"));
    setRecord(QStringLiteral("P"), kAll);
    ASSERT_TRUE(exportNames({"P", "Q"}));
    QDir(place(QStringLiteral("Q"))).removeRecursively();
    setRecord(QStringLiteral("P"), R"({"scheme_layout": 1})");
    putFile(QStringLiteral("P/new.mod"), "new");
    const auto before = files();
    ASSERT_TRUE(import({"P.zip", "Q.zip"}, OnClash::Replace));
    EXPECT_EQ(palx::lastImported(), QStringList({"P", "Q"}));
    EXPECT_NE(files(), before);
    ASSERT_TRUE(palx::undoLastImport());
    EXPECT_EQ(files(), before);
    EXPECT_EQ(record(QStringLiteral("P")), QStringLiteral("P 1 1 1 1 1 3 4"));
    EXPECT_EQ(record(QStringLiteral("Q")), QStringLiteral("none"));
    EXPECT_TRUE(palx::lastImported().isEmpty());
    EXPECT_FALSE(palx::undoLastImport());
}

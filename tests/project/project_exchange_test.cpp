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
    auto after = files();
    after["SIM-0001/Line 1.2/var.xml"] = kVariables.toStdString(); // which has them as variables now
    EXPECT_EQ(after, before);
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
    QDir(place(QStringLiteral("P"))).removeRecursively();
    for (const OnClash onClash : {OnClash::Rename, OnClash::Replace}) {
        ASSERT_TRUE(import({"P.zip"}, onClash));
        EXPECT_EQ(palx::projectNames(), QStringList({"P", "P(1)", "P(2)", "P(3)"}));
        QDir(place(QStringLiteral("P"))).removeRecursively();
    }
}

TEST_F(ProjectExchangeTest, RefusedArchivesChangeNothing)
{
    putProject(QStringLiteral("P"));
    setRecord(QStringLiteral("P"), kAll);
    const char *const seven = R"(<node type="list"><node type="map">
        <node name="name" type="string">scheme_layout</node>
        <node name="value" type="map"><node name="[0][0][0]" type="string">7</node></node>
        </node></node>)";
    const struct
    {
        const char *name;
        QByteArray variables;
        const char *reason;
    } cases[] = {
        {"../P", "", "leads out of the folder"},
        {"photo.png", "1", "it holds no project"},
        {"var.xml", "<node", "var.xml"},
        {"var.xml", "<node type=\"int\">3</node>", "holds no list of variables"},
        {"var.xml", seven, "scheme_layout is none that a project can have"},
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
    putArchive(QStringLiteral("B.zip"), {{".rlprog", "{}", 0, 0, 0, {}, {}, 0}});
    EXPECT_FALSE(import({"P.zip", "B.zip"}, OnClash::Replace)); // but the others come
    EXPECT_EQ(palx::lastImported(), QStringList("B"));
    EXPECT_TRUE(import({"B.zip"}, OnClash::Replace));
    const auto after = files();
    EXPECT_FALSE(import({"P.zip"}, OnClash::Replace));
    EXPECT_EQ(palx::lastImported(), QStringList("B"))
        << "what brings nothing leaves the last one to be taken back";
    EXPECT_EQ(files(), after);
    EXPECT_TRUE(palx::undoLastImport());
    EXPECT_EQ(content("B/.rlprog"), QByteArray("{}"));
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
    putFile(QStringLiteral("C/var.xml"), "no xml");
    EXPECT_FALSE(exportNames({"C"}));
    EXPECT_EQ(names(disk()), QStringList("A.zip"));
    EXPECT_EQ(content("C/var.xml"), QByteArray("no xml"));
}

// A copy of a project's folder is a copy of the project: the controller finds its tasks and variables there.

#include "exchange_fixture.h"

#include "nexo/controller_manager.h"
#include "project/rules/staged_folder.h"
#include "workstation/controller_sync.h"
#include "xservice.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using orba::Node;
using palx::OnClash;

namespace {

constexpr const char *kBoth = R"({"scheme_layout": 2, "bollard": 1})";
const QString kName = QStringLiteral("P");

class ProjectCopyTest : public ExchangeTest
{
protected:
    void switchTo(const QString &name)
    {
        presenter.answer(true);
        EXPECT_TRUE(palx::reloadProject(name, &steps)) << takeMessages().join('|').toStdString();
        settle();
    }
    void set(const QString &variable, const QString &value)
    {
        palx::setValueOfPERSVar(variable, value);
        EXPECT_TRUE(becomes(variable, value));
    }
    static bool becomes(const QString &variable, const QString &value)
    {
        return waitUntil([&] { return valueOf(variable) == value; });
    }
    static QString valueOf(const QString &variable)
    {
        const Node &list = m("quill.project.var._list")->node();
        for (int i = 0; i < list.size(); ++i)
            if (list.at(i)->getString(u"name") == variable)
                return list.at(i)->getString(u"value.[0][0][0]");
        return QStringLiteral("none");
    }
    static int variables() { return m("quill.project.var._list")->cmobjCount(); }
    /// Why the request was refused; empty when it was done.
    static QString ask(const char *request)
    {
        constexpr int kMs = 5000;
        return xservice()->execCommand(nullptr, QLatin1String(request), nullptr, kMs).error;
    }
    static QString run() { return ask("program.run"); }
    void edit(const QString &name, const QString &newName)
    {
        presenter.answer(true);
        steps.parameters = nodeFromJson(kBoth);
        EXPECT_TRUE(palx::editProject(newName, name, &steps)) << takeMessages().join('|').toStdString();
        if (nexo::ControllerManager::instance()->rcConnected())
            settle();
    }
};

} // namespace

TEST_F(ProjectCopyTest, ACloneRuns)
{
    const QString old = QStringLiteral("Line \"A\"");
    add(old, kBoth);
    const QStringList expected = tasks();
    ASSERT_FALSE(expected.isEmpty());
    set(QStringLiteral("SetZ"), QStringLiteral("650"));
    edit(old, old); // and builds it
    EXPECT_NE(content(old + "/var_monitor.json"), QByteArray("(no file)"));
    presenter.answer(true);
    steps.parameters = nodeFromJson(kBoth);
    ASSERT_TRUE(palx::addProject(kName, old, &steps));
    settle();
    EXPECT_EQ(tasks(), expected);
    EXPECT_EQ(valueOf(QStringLiteral("SetZ")), QStringLiteral("650"));
    EXPECT_EQ(m("quill.project.var_monitor._list")->cmobjCount(), 32);
    EXPECT_EQ(run(), QString());
}

// What counts must neither be lost nor come from another project of that name.
TEST_F(ProjectCopyTest, CountersStayWithTheirProject)
{
    const QString layer = QStringLiteral("currentLayerL");
    const auto isConnected = [] { return nexo::ControllerManager::instance()->rcConnected(); };
    add(QStringLiteral("Other"));
    add(kName, kBoth);
    const QStringList expected = tasks();
    set(layer, QStringLiteral("3"));
    putFile(kName + "/.rlprog", "{\"project_name\": \"P\"}"); // which says nothing of tasks
    switchTo(QStringLiteral("Other"));
    switchTo(kName);
    EXPECT_EQ(tasks(), expected);

    set(layer, QStringLiteral("4"));
    switchTo(QStringLiteral("Other"));
    pullPlug();
    ASSERT_TRUE(waitUntil([&] { return !isConnected(); }));
    presenter.answer(true);
    EXPECT_TRUE(palx::reloadProject(kName, &steps));
    plugIn();
    ASSERT_TRUE(waitUntil(isConnected));
    EXPECT_TRUE(becomes(layer, QStringLiteral("4")));

    edit(kName, QStringLiteral("Q"));
    EXPECT_EQ(valueOf(layer), QStringLiteral("4")) << "a new name is no new project";
    switchTo(QStringLiteral("Other"));
    ASSERT_TRUE(palx::removeFolder(place(QStringLiteral("Q"))));
    add(QStringLiteral("Q"), kBoth);
    EXPECT_EQ(valueOf(layer), QStringLiteral("1"));
}

// Whether its folder was removed outside of the panel while another project was in use, or while it was itself.
TEST_F(ProjectCopyTest, ANewProjectStartsAfreshUnderTheNameOfOneWhoseFolderIsGone)
{
    const QString layer = QStringLiteral("currentLayerL");
    for (const bool isInUse : {false, true}) {
        const QString name = QStringLiteral("P%1").arg(isInUse);
        add(QStringLiteral("Other%1").arg(isInUse));
        add(name, kBoth);
        set(layer, QStringLiteral("3"));
        if (!isInUse)
            switchTo(QStringLiteral("Other0"));
        ASSERT_TRUE(palx::removeFolder(place(name)));
        add(name, R"({"scheme_layout": 0, "bollard": 1})");
        EXPECT_EQ(valueOf(layer), QStringLiteral("1")) << isInUse;
        EXPECT_EQ(tasks().first(), QStringLiteral("task0: main BackHome Init ZuoMaduo")) << isInUse;
        start(); // what the controller knows
        EXPECT_EQ(valueOf(layer), QStringLiteral("1")) << isInUse;
    }
}

// The pallet is half full: the first layer would be laid into the boxes.
TEST_F(ProjectCopyTest, AProjectThatLostItsTasksFileGoesOnCounting)
{
    const QString layer = QStringLiteral("currentLayerL");
    const auto isConnected = [] { return nexo::ControllerManager::instance()->rcConnected(); };
    add(QStringLiteral("Other"));
    add(kName, kBoth);
    const QStringList expected = tasks();
    set(layer, QStringLiteral("3"));
    switchTo(QStringLiteral("Other"));
    ASSERT_TRUE(QFile::remove(place(kName + "/.rlprog")));
    switchTo(kName);
    EXPECT_EQ(valueOf(layer), QStringLiteral("3"));
    EXPECT_EQ(tasks(), expected);

    switchTo(QStringLiteral("Other"));
    pullPlug();
    ASSERT_TRUE(waitUntil([&] { return !isConnected(); }));
    edit(kName, kName); // makes the folder anew
    plugIn();
    ASSERT_TRUE(waitUntil(isConnected));
    EXPECT_TRUE(becomes(layer, QStringLiteral("3")));
    start();
    EXPECT_EQ(valueOf(layer), QStringLiteral("3"));
    EXPECT_EQ(tasks(), expected);
}

TEST_F(ProjectCopyTest, AnImportedProjectRunsWhereItIsNotKnown)
{
    add(kName, kBoth);
    const QStringList expected = tasks();
    const int count = variables();
    ASSERT_TRUE(exportNames({kName}));
    presenter.answer(true);
    ASSERT_TRUE(palx::deleteProject(kName, &steps));
    settle();
    ASSERT_TRUE(import({"P.zip"}, OnClash::Rename));
    switchTo(kName);
    EXPECT_EQ(tasks(), expected);
    EXPECT_EQ(variables(), count + 7) << "the parameters came as variables";
    EXPECT_EQ(run(), QString());
}

// A wrong count would have the robot begin with the first layer on a pallet that is half full.
TEST_F(ProjectCopyTest, AReplacedProjectCountsLikeItsArchiveAndUndoBringsBackItsOwnCount)
{
    const QString layer = QStringLiteral("currentLayerL");
    add(kName, kBoth);
    ASSERT_TRUE(exportNames({kName}));
    set(layer, QStringLiteral("3"));
    ASSERT_TRUE(import({"P.zip"}, OnClash::Replace));
    EXPECT_TRUE(becomes(layer, QStringLiteral("1")));
    EXPECT_FALSE(tasks().isEmpty());
    set(layer, QStringLiteral("2"));
    ASSERT_TRUE(palx::undoLastImport());
    EXPECT_TRUE(becomes(layer, QStringLiteral("3")));
    start();
    EXPECT_EQ(valueOf(layer), QStringLiteral("3"));
}

TEST_F(ProjectCopyTest, AProjectThatRunsIsExchangedWhenItStops)
{
    const QString layer = QStringLiteral("currentLayerL");
    add(kName, kBoth);
    ASSERT_TRUE(exportNames({kName}));
    set(layer, QStringLiteral("3"));
    putFile(kName + "/task0/main.mod", "GLOBAL PROC main()\nWaitUntil(flagL == 77)\nENDPROC\n");
    ASSERT_EQ(run(), QString());
    records.clear();
    ASSERT_TRUE(import({"P.zip"}, OnClash::Replace));
    EXPECT_TRUE(
        waitUntil([this] { return records.join('|').contains("was exchanged while its program runs"); }));
    EXPECT_EQ(valueOf(layer), QStringLiteral("3"));
    ASSERT_EQ(ask("program.stop"), QString());
    EXPECT_TRUE(becomes(layer, QStringLiteral("1"))) << "before anybody presses Run";

    putFile(kName + "/.rlprog", content(kName + "/.rlprog") + ' '); // nobody told the controller
    EXPECT_TRUE(run().contains("was exchanged"));
    EXPECT_EQ(run(), QString());
}

TEST_F(ProjectCopyTest, AFolderThatCannotBeReadIsLeftAsItIsAndDoesNotRun)
{
    const struct
    {
        const char *file;
        QByteArray content; ///< empty: a pipe
        const char *reason;
    } cases[] = {
        {".rlprog", "{\"tasks\": [", ".rlprog:1:"},
        {".rlprog", "{\"tasks\": \"task0\"}", ".rlprog: there is no list"},
        {".rlprog", "{\"tasks\": " + QByteArray(150, '[') + QByteArray(150, ']') + "}", "nested too deep"},
        {".rlprog", QByteArray(5 * 1024 * 1024, ' '), "5242880 bytes, more than"},
        {"var.xml", "<!DOCTYPE a [<!ENTITY b \"c\">]><node type=\"list\">&b;</node>", "var.xml:1:"},
        {"var.xml", "<node type=\"int\">1</node>", "var.xml: there is no list"},
        {"var.xml", "", "var.xml: this is no file"},
        {"var_monitor.json", "[1", "var_monitor.json:1:"},
    };
    int number = 0;
    for (const auto &each : cases) {
        const QString name = QStringLiteral("P%1").arg(++number);
        putProject(name);
        QFile::remove(place(name + '/' + each.file));
        if (each.content.isEmpty())
            ASSERT_EQ(::mkfifo(place(name + '/' + each.file).toLocal8Bit().constData(), 0644), 0);
        else
            putFile(name + '/' + each.file, each.content);
        const auto before = files();
        records.clear();
        switchTo(name);
        EXPECT_TRUE(records.join('|').contains(QLatin1String(each.reason)))
            << each.reason << records.join('|').toStdString();
        EXPECT_EQ(files(), before) << each.reason;
        EXPECT_EQ(tasks(), QStringList()) << each.reason;
        EXPECT_NE(run(), QString()) << each.reason;
    }
}

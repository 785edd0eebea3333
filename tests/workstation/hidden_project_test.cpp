#include "workstation/hidden_project.h"

#include "core/global_nodes.h"
#include "orba/module_manager.h"
#include "orba/tree_registry.h"
#include "support/test_support.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using orba::ModuleManager;
using orba::ModuleObject;
using orba::Node;
using palx::HiddenProject;

namespace {

class HiddenProjectTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host::buildGlobalNodes());
        Node *tree = orba::TreeRegistry::instance().addModule(palx::getPluginName());
        ASSERT_TRUE(ModuleManager::readFromJson(
            QStringLiteral(":/palx_workstation/template/palx_workstation.json"), tree));
        m("nexo.setting.workspace")->set(nullptr, "", workspace_.path());
        QObject::connect(m("quill.log.current"), &ModuleObject::changed, &context_,
                         [this](const QVariant &value) { records.append(value.toString()); });
    }
    void TearDown() override
    {
        orba::TreeRegistry::instance().removeModule(palx::getPluginName());
        host::removeGlobalNodes();
    }

    QString file(const char *name) const
    {
        return workspace_.filePath(QStringLiteral("R1/palx_default/") + QLatin1String(name));
    }
    QString workspaceOf() const { return workspace_.path(); }
    QStringList files() const
    {
        return QDir(workspace_.filePath(QStringLiteral("R1/palx_default")))
            .entryList(QDir::Files, QDir::Name);
    }
    static void setRobot(const char *version)
    {
        m("nexo.r.version")->set(nullptr, "", QString::fromLatin1(version));
        m("nexo.r.id")->set(nullptr, "", QStringLiteral("R1"));
    }
    static void rest()
    {
        bool isOver = false;
        QTimer::singleShot(1, [&isOver] { isOver = true; });
        while (!isOver)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    static void put(const QString &name, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(name).path());
        QFile output(name);
        ASSERT_TRUE(output.open(QIODevice::WriteOnly));
        output.write(content);
    }

    QStringList records;

private:
    QTemporaryDir workspace_;
    QObject context_;
};

TEST_F(HiddenProjectTest, WaitsForTheRobotAndWritesTheFormOfItsVersion)
{
    struct
    {
        const char *version;
        QStringList files;
    } const cases[] = {{"2.3.1", {"tool.json", "var.xml", "wobj.json"}},
                       {"2.5.0", {"tool.xml", "var.xml", "wobj.xml"}}};
    for (const auto &one : cases) {
        QDir(QDir(workspaceOf()).filePath(QStringLiteral("R1"))).removeRecursively();
        m("nexo.r.id")->set(nullptr, "", QString());
        HiddenProject keeper;
        palx::saveDataToHiddenProject();
        EXPECT_TRUE(files().isEmpty());
        setRobot(one.version);
        EXPECT_EQ(files(), one.files);
    }
}

TEST_F(HiddenProjectTest, ChangesAreWrittenByThemselvesAndReadAgain)
{
    const Node projects = nodeFromJson(R"({"P.#1":{"name":"P.#1","scheme_layout":2}})");
    const Node tools = nodeFromJson(R"([{"name":"PalletTool1","load":{"mass":2.5}}])");
    {
        setRobot("2.3.0");
        HiddenProject keeper;
        palx::pluginNode()->c("projects")->copyFrom(projects);
        rest();
        palx::pluginNode()->c("global_tool")->copyFrom(tools);
    } // the last change by the keeper's end
    palx::pluginNode()->c("projects")->clear();
    palx::pluginNode()->c("global_tool")->clear();
    QSignalSpy refreshed(palx::triggerNode()->c("refresh_data"), &ModuleObject::changed);
    HiddenProject keeper;
    EXPECT_EQ(palx::pluginNode()->c("projects")->node(), projects);
    EXPECT_EQ(palx::pluginNode()->c("global_tool")->node(), tools);
    EXPECT_EQ(refreshed.count(), 1);
    EXPECT_TRUE(records.isEmpty());
}

TEST_F(HiddenProjectTest, TheFormOfTheRunningVersionWins)
{
    put(file("tool.json"), R"([{"name":"json"}])");
    Node xml = nodeFromJson(R"([{"name":"xml"}])");
    ASSERT_TRUE(ModuleManager::writeToXmlFile(xml, file("tool.xml")));
    ASSERT_TRUE(ModuleManager::writeToXmlFile(xml, file("wobj.xml")));
    setRobot("2.3.0");
    HiddenProject keeper;
    EXPECT_EQ(palx::pluginNode()->getString("global_tool.#0.name"), QStringLiteral("json"));
    EXPECT_EQ(palx::pluginNode()->getString("global_wobj.#0.name"),
              QStringLiteral("xml"));              // the only one there
    EXPECT_TRUE(QFile::exists(file("wobj.json"))); // and now in both forms
}

TEST_F(HiddenProjectTest, DamagedFilesAreSetAsideAndTold)
{
    palx::pluginNode()->c("global_tool")->copyFrom(nodeFromJson(R"([{"name":"stored"}])"));
    const QByteArray broken[] = {"[{\"name\":", "{\"a\":1}", "", "\x01\x02"};
    int told = 0;
    for (const QByteArray &content : broken) {
        put(file("tool.json"), content);
        setRobot("2.3.0");
        HiddenProject keeper;
        EXPECT_EQ(palx::pluginNode()->getString("global_tool.#0.name"), QStringLiteral("stored"));
        ASSERT_EQ(records.size(), ++told) << content.constData();
        EXPECT_TRUE(records.last().contains(QStringLiteral("tool.json.damaged-")));
    }
    EXPECT_EQ(files().filter(QStringLiteral("damaged")).size(), told);
}

TEST_F(HiddenProjectTest, AFolderThatCannotBeMadeIsToldOnce)
{
    put(QDir(workspaceOf()).filePath(QStringLiteral("R1")), "a file in the way");
    setRobot("2.3.0");
    HiddenProject keeper;
    EXPECT_EQ(records.size(), 3); // one per part
    rest();
    palx::saveDataToHiddenProject();
    EXPECT_EQ(records.size(), 3);
    QFile::remove(QDir(workspaceOf()).filePath(QStringLiteral("R1")));
    palx::saveDataToHiddenProject();
    EXPECT_EQ(files().size(), 3);
}

TEST_F(HiddenProjectTest, ARobotIdCannotLeadOutOfTheWorkspace)
{
    for (const char *id : {"..", "a/b", ".", ".hidden"}) {
        m("nexo.r.id")->set(nullptr, "", QString::fromLatin1(id));
        EXPECT_EQ(HiddenProject::folder(), QString()) << id;
    }
}

} // namespace

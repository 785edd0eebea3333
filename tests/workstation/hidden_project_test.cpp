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

    QString folder() const { return workspace_.filePath(QStringLiteral("R1/palx_default")); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
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
        QDir(folder()).removeRecursively();
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

TEST_F(HiddenProjectTest, DamagedFilesAreSetAsideAndTold)
{
    palx::pluginNode()->c("global_tool")->copyFrom(nodeFromJson(R"([{"name":"stored"}])"));
    const QByteArray broken[] = {"[{\"name\":", "{\"a\":1}", ""};
    int told = 0;
    for (const QByteArray &content : broken) {
        ASSERT_TRUE(QDir().mkpath(folder()));
        QFile tools(folder() + QStringLiteral("/tool.json"));
        ASSERT_TRUE(tools.open(QIODevice::WriteOnly));
        tools.write(content);
        tools.close();
        setRobot("2.3.0");
        HiddenProject keeper;
        EXPECT_EQ(palx::pluginNode()->getString("global_tool.#0.name"), QStringLiteral("stored"));
        ASSERT_EQ(records.size(), ++told) << content.constData();
        EXPECT_TRUE(records.last().contains(QStringLiteral("tool.json.damaged-")));
    }
    EXPECT_EQ(files().filter(QStringLiteral("damaged")).size(), told);
}

TEST_F(HiddenProjectTest, ARobotIdCannotLeadOutOfTheWorkspace)
{
    for (const char *id : {"..", "a/b", ".", ".hidden"}) {
        m("nexo.r.id")->set(nullptr, "", QString::fromLatin1(id));
        EXPECT_EQ(HiddenProject::folder(), QString()) << id;
    }
}

} // namespace

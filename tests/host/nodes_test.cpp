#include "bwaf/bmodule.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "ix/global_node.h"
#include "ix/paths.h"
#include "ix/xnav.h"
#include "nexo/setting_manager.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace {

class GlobalNodes : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QString error;
        ASSERT_TRUE(host::buildGlobalNodes(&error)) << error;
    }
    void TearDown() override { host::removeGlobalNodes(); }
    static void publish(const char *json)
    {
        m("quill.log.current")->set(nullptr, "", QString::fromUtf8(json));
    }
    ScriptedPresenter presenter;
};

} // namespace

TEST_F(GlobalNodes, HoldWhatModulesExpect)
{
    const char *paths[] = {"nexo.r.id",
                           "nexo.r.version",
                           "nexo.setting.workspace",
                           "quill.log.current",
                           "quill.log.list",
                           "quill.project.cur_project",
                           "quill.project.var._list",
                           "quill.toolpage.toolset",
                           "quill.help.file_path.project_export",
                           "ix.nav"};
    for (const char *path : paths)
        EXPECT_FALSE(m(path)->isEmptyMobj()) << path;
    EXPECT_EQ(m("nexo.r.version")->getString(), QStringLiteral("2.3.0"));
}

TEST_F(GlobalNodes, BuildingAgainKeepsValues)
{
    const int count = m("nexo")->cmobjCount();
    m("nexo.r")->set(nullptr, "id", QStringLiteral("R7"));
    ASSERT_TRUE(host::buildGlobalNodes());
    EXPECT_EQ(m("nexo.r.id")->getString(), QStringLiteral("R7"));
    EXPECT_EQ(m("nexo")->cmobjCount(), count);
}

TEST_F(GlobalNodes, MirrorSettings)
{
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride(QStringLiteral("workspace"), QStringLiteral("/tmp/space"));
    EXPECT_EQ(m("nexo.setting.workspace")->getString(), QStringLiteral("/tmp/space"));
    settings->setOverride(QStringLiteral("workspace"), QString());
    EXPECT_EQ(m("nexo.setting.workspace")->getString(), QString());
}

TEST_F(GlobalNodes, AreGoneAfterwards)
{
    host::removeGlobalNodes();
    EXPECT_TRUE(m("nexo.r.id")->isEmptyMobj());
    nexo::SettingManager::instance()->setOverride(QStringLiteral("touch"),
                                                  QStringLiteral("true")); // nobody listens
    nexo::SettingManager::instance()->setOverride(QStringLiteral("touch"), QString());
}

TEST_F(GlobalNodes, LogRecordsAreKeptAndShownEvenWhenEqual)
{
    host::LogKeeper keeper;
    const char *record =
        R"({"level":"warning","title":"repaired","date_time":"2024-01-02/03:04:05","rcid":"R7"})";
    publish(record);
    publish(record);
    EXPECT_EQ(m("quill.log.list")->cmobjCount(), 2);
    EXPECT_EQ(m("quill.log.list")->getString("#1.rcid"), QStringLiteral("R7"));
    EXPECT_EQ(presenter.notices,
              QStringList({QStringLiteral("warning: repaired"), QStringLiteral("warning: repaired")}));
}

TEST_F(GlobalNodes, WhatIsNoLogRecordIsToldAndNotKept)
{
    host::LogKeeper keeper;
    const char *texts[] = {"", "no json", "[]", "7", R"({"level":"error"})", R"({"title":""})"};
    for (const char *text : texts) {
        presenter.notices.clear();
        publish(text);
        ASSERT_EQ(presenter.notices.size(), 1) << text;
        EXPECT_TRUE(
            presenter.notices.first().startsWith(QStringLiteral("error: A log record cannot be kept")))
            << text;
    }
    EXPECT_EQ(m("quill.log.list")->cmobjCount(), 0);
}

TEST_F(GlobalNodes, TheLogKeepsTheNewestRecords)
{
    host::LogKeeper keeper;
    for (int i = 0; i < host::LogKeeper::kMaxRecords + 3; ++i)
        publish(qPrintable(QStringLiteral(R"({"title":"n%1"})").arg(i)));
    orba::ModuleObject *list = m("quill.log.list");
    ASSERT_EQ(list->cmobjCount(), host::LogKeeper::kMaxRecords);
    EXPECT_EQ(list->getString("#0.title"), QStringLiteral("n3"));
    EXPECT_EQ(list->c(host::LogKeeper::kMaxRecords - 1)->getString("title"), QStringLiteral("n502"));
}

TEST_F(GlobalNodes, ANavigatorEntryHasEveryKeyAndEndsWithItsModule)
{
    {
        bwaf::BModule module;
        orba::ModuleObject *entry =
            ix::xnav::registerPage(&module, QStringLiteral("Title"), QStringLiteral("robot.pack"), QString());
        EXPECT_EQ(nodeText(entry->node()),
                  nodeText(nodeFromJson(R"({"title": "Title", "category": "robot.pack", "icon": "",
                                            "order": -1, "nav": "", "key": ""})")));
        EXPECT_TRUE(entry->set(&module, "nav", QStringLiteral("module.home")));
        EXPECT_EQ(m("ix.nav")->getString("#0.nav"), QStringLiteral("module.home"));
        ix::xnav::registerPage(&module, QStringLiteral("Second"), QString(), QString(), 4);
        EXPECT_EQ(m("ix.nav")->cmobjCount(), 2);
    }
    EXPECT_EQ(m("ix.nav")->cmobjCount(), 0);
}

TEST_F(GlobalNodes, SharedNodesAreFoundByTheirWholeKey)
{
    orba::ModuleObject *shared = ix::globalNode(QStringLiteral("xpallet.dialog"));
    EXPECT_EQ(ix::globalNode(QStringLiteral("xpallet.dialog")), shared);
    EXPECT_NE(ix::globalNode(QStringLiteral("xpallet")), shared);
    EXPECT_EQ(shared->name(), QStringLiteral("xpallet.dialog"));
}

TEST(Paths, NameResourcesByPluginAndName)
{
    EXPECT_EQ(ix::templatePath(QStringLiteral("plug"), QStringLiteral("data")),
              QStringLiteral(":/plug/template/data.json"));
    EXPECT_EQ(ix::translationPath(QStringLiteral("plug"), QStringLiteral("ru")),
              QStringLiteral(":/plug/language/plug_ru.qm"));
}

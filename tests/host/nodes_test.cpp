#include "bwaf/bmodule.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "ix/xnav.h"
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
    }
    EXPECT_EQ(m("ix.nav")->cmobjCount(), 0);
}

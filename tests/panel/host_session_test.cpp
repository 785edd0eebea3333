#include "bwaf/bmodule.h"
#include "controller/in_process_carrier.h"
#include "core/store.h"
#include "fixtures.h"
#include "nexo/setting_manager.h"
#include "orba/tree_registry.h"
#include "shell/host_session.h"
#include "support/test_support.h"
#include "xservice.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <functional>

namespace {

class HostSessionTest : public ::testing::Test
{
protected:
    void SetUp() override { takeSampleNotes(); }
    host::SessionOptions options(const QStringList &plugins) const
    {
        host::SessionOptions given;
        given.dataFolder = folder.filePath(QStringLiteral("data"));
        given.workspaceFolder = folder.filePath(QStringLiteral("space"));
        given.pluginFiles = plugins;
        return given;
    }
    void TearDown() override
    {
        qunsetenv("PALX_SETTING_DATA");
        qunsetenv("PALX_SETTING_WORKSPACE");
    }
    static QString texts(const host::HostSession &session)
    {
        QStringList lines;
        for (const host::Problem &problem : session.problems())
            lines.append(problem.text());
        return lines.join(QLatin1Char('\n'));
    }

    QTemporaryDir folder;
    ScriptedPresenter presenter;
    const QString good = fixtureFile("good_plugin");
};

} // namespace

TEST_F(HostSessionTest, DrivesAPluginThroughItsLifeAndEndsInOrder)
{
    host::HostSession session(options({good}));
    ASSERT_TRUE(session.start()) << texts(session);
    EXPECT_EQ(takeSampleNotes().join(QLatin1Char(' ')), QStringLiteral("init setup"));
    EXPECT_EQ(session.module(QStringLiteral("sample_plugin")), session.modules().value(0));
    EXPECT_EQ(session.centerWidget()->pageKeys(), QStringList(QStringLiteral("sample_plugin.page")));
    session.render();
    session.idle();
    session.idle();
    EXPECT_EQ(takeSampleNotes().join(QLatin1Char(' ')), QStringLiteral("render idle"));
    const QPointer<bwaf::CenterWidget> center = session.centerWidget();
    session.stop();
    session.stop();
    EXPECT_EQ(takeSampleNotes().join(QLatin1Char('|')), QStringLiteral("page detach|detach|page ends|ends"));
    EXPECT_TRUE(center.isNull());
    EXPECT_EQ(orba::TreeRegistry::instance().root().size(), 0);
}

TEST_F(HostSessionTest, OneBadPluginDoesNotKeepTheOthersOut)
{
    host::HostSession session(options({fixtureFile("no_entry"), good, good, fixtureFile("no_module")}));
    EXPECT_FALSE(session.start());
    EXPECT_EQ(session.modules().size(), 1);
    ASSERT_EQ(session.problems().size(), 3) << texts(session);
    EXPECT_TRUE(session.problems().at(0).why.contains(QStringLiteral("orba_plugin_api")));
    EXPECT_TRUE(session.problems().at(1).why.contains(QStringLiteral("is there already")));
    EXPECT_TRUE(session.problems().at(2).why.contains(QStringLiteral("made no module")));
}

TEST_F(HostSessionTest, ADataFolderThatAnotherProcessHoldsIsLeftAlone)
{
    const QString data = folder.filePath(QStringLiteral("data"));
    ASSERT_TRUE(QDir().mkpath(data));
    const std::unique_ptr<host::Store> other = std::make_unique<host::Store>();
    ASSERT_TRUE(other->open(data));
    host::HostSession session(options({good}));
    EXPECT_FALSE(session.start());
    EXPECT_EQ(session.modules().size(), 1);
    ASSERT_EQ(session.problems().size(), 1) << texts(session);
    EXPECT_EQ(session.problems().first().what, QStringLiteral("The stored data cannot be used"));
    EXPECT_EQ(session.problems().first().where, data);
    EXPECT_TRUE(session.save()); // there is nothing to save to
}

/// saveAllToRC(true) hands a task to the thread pool; at the end of the panel it must still reach the controller.
TEST_F(HostSessionTest, WhatAnotherThreadStillSendsGoesOutBeforeTheLinkEnds)
{
    const auto controller = std::make_shared<controller::Controller>(controller::StationOptions());
    host::SessionOptions given = options({good});
    given.carrier = [controller] { return std::make_unique<controller::InProcessCarrier>(controller); };
    XReply reply;
    QSemaphore pagesHaveEnded;
    const auto send = [&reply, &pagesHaveEnded] {
        orba::Node recipes;
        recipes.reset(orba::Node::Kind::List);
        pagesHaveEnded.acquire(); // not before the session has begun to end
        reply = xservice()->set(nullptr, QStringLiteral("pallet.data"), recipes, 60000);
    };
    {
        host::HostSession session(given);
        ASSERT_TRUE(session.start()) << texts(session);
        ASSERT_TRUE(m("nexo.r")->getBool("connected"));
        QObject::connect(session.centerWidget(), &QObject::destroyed,
                         [&pagesHaveEnded] { pagesHaveEnded.release(); });
        QThreadPool::globalInstance()->start(send);
        session.stop();
    }
    EXPECT_TRUE(reply.isOk()) << reply.error;
    QThreadPool::globalInstance()->waitForDone();
}

/// Whoever starts the panel somewhere else finds the same projects.
TEST_F(HostSessionTest, ARelativeWorkspaceLiesInTheDataFolder)
{
    const QString data = folder.filePath(QStringLiteral("data"));
    const struct
    {
        const char *stored; ///< in the settings file
        const char *environment;
        QString given;
        QString expected;
    } cases[] = {
        {"{}", nullptr, QString(), data + "/workspace"},
        {R"({"workspace": "cells"})", nullptr, QString(), data + "/cells"},
        {R"({"workspace": "cells"})", "lines/north", QString(), data + "/lines/north"},
        {R"({"workspace": "cells"})", "lines", folder.filePath("space"), folder.filePath("space")},
    };
    ASSERT_TRUE(QDir().mkpath(data));
    for (const auto &each : cases) {
        QFile settings(data + QStringLiteral("/settings.json"));
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
        settings.write(each.stored);
        settings.close();
        if (each.environment)
            qputenv("PALX_SETTING_WORKSPACE", each.environment);
        host::SessionOptions given = options({});
        given.workspaceFolder = each.given;
        host::HostSession session(given);
        ASSERT_TRUE(session.start()) << texts(session);
        EXPECT_EQ(m("nexo.setting.workspace")->getString(), each.expected);
        EXPECT_TRUE(QDir(each.expected).exists()) << each.expected;
        EXPECT_FALSE(QDir(QFileInfo(each.expected).fileName()).exists()) << "where the panel was started";
    }
}

TEST_F(HostSessionTest, WithoutADataFolderNothingIsKeptWhateverTheEnvironmentSays)
{
    const QString named = folder.filePath(QStringLiteral("named"));
    qputenv("PALX_SETTING_DATA", named.toUtf8());
    host::SessionOptions given = options({});
    given.dataFolder.clear();
    host::HostSession session(given);
    ASSERT_TRUE(session.start()) << texts(session);
    EXPECT_EQ(nexo::SettingManager::instance()->getStr(QStringLiteral("data")), QString());
    session.stop();
    EXPECT_FALSE(QDir(named).exists());
}

/// Examples fill a panel without recipes, also one that ran before and has written the hidden project of its robot.
TEST_F(HostSessionTest, ExamplesAreLoadedWhereThereAreNoRecipesAndReplaceNothing)
{
    controller::StationOptions station;
    station.workspaceFolder = folder.filePath(QStringLiteral("space"));
    const auto controller = std::make_shared<controller::Controller>(station);
    const auto run = [&](const QStringList &examples, const std::function<void()> &work) {
        host::SessionOptions given =
            options({QStringLiteral(PALX_BIN_DIR "/../plugins/libpalx_workstation.so")});
        given.carrier = [controller] { return std::make_unique<controller::InProcessCarrier>(controller); };
        for (const QString &name : examples)
            given.examples.append(QStringLiteral(PALX_SOURCE_DIR "/examples/") + name);
        host::HostSession session(given);
        EXPECT_TRUE(session.start()) << texts(session);
        QString shown = m("palx.global_tool")->getString("#0.name") + QLatin1Char(':');
        for (const orba::ModuleObject *recipe : m("palx.stacks")->cmobjs())
            shown += QLatin1Char(' ') + recipe->getString("name");
        if (work)
            work();
        return shown;
    };
    const QString cell = QStringLiteral("global-cell.json");
    EXPECT_EQ(run({}, nullptr), QStringLiteral(":"));
    EXPECT_EQ(run({cell}, nullptr), QStringLiteral("PalletTool1: Cell left Cell right"));
    const auto change = [] {
        m("palx.global_tool")->set(nullptr, "#0.name", "Own");
        m("palx.stacks")->clear();
    };
    EXPECT_EQ(run({QStringLiteral("line-left.xml")}, change),
              QStringLiteral("PalletTool1: Cell left Cell right"))
        << "the panel's own recipes";
    EXPECT_EQ(run({cell}, nullptr), QStringLiteral("Own: Cell left Cell right")) << "the robot's own tool";
}

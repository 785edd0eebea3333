#include "bwaf/bmodule.h"
#include "controller/in_process_carrier.h"
#include "core/store.h"
#include "fixtures.h"
#include "orba/tree_registry.h"
#include "shell/host_session.h"
#include "support/test_support.h"
#include "xservice.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThreadPool>

#include <gtest/gtest.h>

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

#include "bwaf/bmodule.h"
#include "nexo/setting_manager.h"
#include "shell/host_session.h"
#include "support/stderr_capture.h"
#include "support/test_support.h"
#include "workstation/palx.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString kName = QStringLiteral("palx_workstation");
const QString kHomePage = QStringLiteral("palx_workstation.home_page");
const QString kSetupPage = QStringLiteral("palx_workstation.setup_page");

/// The plug-in driven by the host, in a temporary folder.
class PalxEntry : public ::testing::Test
{
protected:
    void start(bool pages)
    {
        host::SessionOptions options;
        options.dataFolder = folder.path();
        options.linkedPlugins = QStringList(kName);
        options.pages = pages;
        session = std::make_unique<host::HostSession>(options);
        EXPECT_TRUE(session->start());
        for (const host::Problem &problem : session->problems())
            ADD_FAILURE() << problem.text();
    }
    QByteArray log() const
    {
        QFile file(folder.filePath(QStringLiteral("log/palx_workstation.log")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    ScriptedPresenter presenter;
    std::unique_ptr<host::HostSession> session;
};

} // namespace

TEST(PalxLibrary, RegistersInOrderWhileItIsLoaded)
{
    QStringList lines;
    for (const orba::Registration &entry : orba::registrations())
        lines.append(entry.registry + QLatin1Char(' ') + entry.key);
    EXPECT_EQ(lines, QStringList({QStringLiteral("bfactory palx_workstation"),
                                  QStringLiteral("pluginManager palx_workstation"),
                                  QStringLiteral("versionManager palx_workstation.stack.page"),
                                  QStringLiteral("versionManager palx_workstation.wizard.patternscene"),
                                  QStringLiteral("versionManager palx_workstation.wizard.patternscene")}));
    EXPECT_EQ(orba::pluginManager().create(kName), 11);
    EXPECT_EQ(orba::versionManager().create(QStringLiteral("palx_workstation.stack.page")), 14);
    EXPECT_EQ(orba::versionManager().create(QStringLiteral("palx_workstation.wizard.patternscene")), 1);
}

TEST_F(PalxEntry, ConstructionWritesOneLogLineAndBindsTheTree)
{
    {
        const StderrCapture console;
        start(false);
    }
    const QRegularExpression line(QStringLiteral(
        "^\\[S\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] palx_workstation v 2\\.0\\.10\n$"));
    EXPECT_TRUE(line.match(QString::fromUtf8(log())).hasMatch()) << log().constData();

    bwaf::BModule *module = session->module(kName);
    ASSERT_NE(module, nullptr);
    EXPECT_NE(qobject_cast<Palx *>(module), nullptr);
    EXPECT_EQ(module->mobj(), palx::pluginNode());
    EXPECT_EQ(module->mobj()->getString("version"), QStringLiteral("2.0.10"));
    EXPECT_EQ(nodeText(m("ix.nav")->node()), nodeText(nodeFromJson(R"([
        {"title": "W-Palletizing", "category": "robot.pack", "icon": "", "order": -1,
         "nav": "palx_workstation.home_page", "key": "pallet_workstation, maduo_workstation"}])")));
}

TEST_F(PalxEntry, SetupMakesTheTwoPagesInOrder)
{
    start(true);
    EXPECT_EQ(session->centerWidget()->pageKeys(), QStringList({kHomePage, kSetupPage}));
    EXPECT_EQ(session->centerWidget()->currentPage(), kHomePage);
    session->render();
    session->idle();
    session->stop();
    EXPECT_TRUE(palx::pluginNode()->isEmptyMobj());
    EXPECT_TRUE(presenter.notices.isEmpty()) << presenter.notices.join(QLatin1Char('|'));
}

TEST_F(PalxEntry, StartsAgainInTheSameProcessAndKeepsItsRecipes)
{
    start(true);
    palx::addStack(QStringLiteral("kept"), QString());
    session.reset();
    start(true);
    EXPECT_TRUE(palx::hasStack(QStringLiteral("kept")));
    EXPECT_EQ(palx::pluginNode()->getString("version"), QStringLiteral("2.0.10"));
    EXPECT_EQ(m("ix.nav")->cmobjCount(), 1);
}

TEST_F(PalxEntry, TheNavigatorsTitleFollowsTheLanguage)
{
    start(true);
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride(QStringLiteral("language"), QStringLiteral("kr"));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(m("ix.nav")->cmobj(0)->getString("title"), QString::fromUtf8("W-팔레타이징"));
}

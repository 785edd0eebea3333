#include "bwaf/bmodule.h"
#include "bwaf/center_widget.h"
#include "shell/host_session.h"
#include "support/test_support.h"
#include "workstation/plugin_node.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// The plug-in driven by the host, in a temporary folder.
class PalxEntry : public ::testing::Test
{
protected:
    void start()
    {
        host::SessionOptions options;
        options.dataFolder = folder.path();
        options.linkedPlugins = QStringList(QStringLiteral("palx_workstation"));
        options.pages = true;
        session = std::make_unique<host::HostSession>(options);
        EXPECT_TRUE(session->start());
        for (const host::Problem &problem : session->problems())
            ADD_FAILURE() << problem.text();
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
}

TEST_F(PalxEntry, MakesTwoPagesEndsAndStartsAgainWithItsRecipes)
{
    start();
    const QString home = QStringLiteral("palx_workstation.home_page");
    EXPECT_EQ(session->centerWidget()->pageKeys(),
              QStringList({home, QStringLiteral("palx_workstation.setup_page")}));
    EXPECT_EQ(session->centerWidget()->currentPage(), home);
    palx::addStack(QStringLiteral("kept"), QString());
    session->render();
    session->idle();
    session->stop();
    EXPECT_TRUE(palx::pluginNode()->isEmptyMobj());
    EXPECT_TRUE(presenter.notices.isEmpty()) << presenter.notices.join(QLatin1Char('|'));
    session.reset();
    start();
    EXPECT_TRUE(palx::hasStack(QStringLiteral("kept")));
    EXPECT_EQ(palx::pluginNode()->getString("version"), QStringLiteral("2.0.10"));
    EXPECT_EQ(nodeText(m("ix.nav")->node()), nodeText(nodeFromJson(R"([
        {"title": "W-Palletizing", "category": "robot.pack", "icon": "", "order": -1,
         "nav": "palx_workstation.home_page", "key": "pallet_workstation, maduo_workstation"}])")));
}

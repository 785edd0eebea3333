#include "panel/controller_choice.h"

#include "core/controller_link.h"
#include "link/carrier.h"
#include "panel/panel_options.h"
#include "support/test_support.h"

#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>

using panel::ControllerChoice;

TEST(ControllerChoice, IsReadFromTheCommandLine)
{
    const struct
    {
        const char *text;
        bool isGood;
        ControllerChoice::Kind kind;
        const char *hostName;
        int port;
    } cases[] = {
        {"inprocess", true, ControllerChoice::InProcess, "", 0},
        {"none", true, ControllerChoice::None, "", 0},
        {"127.0.0.1:7313", true, ControllerChoice::Tcp, "127.0.0.1", 7313},
        {"::1:80", true, ControllerChoice::Tcp, "::1", 80},
        {"", false, {}, "", 0},
        {"localhost:", false, {}, "", 0},
        {"localhost:70000", false, {}, "", 0},
        {"localhost:http", false, {}, "", 0},
    };
    for (const auto &c : cases) {
        ControllerChoice choice;
        EXPECT_EQ(c.isGood, ControllerChoice::parse(QLatin1String(c.text), &choice)) << c.text;
        EXPECT_EQ(c.kind, choice.kind) << c.text;
        EXPECT_EQ(QLatin1String(c.hostName), choice.hostName) << c.text;
        EXPECT_EQ(c.port, choice.port) << c.text;
        const panel::PanelOptions options = panel::parseOptions(
            {"palx_panel", "--controller", QLatin1String(c.text)}, QStringLiteral("/none"));
        EXPECT_EQ(c.isGood, options.refusal.isEmpty()) << options.refusal;
        EXPECT_EQ(c.isGood && c.kind != ControllerChoice::None, bool(options.session.carrier)) << c.text;
    }
}

TEST(PanelOptions, AreHandedToTheSessionOrRefused)
{
    const auto parse = [](const char *arguments) {
        const QString line = QStringLiteral("palx_panel ") + QLatin1String(arguments);
        return panel::parseOptions(line.split(QLatin1Char(' ')), QStringLiteral("/none"));
    };
    const host::SessionOptions session =
        parse("--data /d --workspace /w --language ru --plugin a.so").session;
    EXPECT_EQ(session.dataFolder + session.workspaceFolder + session.language, QStringLiteral("/d/wru"));
    EXPECT_EQ(session.pluginFiles, QStringList(QStringLiteral("a.so")));
    for (const char *wrong : {"--language xx", "--speed 3", "file.xml", "--data"})
        EXPECT_NE(parse(wrong).refusal, QString()) << wrong;
}

TEST(PanelOptions, TheDataFolderIsTheGivenOneElseThatOfTheEnvironmentElseThatOfTheUser)
{
    const auto dataFolder = [](const QStringList &arguments) {
        return panel::parseOptions(QStringList("palx_panel") + arguments, QStringLiteral("/none"))
            .session.dataFolder;
    };
    EXPECT_EQ(dataFolder({}), QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    qputenv("PALX_SETTING_DATA", "/named");
    EXPECT_EQ(dataFolder({}), QStringLiteral("/named"));
    EXPECT_EQ(dataFolder({"--data", "/given"}), QStringLiteral("/given"));
    qunsetenv("PALX_SETTING_DATA");
}

TEST(ControllerChoice, AProcessThatDiesIsStartedAgain)
{
    const QTemporaryDir folder;
    host::SessionOptions options;
    options.dataFolder = folder.path();
    options.pages = false;
    ControllerChoice choice;
    choice.kind = ControllerChoice::Spawn;
    options.carrier = panel::carrierFactory(choice, options.dataFolder, QStringLiteral(PALX_BIN_DIR));
    host::HostSession session(options);
    session.start();
    const host::ControllerLink *link = host::ControllerLink::current();
    ASSERT_TRUE(waitUntil([link] { return link->isConnected(); }, 20000));
    QFile lock(
        folder.filePath(QStringLiteral("controller/controller.lock"))); // its first line is the process
    ASSERT_TRUE(lock.open(QIODevice::ReadOnly));
    ASSERT_EQ(0, ::kill(lock.readLine().trimmed().toInt(), SIGKILL));
    EXPECT_TRUE(waitUntil([link] { return !link->isConnected(); }, 20000));
    EXPECT_TRUE(waitUntil([link] { return link->isConnected(); }, 20000)) << link->stateText();
    EXPECT_EQ(m("nexo.r.id")->getString(), QStringLiteral("SIM-0001"));
    session.stop();
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("controller/controller.state"))));
}

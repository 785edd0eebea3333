#include "support/test_support.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int kBoundMs = 60000; // a sanitized start on a busy machine

} // namespace

/// The program itself: the signal comes while it starts, before the delay after which changes are saved.
TEST(QuitSignals, ThePanelSavesAndEndsWithoutFault)
{
    const QTemporaryDir folder;
    QProcess panel;
    panel.setProcessChannelMode(QProcess::MergedChannels);
    panel.start(QStringLiteral(PALX_BIN_DIR "/palx_panel"),
                {QStringLiteral("--data"), folder.path(), QStringLiteral("--examples"),
                 QStringLiteral(PALX_SOURCE_DIR "/examples/line-left.xml")});
    const QFileInfo log(folder.filePath(QStringLiteral("log/palx_workstation.log")));
    ASSERT_TRUE(waitUntil(
        [&] {
            QFileInfo now(log.filePath());
            return now.size() > 0 || panel.state() == QProcess::NotRunning;
        },
        kBoundMs));
    ASSERT_EQ(panel.state(), QProcess::Running) << panel.readAll().constData();
    ::kill(static_cast<pid_t>(panel.processId()), SIGTERM);
    ASSERT_TRUE(panel.waitForFinished(kBoundMs));
    EXPECT_EQ(panel.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(panel.exitCode(), 0) << panel.readAll().constData();
    QFile store(folder.filePath(QStringLiteral("store.sqlite")));
    ASSERT_TRUE(store.open(QIODevice::ReadOnly));
    EXPECT_TRUE(store.readAll().contains("Line left"));
    EXPECT_FALSE(QFile::exists(store.fileName() + QStringLiteral("-wal")));       // closed, not abandoned
    EXPECT_TRUE(QFileInfo(folder.filePath(QStringLiteral("removable"))).isDir()); // in place of a disk
}

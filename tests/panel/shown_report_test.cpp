#include "support/test_support.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int kBoundMs = 60000; // a sanitized start on a busy machine

/// Runs the panel until it says that it is shown, or, when it is not to say so, until its log stands; then ends it.
/// What it wrote to standard output.
QByteArray outputOfPanel(bool reports)
{
    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("PALX_REPORT_SHOWN"));
    if (reports)
        environment.insert(QStringLiteral("PALX_REPORT_SHOWN"), QStringLiteral("1"));
    QProcess panel;
    panel.setProcessEnvironment(environment);
    panel.start(
        QStringLiteral(PALX_BIN_DIR "/palx_panel"),
        {QStringLiteral("--data"), folder.path(), QStringLiteral("--controller"), QStringLiteral("none")});
    QByteArray output;
    QByteArray errors;
    const auto isThere = [&] {
        output += panel.readAllStandardOutput();
        errors += panel.readAllStandardError();
        return panel.state() == QProcess::NotRunning ||
               (reports ? output.contains('\n') : errors.contains("palx_workstation v "));
    };
    EXPECT_TRUE(waitUntil(isThere, kBoundMs)) << errors.constData();
    EXPECT_EQ(panel.state(), QProcess::Running) << errors.constData();
    ::kill(static_cast<pid_t>(panel.processId()), SIGTERM);
    EXPECT_TRUE(panel.waitForFinished(kBoundMs));
    EXPECT_EQ(panel.exitCode(), 0);
    return output + panel.readAllStandardOutput();
}

} // namespace

TEST(ShownReport, ThePanelSaysOnceThatItIsShownWhenItIsAskedTo)
{
    EXPECT_EQ(outputOfPanel(true), "shown\n");
    EXPECT_EQ(outputOfPanel(false), "");
}

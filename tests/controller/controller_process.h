#pragma once

#include "support/test_support.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cstring>

#include <gtest/gtest.h>

/// The program palx_controller with a data folder of its own. A start that fails, fails the test.
class ControllerProcess
{
public:
    ControllerProcess()
    {
        process_.setProgram(QStringLiteral(PALX_BIN_DIR "/palx_controller"));
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start();
    }
    ~ControllerProcess()
    {
        if (process_.state() != QProcess::NotRunning)
            stop();
    }

    /// On the port of the first start.
    void start()
    {
        constexpr const char *kListening = "listening on 127.0.0.1:";
        process_.setArguments({"--port", QString::number(port_), "--data", folder_.path()});
        process_.start();
        QByteArray line;
        while (!line.endsWith('\n') && process_.waitForReadyRead(kBoundMs))
            line += process_.readLine();
        ASSERT_TRUE(line.startsWith(kListening)) << line.constData();
        port_ = line.trimmed().mid(static_cast<int>(std::strlen(kListening))).toUShort();
        ASSERT_NE(0, port_);
    }
    /// Asks it to end, and expects that it does so cleanly.
    void stop()
    {
        process_.terminate();
        ASSERT_TRUE(process_.waitForFinished(kBoundMs));
        EXPECT_EQ(QProcess::NormalExit, process_.exitStatus());
        EXPECT_EQ(0, process_.exitCode());
    }
    /// As when the power fails.
    void kill()
    {
        process_.kill();
        ASSERT_TRUE(process_.waitForFinished(kBoundMs));
    }
    quint16 port() const { return port_; }
    QString dataFolder() const { return folder_.path(); }

private:
    static constexpr int kBoundMs = 20000;
    QTemporaryDir folder_;
    QProcess process_;
    quint16 port_ = 0;
};

#include "controller_process.h"

#include "support/test_support.h"

#include <QFile>

#include <cstring>

#include <gtest/gtest.h>

namespace {

constexpr int kBoundMs = 20000;
constexpr const char *kListening = "listening on 127.0.0.1:";

} // namespace

ControllerProcess::ControllerProcess(const QStringList &moreArguments) : moreArguments_(moreArguments)
{
    process_.setProgram(QStringLiteral(PALX_BIN_DIR "/palx_controller"));
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // Freed memory that the address sanitizer holds back would look like a leak.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("quarantine_size_mb=1"));
    process_.setProcessEnvironment(environment);
    start();
}

ControllerProcess::~ControllerProcess()
{
    if (process_.state() != QProcess::NotRunning)
        stop();
}

void ControllerProcess::start()
{
    process_.setArguments(QStringList{"--port", QString::number(port_), "--data", folder_.path()} +
                          moreArguments_);
    process_.start();
    QByteArray line;
    while (!line.endsWith('\n') && process_.waitForReadyRead(kBoundMs))
        line += process_.readLine();
    ASSERT_TRUE(line.startsWith(kListening)) << line.constData();
    port_ = line.trimmed().mid(static_cast<int>(std::strlen(kListening))).toUShort();
    ASSERT_NE(0, port_);
}

void ControllerProcess::stop()
{
    process_.terminate();
    ASSERT_TRUE(process_.waitForFinished(kBoundMs));
    EXPECT_EQ(QProcess::NormalExit, process_.exitStatus());
    EXPECT_EQ(0, process_.exitCode());
}

void ControllerProcess::kill()
{
    process_.kill();
    ASSERT_TRUE(process_.waitForFinished(kBoundMs));
}

int ControllerProcess::residentKb() const
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process_.processId()));
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toInt();
    ADD_FAILURE() << "no resident size";
    return 0;
}

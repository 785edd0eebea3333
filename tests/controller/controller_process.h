#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// The program palx_controller with a data folder of its own. A start that fails, fails the test.
class ControllerProcess
{
public:
    explicit ControllerProcess(const QStringList &moreArguments = {});
    ~ControllerProcess();

    /// On the port of the first start.
    void start();
    /// Asks it to end, and expects that it does so cleanly.
    void stop();
    /// As when the power fails.
    void kill();

    quint16 port() const { return port_; }
    QString dataFolder() const { return folder_.path(); }
    /// What stays in memory, in KB.
    int residentKb() const;
    QProcess &process() { return process_; }

private:
    QTemporaryDir folder_;
    QStringList moreArguments_;
    QProcess process_;
    quint16 port_ = 0;
};

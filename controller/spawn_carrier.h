#pragma once

#include "controller/tcp_carrier.h"

#include <QProcess>
#include <QTimer>

#include <atomic>
#include <memory>

namespace controller {

/// A way to a controller in a process that this one starts, on a port that is free, and ends with the way. When the process
/// dies it is started again on the same port. Owned by a thread with an event loop.
class SpawnCarrier : public host::Carrier
{
public:
    /// `arguments` without "--port".
    SpawnCarrier(const QString &program, QStringList arguments);
    ~SpawnCarrier() override;

    /// Waits a moment for the process, so that the controller is there at once as a rule.
    void open(host::CarrierSink *sink) override;
    void close() override;
    bool send(const std::string &frame) override;

private:
    void startProcess();
    void readLine();
    void tellEnd(const QString &why);

    QProcess process_;
    QTimer restart_;
    QStringList arguments_;
    quint16 port_ = 0; ///< 0 until the process named the one that it picked
    host::CarrierSink *sink_ = nullptr;
    std::unique_ptr<TcpCarrier> tcp_;
    std::atomic<TcpCarrier *> way_{nullptr}; ///< `tcp_`, for senders on other threads
};

} // namespace controller

#pragma once

#include "link/carrier.h"

#include <QString>
#include <QThread>

#include <deque>
#include <mutex>

namespace controller {

class TcpClient;

/// A way to a controller in another process, over TCP. Looks for it again and again, after 0.1 s at first and 2 s at most.
/// The socket lives on a thread of its own, so that frames arrive while the owner's thread waits for one.
class TcpCarrier : public host::Carrier
{
public:
    TcpCarrier(QString hostName, quint16 port);
    ~TcpCarrier() override;

    void open(host::CarrierSink *sink) override;
    void close() override;
    bool send(const std::string &frame) override;

private:
    friend class TcpClient;
    /// Bytes that wait for the controller to take them; more are refused.
    static constexpr std::size_t kMaxWaiting = 512ull * 1024 * 1024;

    // For the client, on its thread.
    /// What waited for a way that broke is not sent on the next one.
    void setOpen(bool open);
    bool takeNext(std::string *frame);

    QString hostName_;
    quint16 port_;
    QThread thread_;
    host::CarrierSink *sink_ = nullptr;
    TcpClient *client_ = nullptr; ///< lives on thread_, while open

    std::mutex mutex_; // for what follows
    std::deque<std::string> out_;
    std::size_t waiting_ = 0; ///< bytes in `out_`
    bool isOpen_ = false;
};

} // namespace controller

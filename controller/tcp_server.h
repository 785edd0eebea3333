#pragma once

#include "controller/controller.h"

#include <QObject>
#include <QTcpServer>

namespace controller {

/// Lets panels of this machine reach a controller over TCP: listens on the loopback address only. Peers that send what is
/// no frame, or do not take what they are sent, are dropped. Lives on a thread with an event loop.
class TcpServer : public QObject
{
    Q_OBJECT

public:
    /// More connections at once are closed; there is one panel, and some that wait for it to go.
    static constexpr int kMaxPeers = 8;
    /// Bytes that wait for a peer to take them, or for the controller to work them off.
    static constexpr std::size_t kMaxWaiting = 16ull * 1024 * 1024;

    explicit TcpServer(Controller *controller, QObject *parent = nullptr);
    ~TcpServer() override;
    /// Port 0 picks a free one. False with a reason.
    bool listen(quint16 port, QString *why);
    quint16 port() const { return server_.serverPort(); }
    int peerCount() const { return peers_; }

private:
    void takeConnection();

    Controller *controller_;
    QTcpServer server_;
    int peers_ = 0;
};

} // namespace controller

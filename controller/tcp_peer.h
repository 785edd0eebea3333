#pragma once

#include "controller/controller.h"
#include "link/frame.h"
#include "link/mailbox.h"

#include <QObject>

#include <atomic>

class QTcpSocket;

namespace controller {

/// One connection to the server: cuts the stream into frames for the controller and writes what the controller sends.
/// Deletes itself when the connection ends. Lives on the server's thread; only the PeerSink part is called on the
/// controller's.
class TcpPeer : public QObject, private PeerSink
{
    Q_OBJECT

public:
    /// Takes the socket.
    TcpPeer(Controller *controller, QTcpSocket *socket);
    ~TcpPeer() override;

private:
    void opened() override {}
    void frameOut(std::string frame) override;
    bool closed() override;
    void frameTaken(std::size_t bytes) override;

    void read();
    void write();
    void hangUp();
    void refuse(const QString &why);
    void leave();
    void wakeLater(void (TcpPeer::*slot)());

    Controller *controller_;
    QTcpSocket *socket_;
    host::FrameReader reader_;
    host::Mailbox<std::string> out_;
    std::atomic<std::size_t> waitingOut_{0}; ///< bytes from the controller that the socket has not got yet
    std::atomic<std::size_t> waitingIn_{0};  ///< bytes that the controller has not worked off yet
    Peer peer_ = -1;
    bool isRefused_ = false;
};

} // namespace controller

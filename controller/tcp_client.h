#pragma once

#include "controller/tcp_carrier.h"
#include "link/frame.h"

#include <QObject>
#include <QTcpSocket>
#include <QTimer>

namespace controller {

/// The part of a TcpCarrier that lives on its thread: the socket, and the patience to try again.
class TcpClient : public QObject
{
    Q_OBJECT

public:
    explicit TcpClient(TcpCarrier *carrier);
    void start();
    /// Writes what waits to be sent.
    void write();
    /// Ends the connection behind what waits to be sent, and tells nobody any more.
    void finish();

private:
    void connected();
    void read();
    /// Tells that the way broke and tries again in a moment.
    void leave(const QString &reason);

    TcpCarrier *carrier_;
    QTcpSocket socket_{this};
    QTimer retry_{this};
    QTimer patience_{this}; ///< with a host that does not answer at all
    host::FrameReader reader_;
    bool wasTold_ = false; ///< that there is no way
};

} // namespace controller

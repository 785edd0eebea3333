#include "controller/tcp_server.h"

#include "controller/tcp_peer.h"
#include "controller/texts.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace controller {

TcpServer::TcpServer(Controller *controller, QObject *parent) : QObject(parent), controller_(controller)
{
    connect(&server_, &QTcpServer::newConnection, this, &TcpServer::takeConnection);
}

TcpServer::~TcpServer()
{
    qDeleteAll(findChildren<TcpPeer *>(QString(), Qt::FindDirectChildrenOnly));
}

bool TcpServer::listen(quint16 port, QString *why)
{
    if (server_.listen(QHostAddress::LocalHost, port))
        return true;
    *why = Texts::tr("cannot listen on port %1: %2").arg(port).arg(server_.errorString());
    return false;
}

void TcpServer::takeConnection()
{
    while (QTcpSocket *socket = server_.nextPendingConnection()) {
        if (peers_ >= kMaxPeers) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        auto *peer = new TcpPeer(controller_, socket);
        peer->setParent(this);
        ++peers_;
        connect(peer, &QObject::destroyed, this, [this] { --peers_; });
    }
}

} // namespace controller

#include "controller/tcp_peer.h"

#include "controller/tcp_server.h"

#include <QTcpSocket>
#include <QTimer>

namespace controller {

namespace {

constexpr qint64 kReadBuffer = 1024LL * 1024;
/// Closing while bytes wait unread would reset the connection, and the peer might never read why. So long they are read
/// and thrown away.
constexpr int kRefusedMs = 200;

} // namespace

TcpPeer::TcpPeer(Controller *controller, QTcpSocket *socket) : controller_(controller), socket_(socket)
{
    socket_->setParent(this);
    socket_->setReadBufferSize(kReadBuffer); // what is not read stays with the sender
    socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    out_.setWaker([this] { wakeLater(&TcpPeer::write); });
    connect(socket_, &QTcpSocket::readyRead, this, &TcpPeer::read);
    connect(socket_, &QTcpSocket::bytesWritten, this, &TcpPeer::write);
    connect(socket_, &QTcpSocket::disconnected, this, &TcpPeer::leave);
    peer_ = controller_->connect(this);
}

TcpPeer::~TcpPeer()
{
    controller_->disconnect(peer_);
}

/// From the controller's thread to the server's.
void TcpPeer::wakeLater(void (TcpPeer::*slot)())
{
    QMetaObject::invokeMethod(
        this, [this, slot] { (this->*slot)(); }, Qt::QueuedConnection);
}

// ---------------------------------------------------------------- from the peer

void TcpPeer::read()
{
    std::string frame;
    while (waitingIn_ < TcpServer::kMaxWaiting && socket_->bytesAvailable() > 0) {
        const QByteArray bytes = socket_->read(kReadBuffer);
        reader_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        while (reader_.next(&frame)) {
            waitingIn_ += frame.size();
            controller_->send(peer_, std::move(frame));
        }
        if (!reader_.error().isEmpty() && !isRefused_)
            return refuse(reader_.error());
    }
}

void TcpPeer::frameTaken(std::size_t bytes)
{
    const std::size_t before = waitingIn_.fetch_sub(bytes);
    if (before >= TcpServer::kMaxWaiting && before - bytes < TcpServer::kMaxWaiting)
        wakeLater(&TcpPeer::read);
}

/// Nobody knows where the next frame begins: says so and hangs up.
void TcpPeer::refuse(const QString &why)
{
    host::LinkMessage error;
    error.kind = host::LinkMessage::Kind::Error;
    error.name = QString::fromLatin1(host::fault::kFrame);
    error.text = why;
    const std::string frame = host::encodeFrame(error);
    disconnect(socket_, &QTcpSocket::readyRead, this, nullptr);
    connect(socket_, &QTcpSocket::readyRead, socket_, [this] { socket_->readAll(); });
    socket_->readAll();
    socket_->write(frame.data(), static_cast<qint64>(frame.size()));
    isRefused_ = true;
    QTimer::singleShot(kRefusedMs, socket_, [this] { socket_->disconnectFromHost(); });
}

void TcpPeer::leave()
{
    if (!isRefused_)
        read(); // what came before the end
    controller_->disconnect(peer_);
    deleteLater();
}

// ---------------------------------------------------------------- to the peer

void TcpPeer::frameOut(std::string frame)
{
    const std::size_t before = waitingOut_.fetch_add(frame.size());
    if (before + frame.size() <= TcpServer::kMaxWaiting)
        out_.push(std::move(frame));
    else if (before <= TcpServer::kMaxWaiting) // it does not take what it is sent
        wakeLater(&TcpPeer::hangUp);
}

void TcpPeer::hangUp()
{
    socket_->abort();
}

bool TcpPeer::closed()
{
    QMetaObject::invokeMethod(
        socket_, [this] { socket_->disconnectFromHost(); }, Qt::QueuedConnection);
    return false;
}

void TcpPeer::write()
{
    std::string frame;
    while (socket_->bytesToWrite() < kReadBuffer && out_.tryPop(&frame)) {
        waitingOut_ -= frame.size();
        socket_->write(frame.data(), static_cast<qint64>(frame.size()));
    }
}

} // namespace controller

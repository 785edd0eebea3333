#include "controller/tcp_client.h"

#include "controller/texts.h"

#include <algorithm>

namespace controller {

namespace {

constexpr int kFirstRetryMs = 100;
constexpr int kLastRetryMs = 2000;
constexpr int kPatienceMs = 3000;
constexpr int kFinishMs = 300;           // a controller that takes nothing any more
constexpr qint64 kBlock = 1024LL * 1024; // bytes at a time, both ways

} // namespace

TcpClient::TcpClient(TcpCarrier *carrier) : carrier_(carrier)
{
    retry_.setSingleShot(true);
    retry_.setInterval(kFirstRetryMs);
    patience_.setSingleShot(true);
    patience_.setInterval(kPatienceMs);
    connect(&retry_, &QTimer::timeout, this, &TcpClient::start);
    connect(&patience_, &QTimer::timeout, this,
            [this] { leave(Texts::tr("the controller does not answer")); });
    connect(&socket_, &QTcpSocket::connected, this, &TcpClient::connected);
    connect(&socket_, &QTcpSocket::readyRead, this, &TcpClient::read);
    connect(&socket_, &QTcpSocket::bytesWritten, this, &TcpClient::write);
    connect(&socket_, &QTcpSocket::errorOccurred, this, [this] { leave(socket_.errorString()); });
}

void TcpClient::start()
{
    reader_ = host::FrameReader();
    patience_.start();
    socket_.connectToHost(carrier_->hostName_, carrier_->port_);
}

void TcpClient::connected()
{
    patience_.stop();
    socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    wasTold_ = false;
    carrier_->setOpen(true);
    carrier_->sink_->wayChanged(true, std::string());
}

void TcpClient::leave(const QString &reason)
{
    if (retry_.isActive())
        return; // ending the socket tells about its end once more
    retry_.start();
    retry_.setInterval(std::min(2 * retry_.interval(), kLastRetryMs));
    patience_.stop();
    carrier_->setOpen(false);
    socket_.abort();
    if (!wasTold_)
        carrier_->sink_->wayChanged(false, reason.toStdString());
    wasTold_ = true;
}

void TcpClient::read()
{
    const QByteArray bytes = socket_.readAll();
    reader_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    std::string frame;
    while (reader_.next(&frame)) {
        retry_.setInterval(kFirstRetryMs); // somebody is there who speaks our language
        carrier_->sink_->frameArrived(std::move(frame));
    }
    if (!reader_.error().isEmpty())
        leave(reader_.error());
}

void TcpClient::write()
{
    std::string frame;
    while (socket_.state() == QAbstractSocket::ConnectedState && socket_.bytesToWrite() < kBlock &&
           carrier_->takeNext(&frame))
        socket_.write(frame.data(), static_cast<qint64>(frame.size()));
}

void TcpClient::finish()
{
    socket_.disconnect(this);
    retry_.stop();
    patience_.stop();
    std::string frame;
    const bool isConnected = socket_.state() == QAbstractSocket::ConnectedState;
    while (isConnected && carrier_->takeNext(&frame))
        socket_.write(frame.data(), static_cast<qint64>(frame.size()));
    if (!isConnected)
        return socket_.abort();
    socket_.disconnectFromHost();
    if (socket_.state() != QAbstractSocket::UnconnectedState)
        socket_.waitForDisconnected(kFinishMs);
}

} // namespace controller

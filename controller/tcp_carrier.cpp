#include "controller/tcp_carrier.h"

#include "controller/tcp_client.h"

namespace controller {

TcpCarrier::TcpCarrier(QString hostName, quint16 port) : hostName_(std::move(hostName)), port_(port)
{
    thread_.setObjectName(QStringLiteral("controller link"));
}

TcpCarrier::~TcpCarrier()
{
    close();
}

void TcpCarrier::open(host::CarrierSink *sink)
{
    close();
    sink_ = sink;
    client_ = new TcpClient(this);
    client_->moveToThread(&thread_);
    QObject::connect(&thread_, &QThread::started, client_, &TcpClient::start);
    QObject::connect(&thread_, &QThread::finished, client_, &QObject::deleteLater);
    thread_.start();
}

void TcpCarrier::close()
{
    if (!sink_)
        return;
    QMetaObject::invokeMethod(client_, &TcpClient::finish, Qt::BlockingQueuedConnection);
    thread_.quit();
    thread_.wait();
    setOpen(false);
    client_ = nullptr;
    sink_ = nullptr;
}

bool TcpCarrier::send(const std::string &frame)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!isOpen_ || waiting_ + frame.size() > kMaxWaiting)
        return false;
    waiting_ += frame.size();
    out_.push_back(frame);
    if (out_.size() == 1)
        QMetaObject::invokeMethod(client_, &TcpClient::write, Qt::QueuedConnection);
    return true;
}

void TcpCarrier::setOpen(bool open)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    isOpen_ = open;
    out_.clear();
    waiting_ = 0;
}

bool TcpCarrier::takeNext(std::string *frame)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (out_.empty())
        return false;
    *frame = std::move(out_.front());
    out_.pop_front();
    waiting_ -= frame->size();
    return true;
}

} // namespace controller

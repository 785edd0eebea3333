#include "controller/spawn_carrier.h"

#include "controller/texts.h"

namespace controller {

namespace {

constexpr int kStartMs = 1500; // more than reading some hundred recipes takes; later is not lost either
constexpr int kEndMs = 3000;
constexpr int kRestartMs = 1000;
constexpr char kListening[] = "listening on 127.0.0.1:";

} // namespace

SpawnCarrier::SpawnCarrier(const QString &program, QStringList arguments) : arguments_(std::move(arguments))
{
    process_.setProgram(program);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    restart_.setSingleShot(true);
    restart_.setInterval(kRestartMs);
    QObject::connect(&restart_, &QTimer::timeout, &restart_, [this] { startProcess(); });
    QObject::connect(&process_, &QProcess::readyReadStandardOutput, &restart_, [this] { readLine(); });
    QObject::connect(&process_, &QProcess::errorOccurred, &restart_, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            tellEnd(Texts::tr("%1 cannot be started: %2").arg(process_.program(), process_.errorString()));
    });
    QObject::connect(&process_, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &restart_,
                     [this] { tellEnd(Texts::tr("%1 ended").arg(process_.program())); });
}

SpawnCarrier::~SpawnCarrier()
{
    close();
}

void SpawnCarrier::open(host::CarrierSink *sink)
{
    close();
    sink_ = sink;
    startProcess();
    process_.waitForReadyRead(kStartMs);
}

void SpawnCarrier::startProcess()
{
    process_.setArguments(
        QStringList{QStringLiteral("--stop-with-input"), QStringLiteral("--port"), QString::number(port_)} +
        arguments_);
    process_.start();
}

void SpawnCarrier::readLine()
{
    while (process_.canReadLine()) {
        const QByteArray line = process_.readLine().trimmed();
        if (tcp_ || !line.startsWith(kListening))
            continue; // started again: the way finds the port by itself
        port_ = line.mid(static_cast<int>(sizeof kListening) - 1).toUShort();
        tcp_ = std::make_unique<TcpCarrier>(QStringLiteral("127.0.0.1"), port_);
        tcp_->open(sink_);
        way_ = tcp_.get();
    }
}

/// Once there was a way, that tells when it breaks.
void SpawnCarrier::tellEnd(const QString &why)
{
    if (!sink_)
        return;
    if (!tcp_)
        sink_->wayChanged(false, why.toStdString());
    restart_.start();
}

void SpawnCarrier::close()
{
    if (!sink_)
        return;
    sink_ = nullptr;
    way_ = nullptr;
    tcp_.reset();
    port_ = 0;
    restart_.stop();
    process_.closeWriteChannel();
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(kEndMs)) {
        process_.kill();
        process_.waitForFinished(kEndMs);
    }
}

bool SpawnCarrier::send(const std::string &frame)
{
    TcpCarrier *way = way_;
    return way && way->send(frame);
}

} // namespace controller

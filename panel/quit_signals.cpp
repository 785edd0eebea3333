#include "panel/quit_signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace panel {

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT};
int ends[2] = {-1, -1}; // a signal may do nothing but write a byte
struct sigaction former[2];

void onSignal(int)
{
    const int error = errno;
    const ssize_t written = ::write(ends[1], "", 1);
    static_cast<void>(written); // a full pipe means that the end was asked for already
    errno = error;
}

} // namespace

QuitSignals::QuitSignals(QObject *parent) : QObject(parent)
{
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        came_ = ::read(ends[0], bytes, sizeof bytes) > 0 || came_;
        if (came_)
            QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    for (int i = 0; i < 2; ++i)
        ::sigaction(kSignals[i], &action, &former[i]);
}

QuitSignals::~QuitSignals()
{
    if (!notifier_)
        return;
    for (int i = 0; i < 2; ++i)
        ::sigaction(kSignals[i], &former[i], nullptr);
    delete notifier_; // before the pipe that it watches
    for (int &end : ends)
        ::close(end);
}

} // namespace panel

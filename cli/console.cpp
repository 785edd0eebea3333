#include "console.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace cli {
namespace {

constexpr int kProgressMs = 100; // often enough to be seen moving

void putError(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

void say(const QString &text)
{
    putError(QStringLiteral("palx: ") + text + QLatin1Char('\n'));
}

bool putResult(const QByteArray &text)
{
    const std::size_t size = std::size_t(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return true;
    say(QStringLiteral("cannot write to standard output: ") + QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

int refuse(const QString &reason)
{
    say(reason);
    return kRefused;
}

bool resultGoesToTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

Progress::Progress() : terminal_(isatty(STDERR_FILENO) != 0) {}

Progress::~Progress()
{
    clear();
}

void Progress::show(const QString &what, int done, int total)
{
    if (!terminal_ || (shown_ && done < total && sinceShown_.elapsed() < kProgressMs))
        return;
    putError(QStringLiteral("\r\033[K%1: %2 of %3").arg(what).arg(done).arg(total));
    shown_ = true;
    sinceShown_.start();
}

void Progress::clear()
{
    if (shown_)
        putError(QStringLiteral("\r\033[K"));
    shown_ = false;
}

ConsolePresenter::ConsolePresenter()
{
    nexo::ManagerHelper::instance()->setPresenter(this);
}

ConsolePresenter::~ConsolePresenter()
{
    nexo::ManagerHelper::instance()->setPresenter(nullptr);
}

bool ConsolePresenter::ask(const nexo::Message &message)
{
    if (accepting_)
        return true;
    const bool canRefuse = !message.rejectText.isEmpty();
    say(QStringLiteral("%1: %2%3")
            .arg(message.title, message.text, canRefuse ? QStringLiteral(" (answered: no)") : QString()));
    return !canRefuse;
}

void ConsolePresenter::notify(const QString &level, const QString &text)
{
    if (!quiet_)
        say(level + QStringLiteral(": ") + text);
}

} // namespace cli

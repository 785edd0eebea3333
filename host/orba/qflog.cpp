#include "orba/qflog.h"

#include "nexo/setting_manager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orba {

namespace {

constexpr char kColourReset[] = "\033[0m";

// One lock for all files: rotating and appending must not cross, and log lines are rare.
QMutex &logMutex()
{
    static auto *mutex = new QMutex;
    return *mutex;
}

/// One write call per line; a console that has gone away is no reason to stop.
void writeConsole(const QByteArray &line)
{
    const ssize_t written = ::write(STDERR_FILENO, line.constData(), static_cast<size_t>(line.size()));
    Q_UNUSED(written)
}

void reportOnce(const QString &file, const QString &reason)
{
    static auto *reported = new QSet<QString>;
    if (reported->contains(file))
        return;
    reported->insert(file);
    writeConsole(QStringLiteral("Cannot write the log file %1: %2\n").arg(file, reason).toLocal8Bit());
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString oneLine(QString text)
{
    text.replace(QLatin1Char('\r'), QLatin1String("\\r")).replace(QLatin1Char('\n'), QLatin1String("\\n"));
    for (QChar &letter : text) // a recipe's name must not steer the terminal that shows the log
        if (letter.unicode() < 0x20 || letter.unicode() == 0x7f)
            letter = QLatin1Char('?');
    return text;
}

QString keptName(const QString &file, int age)
{
    return age == 0 ? file : file + QLatin1Char('.') + QString::number(age);
}

void rotate(const QString &file)
{
    QFile::remove(keptName(file, QFLog::kKeptFiles));
    for (int age = QFLog::kKeptFiles - 1; age >= 0; --age)
        QFile::rename(keptName(file, age), keptName(file, age + 1));
}

void appendToFile(const QString &file, const QByteArray &line)
{
    const QFileInfo info(file);
    if (!info.dir().exists() && !QDir().mkpath(info.path()))
        return reportOnce(file, QStringLiteral("its folder cannot be made"));
    if (info.exists() && info.size() + line.size() > QFLog::kRotateBytes)
        rotate(file);
    const int descriptor =
        ::open(QFile::encodeName(file).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC,
               S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
    if (descriptor < 0)
        return reportOnce(file, systemError());
    const ssize_t written = ::write(descriptor, line.constData(), static_cast<size_t>(line.size()));
    if (written < 0)
        reportOnce(file, systemError());
    else if (written < line.size())
        reportOnce(file, QStringLiteral("no room for the whole line"));
    ::close(descriptor);
}

QString resolved(const QString &file, const QString &kind)
{
    if (file.isEmpty())
        return {};
    const QString name = kind.isEmpty() ? file : file + QLatin1Char('.') + kind;
    if (QDir::isAbsolutePath(name))
        return QDir::cleanPath(name);
    const QString data = nexo::SettingManager::instance()->getStr(QStringLiteral("data"));
    return data.isEmpty() ? QString() : QDir::cleanPath(QDir(data).absoluteFilePath(name));
}

} // namespace

QFLog::QFLog(const QString &prefix, const QString &header, const QString &footer, const QString &file,
             const QString &kind)
    : prefix_(prefix), header_(header), footer_(footer), filePath_(resolved(file, kind))
{
}

void QFLog::write(const QString &text) const
{
    const QByteArray line = (header_ + QLatin1Char(' ') + oneLine(text) + footer_).toUtf8();
    const QMutexLocker lock(&logMutex());
    if (!prefix_.isEmpty() && ::isatty(STDERR_FILENO) == 1)
        writeConsole(prefix_.toUtf8() + line + kColourReset + '\n');
    else
        writeConsole(line + '\n');
    if (!filePath_.isEmpty())
        appendToFile(filePath_, line + '\n');
}

} // namespace orba

#include "project/rules/work_folder.h"

#include "project/rules/staged_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <csignal>

namespace palx {

namespace {

const QString kPrefix =
    QStringLiteral(".work-"); // followed by the process and a name; no robot's id begins with a dot

} // namespace

QString ofThisProcess(const QString &prefix, const QString &name)
{
    return QStringLiteral("%1%2-%3").arg(prefix).arg(QCoreApplication::applicationPid()).arg(name);
}

bool isOfRunningProcess(const QString &prefix, const QString &folder)
{
    const qint64 process = folder.mid(prefix.size()).section(QLatin1Char('-'), 0, 0).toLongLong();
    return process > 0 && (::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

WorkFolder::WorkFolder(const QString &robotFolder, const QString &name)
{
    const QString path = stagingFolder(robotFolder) + QLatin1Char('/') + ofThisProcess(kPrefix, name);
    if (!robotFolder.isEmpty() && (!isTaken(path) || removeFolder(path)) && QDir().mkpath(path))
        path_ = path;
}

WorkFolder::~WorkFolder()
{
    if (path_.isEmpty())
        return;
    removeFolder(path_);
    QDir().rmdir(QFileInfo(path_).path()); // unless there are others
}

void removeAbandonedWork(const QString &robotFolder)
{
    const QDir staging(stagingFolder(robotFolder));
    if (robotFolder.isEmpty() || !staging.exists())
        return;
    for (const QString &name : staging.entryList({kPrefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden))
        if (!isOfRunningProcess(kPrefix, name))
            removeFolder(staging.filePath(name));
    QDir().rmdir(staging.path());
}

} // namespace palx

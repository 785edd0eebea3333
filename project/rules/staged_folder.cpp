#include "project/rules/staged_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <unistd.h>

namespace palx {

namespace {

const QString kDiscarded = QStringLiteral(".discarded"); // no robot's id begins with a dot

QDir stagingOf(const QString &robotFolder)
{
    return QDir(stagingFolder(robotFolder));
}

/// A free name in the folder of discarded ones. The project's own name may be as long as names can be.
QString discardedName(const QDir &staging)
{
    int number = 0;
    while (isTaken(staging.filePath(QStringLiteral("%1/%2").arg(kDiscarded).arg(number))))
        ++number;
    return staging.filePath(QStringLiteral("%1/%2").arg(kDiscarded).arg(number));
}

/// Out of the way by one renaming first: a removal that is cut off must not leave half a folder in its place.
bool discardFolder(const QString &folder, const QDir &staging)
{
    const QString discarded = discardedName(staging);
    return staging.mkpath(kDiscarded) && QDir().rename(folder, discarded) && removeFolder(discarded);
}

/// Nothing is left of the staging folder when nothing is staged.
void tidy(const QDir &staging, const QString &robot)
{
    staging.rmdir(robot);
    staging.rmdir(kDiscarded);
    QDir().rmdir(staging.path());
}

} // namespace

QString stagingFolder(const QString &robotFolder)
{
    return QFileInfo(robotFolder).path() + QStringLiteral("/.palx-staging");
}

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool removeFolder(const QString &folder)
{
    const QByteArray name = QFile::encodeName(folder);
    std::error_code error;
    if (::rmdir(name.constData()) != 0) // an empty one is soon removed
        std::filesystem::remove_all(name.constData(), error);
    return !error;
}

StagedFolder::~StagedFolder()
{
    putBack();
}

bool StagedFolder::take(const QString &folder)
{
    if (!isTaken(folder))
        return true;
    const QFileInfo place(folder);
    const QDir staging = stagingOf(place.path());
    const QString robot = QFileInfo(place.path()).fileName();
    const QString staged = staging.filePath(robot + QLatin1Char('/') + place.fileName());
    if (!staging.mkpath(robot) || isTaken(staged) || !QDir().rename(folder, staged)) {
        tidy(staging, robot);
        return false;
    }
    folder_ = folder;
    staged_ = staged;
    return true;
}

bool StagedFolder::putBack()
{
    if (folder_.isEmpty())
        return true;
    const QString robotFolder = QFileInfo(folder_).path();
    const QDir staging = stagingOf(robotFolder);
    if (isTaken(folder_))
        discardFolder(folder_, staging);
    if (!QDir().rename(staged_, folder_))
        return false;
    folder_.clear();
    staged_.clear();
    tidy(staging, QFileInfo(robotFolder).fileName());
    return true;
}

bool StagedFolder::discard()
{
    if (folder_.isEmpty())
        return true;
    const QString robotFolder = QFileInfo(folder_).path();
    const QDir staging = stagingOf(robotFolder);
    const bool isGone = discardFolder(staged_, staging) || removeFolder(staged_);
    folder_.clear();
    staged_.clear();
    tidy(staging, QFileInfo(robotFolder).fileName());
    return isGone;
}

bool StagedFolder::moveTo(const QString &path)
{
    if (folder_.isEmpty())
        return true;
    const QString robotFolder = QFileInfo(folder_).path();
    if (!QDir().rename(staged_, path))
        return false;
    folder_.clear();
    staged_.clear();
    tidy(stagingOf(robotFolder), QFileInfo(robotFolder).fileName());
    return true;
}

QStringList recoverStagedFolders(const QString &robotFolder)
{
    QStringList recovered;
    const QDir staging = stagingOf(robotFolder);
    if (robotFolder.isEmpty() || !staging.exists())
        return recovered;
    const QString robot = QFileInfo(robotFolder).fileName();
    const QDir held(staging.filePath(robot));
    constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QString &name : held.entryList(kAll)) {
        const QString place = QDir(robotFolder).filePath(name);
        if (isTaken(place)) // begun, and not finished
            discardFolder(place, staging);
        if (QDir().rename(held.filePath(name), place))
            recovered.append(name);
    }
    removeFolder(staging.filePath(kDiscarded));
    tidy(staging, robot);
    return recovered;
}

} // namespace palx

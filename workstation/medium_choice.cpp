#include "workstation/medium_choice.h"

#include "workstation/medium_names.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace palx {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::MediumChoice)
};

} // namespace

QString folderRefusal(const Medium &medium, const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return Text::tr("The folder is not there any more.");
    if (medium.isReadOnly)
        return Text::tr("The disk is write-protected. Nothing can be saved on it.");
    if (!QFileInfo(folder).isWritable())
        return Text::tr("This folder is write-protected.");
    const MediumSpace space = spaceOf(medium);
    if (space.total > 0 && space.free == 0)
        return Text::tr("The disk is full.");
    return QString();
}

QString fileRefusal(const Medium &medium, const QString &folder, const QString &name)
{
    QString inFolder = folderRefusal(medium, folder);
    if (!inFolder.isEmpty())
        return inFolder;
    QString ofName = nameRefusal(name, medium.fileSystem);
    if (ofName.isEmpty() && QFileInfo(QDir(folder).filePath(name)).isDir())
        return Text::tr("There is a folder of that name.");
    return ofName;
}

QString newFolderRefusal(const Medium &medium, const QString &folder, const QString &name)
{
    QString refusal = fileRefusal(medium, folder, name);
    if (refusal.isEmpty() && QFileInfo::exists(QDir(folder).filePath(name)))
        return Text::tr("There is a file of that name.");
    return refusal;
}

QStringList targetProblems(const QString &folder, const QStringList &names)
{
    const PluggedMedia plugged = pluggedMedia(MediaPlaces::ofMachine());
    const Medium *medium = plugged.of(folder);
    QStringList problems;
    for (const QString &name : names) {
        if (!medium)
            problems.append(QCoreApplication::translate("xFileDialog", "%1 is on no disk that is plugged in")
                                .arg(folder));
        else
            problems.append(name.isEmpty() ? folderRefusal(*medium, folder)
                                           : fileRefusal(*medium, folder, name));
    }
    return problems;
}

QString targetProblem(const QString &folder, const QString &name)
{
    return targetProblems(folder, {name}).first();
}

MediumSpace spaceOf(const Medium &medium)
{
    const QStorageInfo volume(medium.root);
    if (!volume.isValid() || !volume.isReady())
        return MediumSpace();
    return {volume.bytesTotal(), volume.bytesAvailable()};
}

} // namespace palx

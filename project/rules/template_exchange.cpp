#include "project/rules/template_exchange.h"

#include "project/rules/archive_unpack.h"
#include "project/rules/project_messages.h"
#include "project/rules/staged_folder.h"
#include "workstation/config_log.h"
#include "workstation/plugin_log.h"

#include <QDir>
#include <QFileInfo>

namespace palx {

namespace {

QString modFolder(const QString &programFolder)
{
    return programFolder + QStringLiteral("/mod");
}

/// Beside "mod", so that one renaming brings a folder there.
QString keptFolder(const QString &programFolder)
{
    return programFolder + QStringLiteral("/.palx-mod-before");
}

QString unpackedFolder(const QString &programFolder)
{
    return programFolder + QStringLiteral("/.palx-mod-new");
}

bool isGone(const QString &folder)
{
    return !isTaken(folder) || removeFolder(folder);
}

/// The folder that holds the templates: the one that was unpacked into, or the only one in it.
QString topOf(const QString &unpacked)
{
    const QFileInfoList entries =
        QDir(unpacked).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return entries.size() == 1 && entries.first().isDir() ? entries.first().filePath() : unpacked;
}

bool warn(const QString &archive, const QString &why)
{
    recordCfgLog(QStringLiteral("%1: %2").arg(archive, why), true);
    return reportProject("warning", ProjectText::tr("Import project templates failed!"));
}

} // namespace

bool TemplateChange::keepOld(const QString &programFolder)
{
    const QString mod = modFolder(programFolder);
    const QString kept = keptFolder(programFolder);
    if (!isGone(kept) || (isTaken(mod) && !QDir().rename(mod, kept)))
        return false;
    programFolder_ = programFolder;
    return true;
}

bool TemplateChange::reset(const QString &programFolder)
{
    if (!keepOld(programFolder)) {
        const QString text = QStringLiteral("Remove mod dir failed! -") + modFolder(programFolder);
        writePluginLog(text);
        return reportProject("warning", text);
    }
    writePluginLog(QStringLiteral("Remove mod dir success!"));
    reportProject("info", ProjectText::tr("Reset project templates success!"));
    return true;
}

bool TemplateChange::replace(const QString &programFolder, const QString &archive, Progress *progress)
{
    const QString mod = modFolder(programFolder);
    const QString unpacked = unpackedFolder(programFolder);
    writePluginLog(QStringLiteral("mod_dir_path:") + mod);
    writePluginLog(QStringLiteral("template_path:") + archive);
    QString why;
    bool isDone = isGone(unpacked) && QDir().mkdir(unpacked);
    if (!isDone)
        why = ProjectText::tr("Cannot create path: %1").arg(unpacked);
    isDone = isDone && unpackArchive(archive, unpacked, &why, progress);
    if (isDone) {
        chmodFiles(QStringList(unpacked) + recursiveAllFiles(unpacked));
        isDone = keepOld(programFolder) && QDir().rename(topOf(unpacked), mod);
        if (!isDone)
            undo();
        if (!isDone)
            why = ProjectText::tr("%1 cannot be replaced").arg(mod);
    }
    if (!isGone(unpacked))
        reportProject("warning", ProjectText::tr("Delete temp file failed!"));
    if (!isDone)
        return !why.isEmpty() && warn(archive, why);
    reportProject("info", ProjectText::tr("Import project templates success!"));
    reportProject("info", ProjectText::tr("Project templates import success!"));
    return true;
}

bool TemplateChange::undo()
{
    if (!isMade())
        return true;
    const QString mod = modFolder(programFolder_);
    const QString kept = keptFolder(programFolder_);
    if (!isGone(mod) || (isTaken(kept) && !QDir().rename(kept, mod)))
        return false;
    programFolder_.clear();
    return true;
}

void TemplateChange::forget()
{
    if (isMade())
        isGone(keptFolder(programFolder_));
    programFolder_.clear();
}

void TemplateChange::recover(const QString &programFolder)
{
    const QString mod = modFolder(programFolder);
    const QString kept = keptFolder(programFolder);
    const QString unpacked = unpackedFolder(programFolder);
    if (isTaken(kept) && isTaken(unpacked) && !isTaken(mod)) // the new one had not come yet
        QDir().rename(kept, mod);
    isGone(kept);
    isGone(unpacked);
}

} // namespace palx

#include "project/rules/template_exchange.h"

#include "project/rules/archive_unpack.h"
#include "project/rules/program_template.h"
#include "project/rules/project_messages.h"
#include "project/rules/staged_folder.h"
#include "project/rules/work_folder.h"
#include "workstation/config_log.h"
#include "workstation/plugin_log.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace palx {

namespace {

QString modFolder(const QString &programFolder)
{
    return programFolder + QStringLiteral("/mod");
}

// Beside "mod", so that one renaming brings a folder there. The process that keeps it follows.
const QString kBefore = QStringLiteral(".palx-mod-before-");
const QString kNew = QStringLiteral(".palx-mod-new-");

/// Of this process; what the import before keeps has another number.
QString freeBefore(const QString &programFolder)
{
    int number = 0;
    const auto path = [&] {
        return programFolder + QLatin1Char('/') + ofThisProcess(kBefore, QString::number(number));
    };
    while (isTaken(path()))
        ++number;
    return path();
}

QStringList foldersOf(const QString &programFolder, const QString &prefix)
{
    return QDir(programFolder).entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden, QDir::Name);
}

bool hasTemplates(const QString &root)
{
    const QStringList paths = programTemplates();
    return std::any_of(paths.begin(), paths.end(), [&root](const QString &path) {
        return !path.isEmpty() && QFileInfo(root + path).isFile();
    });
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
    const QString kept = isTaken(mod) ? freeBefore(programFolder) : QString();
    if (!kept.isEmpty() && !QDir().rename(mod, kept))
        return false;
    programFolder_ = programFolder;
    kept_ = kept;
    return true;
}

bool TemplateChange::reset(const QString &programFolder)
{
    if (!keepOld(programFolder)) {
        const QString text = QStringLiteral("Remove mod dir failed! -") + modFolder(programFolder);
        writePluginLog(text);
        return reportProject("warning", text);
    }
    isReset_ = true;
    if (kept_.isEmpty())
        programFolder_.clear(); // nothing was there
    writePluginLog(QStringLiteral("Remove mod dir success!"));
    reportProject("info", ProjectText::tr("Reset project templates success!"));
    return true;
}

bool TemplateChange::replace(const QString &programFolder, const QString &archive, Progress *progress)
{
    const QString mod = modFolder(programFolder);
    const QString unpacked = programFolder + QLatin1Char('/') + ofThisProcess(kNew, QStringLiteral("0"));
    writePluginLog(QStringLiteral("mod_dir_path:") + mod);
    writePluginLog(QStringLiteral("template_path:") + archive);
    QString why;
    bool isDone = isGone(unpacked) && QDir().mkdir(unpacked);
    if (!isDone)
        why = ProjectText::tr("Cannot create path: %1").arg(unpacked);
    isDone = isDone && unpackArchive(archive, unpacked, &why, progress);
    if (isDone && !hasTemplates(topOf(unpacked))) {
        isDone = false;
        why = ProjectText::tr("it holds no program templates");
    }
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
    if (!kept_.isEmpty() && !isTaken(kept_)) // or there would be none at all
        return false;
    if (!isGone(mod) || (!kept_.isEmpty() && !QDir().rename(kept_, mod)))
        return false;
    programFolder_.clear();
    return true;
}

void TemplateChange::forget()
{
    if (isMade() && !kept_.isEmpty())
        isGone(kept_);
    programFolder_.clear();
}

void TemplateChange::recover(const QString &programFolder)
{
    const QString mod = modFolder(programFolder);
    const auto path = [&](const QString &name) { return programFolder + QLatin1Char('/') + name; };
    const QStringList unpacked = foldersOf(programFolder, kNew);
    for (const QString &kept : foldersOf(programFolder, kBefore)) {
        if (isOfRunningProcess(kBefore, kept))
            continue;
        const QString process = kept.mid(kBefore.size()).section(QLatin1Char('-'), 0, 0);
        const bool wasReplacing = !unpacked.filter(kNew + process + QLatin1Char('-')).isEmpty();
        if (wasReplacing && !isTaken(mod)) // the new one had not come yet
            QDir().rename(path(kept), mod);
        isGone(path(kept));
    }
    for (const QString &each : unpacked)
        if (!isOfRunningProcess(kNew, each))
            isGone(path(each));
}

} // namespace palx

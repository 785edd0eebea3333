#include "project/rules/project_export.h"

#include "orba/module_manager.h"
#include "project/rules/archive_pack.h"
#include "project/rules/program_template.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_parameters_file.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_recovery.h"
#include "project/rules/run_beside.h"
#include "project/rules/staged_folder.h"
#include "project/rules/work_folder.h"
#include "workstation/config_log.h"
#include "workstation/file_sync.h"
#include "workstation/medium_choice.h"
#include "workstation/workspace.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <unistd.h>

namespace palx {

using orba::Name;
using orba::Node;

namespace {

/// Archives that are being made, in a folder of their own in the target folder; they get their names when they are whole and
/// on the disk.
class ArchiveDesk
{
public:
    explicit ArchiveDesk(const QString &target)
        : target_(target), folder_(QDir(target).filePath(QStringLiteral(".palx-export")))
    {
        isReady_ = (!isTaken(folder_) || removeFolder(folder_)) && QDir().mkdir(folder_);
    }
    ~ArchiveDesk()
    {
        if (isReady_)
            removeFolder(folder_);
    }
    ArchiveDesk(const ArchiveDesk &) = delete;
    ArchiveDesk &operator=(const ArchiveDesk &) = delete;

    bool isReady() const { return isReady_; }
    /// Where the archive of that name is to be made. False when one stands there: a disk may take "a" and "A" for one.
    bool begin(const QString &name, QString *archive, QString *why) const
    {
        *archive = made(name);
        if (isTaken(*archive))
            *why = ProjectText::tr("the disk takes its archive and another of this export for one");
        return why->isEmpty();
    }
    void noteWhole(const QString &name) { whole_.append(name); }

    /// The archives so far get their names.
    bool finish(QString *why, Progress *progress)
    {
        bool isDone = whole_.isEmpty();
        if (!isDone)
            runBeside(progress, {ProjectText::tr("Writing to the disk"), {}},
                      [&] { isDone = writeThrough(why) && nameAll(why) && syncFileSystem(target_, why); });
        return isDone;
    }

private:
    QString made(const QString &name) const { return archivePath(folder_, name); }

    /// Before they get their names: a name must not reach the disk before what it names.
    bool writeThrough(QString *why) const
    {
        for (const QString &name : whole_) {
            QFile file(made(name));
            if (!file.open(QIODevice::ReadOnly) || ::fsync(file.handle()) != 0)
                return explain(name, why);
        }
        return true;
    }

    bool nameAll(QString *why) const
    {
        for (const QString &name : whole_)
            if (std::rename(QFile::encodeName(made(name)).constData(),
                            QFile::encodeName(archivePath(target_, name)).constData()) != 0)
                return explain(name, why);
        return true;
    }

    bool explain(const QString &name, QString *why) const
    {
        *why = QStringLiteral("%1: %2").arg(archivePath(target_, name), qt_error_string());
        return false;
    }

    QString target_;
    QString folder_;
    QStringList whole_;
    bool isReady_ = false;
};

bool warn(const QString &text, const QString &why)
{
    recordCfgLog(QStringLiteral("%1: %2").arg(text, why), true);
    return reportProject("warning", text);
}

/// The mirror that is packed gets a "var.xml" of its own, so that the project's stays whatever happens.
bool addParametersTo(ArchiveMirror *mirror, const QString &project, QString *why)
{
    const QString file = QStringLiteral("var.xml");
    Node fixed{Name(u"fixed_var_list")};
    if (!readVariableList(mirror->filePath(file), &fixed, why))
        return false;
    QFile before(mirror->filePath(file));
    const QByteArray old = before.open(QIODevice::ReadOnly) ? before.readAll() : QByteArray();
    orba::FormatError error;
    const QByteArray text = variableListWithParameters(fixed, old, projectRecord(project)->node(), &error);
    *why = error.text();
    return !error.isSet() && mirror->putFile(file, text, why);
}

bool exportProject(const QString &name, const QString &archive, QString *why, Progress *progress)
{
    const QString folder = projectFolder(name);
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        *why = ProjectText::tr("there is no such project");
        return false;
    }
    const WorkFolder work(robotFolder(), QStringLiteral("export"));
    if (work.path().isEmpty()) {
        *why = ProjectText::tr("there is no room beside the robot's folder");
        return false;
    }
    ArchiveMirror mirror(work.path());
    return mirror.fill(folder, why, progress) && addParametersTo(&mirror, name, why) &&
           mirror.pack(archive, why, progress);
}

/// Built-in templates are copied to files first: a folder in the archive would else be one that cannot be written to.
bool exportTemplates(const QString &programFolder, const QString &archive, QString *why, Progress *progress)
{
    const QTemporaryDir work;
    ArchiveMirror mirror(work.path());
    return mirror.fill(programTemplateRoot(programFolder), why, progress) &&
           mirror.pack(archive, why, progress);
}

bool exportAll(const ExportRequest &request, ArchiveDesk *desk, Progress *progress)
{
    QString why, archive;
    for (const QString &project : request.projects) {
        if (!desk->begin(project, &archive, &why) || !exportProject(project, archive, &why, progress))
            return progress->isCancelled() || warn(ProjectText::tr("Export %1 failed!").arg(project), why);
        desk->noteWhole(project);
    }
    if (!request.hasTemplates)
        return true;
    if (!desk->begin(templatesName(), &archive, &why) ||
        !exportTemplates(request.programFolder, archive, &why, progress))
        return progress->isCancelled() || warn(ProjectText::tr("Export Project templates failed!"), why);
    desk->noteWhole(templatesName());
    return true;
}

/// The name by which a failure to write to the target goes.
bool warnOfTarget(const ExportRequest &request, const QString &why)
{
    return request.projects.isEmpty()
               ? warn(ProjectText::tr("Export Project templates failed!"), why)
               : warn(ProjectText::tr("Export %1 failed!").arg(request.projects.first()), why);
}

bool isAllowed(const ExportRequest &request)
{
    if (request.target.isEmpty()) {
        recordCfgLog(ProjectText::tr("Export path can not be empty!"), true);
        return false;
    }
    if (request.projects.isEmpty() && !request.hasTemplates)
        return reportProject("error", ProjectText::tr("please select item!"));
    if (!request.projects.isEmpty() && robotFolder().isEmpty())
        return reportProject("error",
                             ProjectText::tr("The robot is not known yet: connect the controller first"));
    if (request.hasTemplates && request.projects.contains(templatesName()))
        return reportProject(
            "error", ProjectText::tr("Export the project \"mod\" and the templates one after the other: both "
                                     "become \"mod.zip\""));
    return true;
}

} // namespace

QVector<ExportPlan> planExport(const QString &target, const QStringList &projects)
{
    QVector<ExportPlan> plans;
    QStringList files;
    for (const QString &project : projects) {
        const QFileInfo archive(archivePath(target, project));
        files.append(archive.fileName());
        const bool isReplacing = !target.isEmpty() && archive.exists();
        plans.append({files.last(), QString(), isReplacing ? archive.lastModified() : QDateTime()});
    }
    const QStringList problems = target.isEmpty() ? QStringList() : targetProblems(target, files);
    for (int i = 0; i < problems.size(); ++i)
        plans[i].problem = problems.at(i);
    return plans;
}

QString templatesName()
{
    return QStringLiteral("mod");
}

QString archivePath(const QString &target, const QString &project)
{
    return QDir(target).filePath(project + QStringLiteral(".zip"));
}

bool exportProjects(const ExportRequest &request, Progress *progress)
{
    if (!isAllowed(request))
        return false;
    recoverProjects();
    ArchiveDesk desk(request.target);
    if (!desk.isReady())
        return warnOfTarget(request, ProjectText::tr("%1 cannot be written to").arg(request.target));
    const bool isExported = exportAll(request, &desk, progress);
    if (!progress->enterLastPart())
        return false;
    QString why;
    if (!desk.finish(&why, progress))
        return warnOfTarget(request, why);
    if (isExported)
        reportProject("info", ProjectText::tr("Export to %1 success!").arg(request.target));
    return isExported;
}

} // namespace palx

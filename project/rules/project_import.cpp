#include "project/rules/project_import.h"

#include "orba/module_manager.h"
#include "project/rules/archive_unpack.h"
#include "project/rules/import_undo.h"
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
#include "workstation/hidden_project.h"
#include "workstation/workspace.h"

#include <QDir>
#include <QFileInfo>

namespace palx {

using orba::Name;
using orba::Node;

namespace {

enum class Outcome { Imported, Refused, Cancelled, GiveUp };

bool explain(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

/// What an archive was unpacked to, ready to become a project.
struct Unpacked
{
    QString folder;
    Node variables{Name(u"temp_var_list")};
    Node parameters;
};

bool flush(const QString &folder, QString *why, Progress *progress)
{
    bool isDone = false;
    runBeside(progress, {ProjectText::tr("Writing to the disk"), {}},
              [&] { isDone = syncFileSystem(folder, why); });
    return isDone;
}

bool prepare(const QString &archive, Unpacked *unpacked, QString *why, Progress *progress)
{
    const QString file = unpacked->folder + QStringLiteral("/var.xml");
    if (!QDir().mkpath(unpacked->folder))
        return explain(why, ProjectText::tr("Cannot create path: %1").arg(unpacked->folder));
    ArchiveContent content;
    if (!unpackArchive(archive, unpacked->folder, why, progress, &content))
        return false;
    const QString problem = projectProblem(content);
    if (!problem.isEmpty())
        return explain(why, problem);
    if (!readVariableList(file, &unpacked->variables, why) ||
        !readParameterVariables(unpacked->variables, &unpacked->parameters, why))
        return false;
    orba::FormatError error;
    if (isTaken(file) && !orba::ModuleManager::writeToXmlFile(unpacked->variables, file, &error))
        return explain(why, error.text());
    if (!chmodFiles(QStringList(unpacked->folder) + recursiveAllFiles(unpacked->folder)))
        return explain(why, ProjectText::tr("the permissions of its files cannot be set"));
    return flush(unpacked->folder, why, progress);
}

/// What is left of a record under a name that is free belongs to no project.
void writeRecord(const QString &name, bool isNew, const Node &parameters)
{
    if (isNew)
        projectRecord(name)->remove();
    addProjectRecord(name);
    writeProjectParameters(name, parameters);
    saveDataToHiddenProject();
}

/// The steps in which the project changes: the record, and the folder by one renaming. No event is handled in between. Until
/// the end the old folder is staged with a note of its record, from which a killed process is put right.
bool takePlace(const QString &name, const Unpacked &unpacked, StagedFolder *old, ImportUndo::Change *change)
{
    change->name = name;
    change->recordBefore = currentRecord(name);
    const QString staged = old->path();
    bool isDone = staged.isEmpty() || noteRecord(staged, change->recordBefore);
    if (isDone)
        writeRecord(name, staged.isEmpty(), unpacked.parameters);
    isDone = isDone && QDir().rename(unpacked.folder, projectFolder(name));
    if (isDone && !staged.isEmpty())
        isDone =
            !change->kept->path().isEmpty() && old->moveTo(change->kept->filePath(QStringLiteral("project")));
    if (!staged.isEmpty())
        forgetRecord(isDone ? change->kept->filePath(QStringLiteral("project")) : staged);
    if (isDone)
        return true;
    restoreRecord(name, change->recordBefore);
    saveDataToHiddenProject();
    return false;
}

class Import
{
public:
    Import(Progress *progress, ImportUndo *undo) : progress_(progress), undo_(undo) {}

    Outcome take(const ImportPlan &plan)
    {
        if (!plan.problem.isEmpty())
            return refuse(plan, plan.problem);
        const WorkFolder work(robotFolder(), QStringLiteral("import"));
        Unpacked unpacked;
        unpacked.folder = work.filePath(QStringLiteral("project"));
        QString why;
        if (work.path().isEmpty())
            return refuse(plan, ProjectText::tr("there is no room beside the robot's folder"));
        if (!prepare(plan.archive, &unpacked, &why, progress_))
            return progress_->isCancelled() ? Outcome::Cancelled : refuse(plan, why);
        return becomeProject(plan, unpacked);
    }

private:
    Outcome becomeProject(const ImportPlan &plan, const Unpacked &unpacked)
    {
        ImportUndo::Change change;
        StagedFolder old;
        const QString folder = projectFolder(plan.name);
        if (plan.isReplacing) {
            change.kept = std::make_unique<WorkFolder>(robotFolder(), undo_->nextKept());
            if (!old.take(folder)) {
                reportProject("warning", ProjectText::tr("Delete temp file failed!"));
                return Outcome::GiveUp;
            }
        }
        if (isTaken(folder) || !takePlace(plan.name, unpacked, &old, &change))
            return refuse(plan, ProjectText::tr("%1 cannot be made").arg(folder));
        undo_->note(std::move(change));
        m("quill.project.refresh_project")->trigger();
        reportProject("info", ProjectText::tr("%1 import success!").arg(shownPath(plan)));
        return Outcome::Imported;
    }

    static QString shownPath(const ImportPlan &plan) { return QFileInfo(plan.archive).absoluteFilePath(); }

    static Outcome refuse(const ImportPlan &plan, const QString &why)
    {
        recordCfgLog(QStringLiteral("%1: %2").arg(shownPath(plan), why), true);
        reportProject("warning", ProjectText::tr("Import %1 failed!").arg(shownPath(plan)));
        return Outcome::Refused;
    }

    Progress *progress_;
    ImportUndo *undo_;
};

/// Archives are planned one by one, because one that cannot be imported leaves its name free. False when the import ends here.
bool importArchives(const ImportRequest &request, ImportUndo *undo, QStringList *failed, Progress *progress)
{
    Import import(progress, undo);
    for (int i = 0; i < request.archives.size(); ++i) {
        const Outcome outcome = import.take(planImport({request.archives.at(i)}, request.onClash).first());
        if (outcome == Outcome::Cancelled || outcome == Outcome::GiveUp) {
            *failed += request.archives.mid(i);
            return false;
        }
        if (outcome != Outcome::Imported)
            failed->append(request.archives.at(i));
    }
    return true;
}

bool importTemplates(const ImportRequest &request, ImportUndo *undo, Progress *progress)
{
    switch (request.templates) {
    case TemplateAction::None:
        break;
    case TemplateAction::Reset:
        return undo->templates().reset(request.programFolder);
    case TemplateAction::Custom:
        return undo->templates().replace(request.programFolder, request.templateArchive, progress);
    }
    return true;
}

bool isAllowed(const ImportRequest &request)
{
    const bool isMissing = request.templates == TemplateAction::Custom && request.templateArchive.isEmpty();
    if (isMissing || (request.archives.isEmpty() && request.templates == TemplateAction::None))
        return reportProject("error", ProjectText::tr("please select item!"));
    if (!request.archives.isEmpty() && robotFolder().isEmpty())
        return reportProject("error",
                             ProjectText::tr("The robot is not known yet: connect the controller first"));
    return true;
}

QString freeName(const QString &name, const QStringList &planned)
{
    const auto isFree = [&planned](const QString &wanted) {
        return !isTaken(projectFolder(wanted)) && !planned.contains(wanted);
    };
    QString found = name;
    for (int number = 1; !isFree(found); ++number)
        found = name + QStringLiteral("(%1)").arg(number);
    return found;
}

QStringList namesOf(const QVector<ImportPlan> &plans)
{
    QStringList names;
    for (const ImportPlan &plan : plans)
        names.append(plan.name);
    return names;
}

} // namespace

QVector<ImportPlan> planImport(const QStringList &archives, OnClash onClash)
{
    QVector<ImportPlan> plans;
    for (const QString &archive : archives) {
        ImportPlan plan{archive, QString(), false, false, QString()};
        const QString name = QFileInfo(archive).completeBaseName();
        if (!isProjectName(name) || projectFolder(name).isEmpty()) {
            plan.problem = ProjectText::tr("\"%1\" is no name for a project").arg(name);
        } else {
            plan.name = onClash == OnClash::Rename ? freeName(name, namesOf(plans)) : name;
            plan.isRenamed = plan.name != name;
            plan.isReplacing = onClash == OnClash::Replace &&
                               (isTaken(projectFolder(name)) || namesOf(plans).contains(name));
        }
        plans.append(plan);
    }
    return plans;
}

QString projectProblem(const ArchiveContent &content)
{
    // A project's folder has one of these, and its archive the second at least.
    const QStringList signs{QStringLiteral(".rlprog"), QStringLiteral("var.xml")};
    for (const ArchiveEntry &entry : content.entries)
        if (signs.contains(entry.name))
            return QString();
    return ProjectText::tr("it holds no project");
}

bool importProjects(const ImportRequest &request, Progress *progress, QStringList *failed)
{
    QStringList unwanted;
    failed = failed ? failed : &unwanted;
    failed->clear();
    if (!isAllowed(request))
        return false;
    recoverExchange(request.programFolder);
    auto undo = std::make_unique<ImportUndo>();
    const bool isDone = importArchives(request, undo.get(), failed, progress) &&
                        importTemplates(request, undo.get(), progress) && failed->isEmpty();
    if (!progress->enterLastPart()) {
        undo->undo();
        return false;
    }
    QString why;
    if (!request.archives.isEmpty() && !flush(robotFolder(), &why, progress))
        recordCfgLog(ProjectText::tr("What was imported may be lost when the power fails: %1").arg(why),
                     true);
    if (!undo->names().isEmpty())
        ImportUndo::keep(std::move(undo));
    return isDone;
}

void recoverExchange(const QString &programFolder)
{
    recoverProjects();
    if (!ImportUndo::last())
        TemplateChange::recover(programFolder);
}

QStringList lastImported()
{
    const ImportUndo *last = ImportUndo::last();
    return last && last->isOfThisRobot() ? last->names() : QStringList();
}

bool undoLastImport()
{
    if (lastImported().isEmpty())
        return false;
    recoverProjects();
    if (!ImportUndo::last()->undo())
        return false;
    forgetLastImport();
    return true;
}

void forgetLastImport()
{
    delete ImportUndo::last();
}

} // namespace palx

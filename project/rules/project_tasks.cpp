#include "project/rules/project_tasks.h"

#include "project/rules/project_files.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"

#include <QDir>
#include <QFileInfo>

namespace palx {

using orba::ModuleObject;
using orba::Node;

namespace {

constexpr int kPriority = 2;

bool always(const Node &)
{
    return true;
}
bool stacksLeft(const Node &record)
{
    const qint64 scheme = record.getInt(u"scheme_layout");
    return scheme == 0 || scheme == 2;
}
bool stacksRight(const Node &record)
{
    const qint64 scheme = record.getInt(u"scheme_layout");
    return scheme == 1 || scheme == 2;
}
bool hasLift(const Node &record)
{
    return record.getInt(u"bollard") == 0;
}

/// A row is a file; rows of one task follow each other. `applies` looks at the project's record.
struct Row
{
    const char *task;
    const char *taskDescription;
    const char *type;
    const char *file;
    const char *description;
    bool (*applies)(const Node &record);
};

constexpr Row kRows[] = {
    {"task0", QT_TRANSLATE_NOOP("palx::ProjectText", "Default"), "motion", "main",
     QT_TRANSLATE_NOOP("palx::ProjectText", "Main Function"), always},
    {"task0", "Default", "motion", "BackHome", QT_TRANSLATE_NOOP("palx::ProjectText", "Back Home"), always},
    {"task0", "Default", "motion", "Init", QT_TRANSLATE_NOOP("palx::ProjectText", "Init"), always},
    {"task0", "Default", "motion", "ZuoMaduo", QT_TRANSLATE_NOOP("palx::ProjectText", "Left Stack"),
     stacksLeft},
    {"task0", "Default", "motion", "YouMaduo", QT_TRANSLATE_NOOP("palx::ProjectText", "Right Stack"),
     stacksRight},
    {"task0", "Default", "motion", "Helper", QT_TRANSLATE_NOOP("palx::ProjectText", "Helper Function"),
     hasLift},
    {"task1", QT_TRANSLATE_NOOP("palx::ProjectText", "Conveyor belt inspection"), "semi_static", "main",
     "Main Function", always},
    {"task2", QT_TRANSLATE_NOOP("palx::ProjectText", "Palletizing status detection"), "semi_static", "main",
     "Main Function", always},
    {"task3", QT_TRANSLATE_NOOP("palx::ProjectText", "Program - Estop - Collision"), "semi_static", "main",
     "Main Function", always},
    {"task4", QT_TRANSLATE_NOOP("palx::ProjectText", "Anomaly detection"), "normal", "main", "Main Function",
     always},
    {"task5", QT_TRANSLATE_NOOP("palx::ProjectText", "Lifting column status detection"), "semi_static",
     "main", "Main Function", hasLift},
    {"task5", "Lifting column status detection", "semi_static", "Helper", "Helper Function", hasLift},
};

ModuleObject *taskList()
{
    return m("quill.project.task._list");
}

QString filePath(int number)
{
    return QStringLiteral("files.#%1").arg(number);
}

/// What a controller's template has at that place may be no place for a text.
void setText(Node *node, const QString &path, const QString &text)
{
    if (Node *place = node->ensure(path))
        place->setString(text);
}

/// The entries of a task's files.
QVector<const Node *> filesOf(const Node &task)
{
    QVector<const Node *> entries;
    const Node *files = task.child(QStringView(u"files"));
    for (int i = 0; files && i < files->size(); ++i)
        if (const Node *entry = files->at(i))
            entries.append(entry);
    return entries;
}

Node newTask(const Row &row)
{
    Node task = m("quill.project.task.default")->node();
    if (task.kind() != Node::Kind::Map)
        task.reset(Node::Kind::Map);
    setText(&task, QStringLiteral("name"), QLatin1String(row.task));
    setText(&task, QStringLiteral("description"), ProjectText::tr(row.taskDescription));
    setText(&task, QStringLiteral("type"), QLatin1String(row.type));
    task.ensureChild(orba::Name(u"priority"))->setInt(kPriority);
    return task;
}

void addFile(Node *task, int number, const Row &row)
{
    setText(task, filePath(number) + QStringLiteral(".name"), QLatin1String(row.file));
    setText(task, filePath(number) + QStringLiteral(".description"), ProjectText::tr(row.description));
}

/// Writes the programs that are missing.
bool writePrograms(const Node &task, QObject *sender)
{
    const QString taskName = task.getString(u"name");
    for (const Node *entry : filesOf(task)) {
        const QString name = entry->getString(u"name");
        const QString file = name + QLatin1Char('.') + entry->getString(u"type", QStringLiteral("MOD"));
        if (QFileInfo::exists(getFileName(file, taskName)))
            continue;
        if (writeProgram(sender, name, taskName, true) == ProgramResult::Failed)
            return false;
    }
    return true;
}

QVector<Node> tasksOf(const Node &record)
{
    QVector<Node> tasks;
    int files = 0;
    for (const Row &row : kRows) {
        if (!row.applies(record))
            continue;
        if (tasks.isEmpty() || tasks.last().getString(u"name") != QLatin1String(row.task)) {
            tasks.append(newTask(row));
            files = 0;
        }
        addFile(&tasks.last(), files++, row);
    }
    return tasks;
}

QVector<ProgramFile> listedPrograms()
{
    QVector<ProgramFile> programs;
    const Node &tasks = std::as_const(taskList()->node());
    for (int t = 0; t < tasks.size(); ++t) {
        const Node &task = *tasks.at(t);
        ProgramFile program;
        program.task = task.getString(u"name");
        program.taskDescription = task.getString(u"description");
        program.type = task.getString(u"type");
        for (const Node *entry : filesOf(task)) {
            program.name = entry->getString(u"name");
            program.description = entry->getString(u"description");
            program.path = getFileName(program.name + QStringLiteral(".mod"), program.task);
            programs.append(program);
            ++program.number;
        }
    }
    return programs;
}

QVector<ProgramFile> storedPrograms(const QString &folder)
{
    QVector<ProgramFile> programs;
    for (const QFileInfo &task : QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        ProgramFile program;
        program.task = task.fileName();
        for (const QFileInfo &file :
             QDir(task.filePath()).entryInfoList({QStringLiteral("*.mod")}, QDir::Files, QDir::Name)) {
            program.name = file.completeBaseName();
            program.path = file.filePath();
            programs.append(program);
            ++program.number;
        }
    }
    return programs;
}

} // namespace

bool buildProjectTasks(QObject *sender)
{
    // Tasks that a controller still knows under this name, or that nobody exchanged because there is no controller, are
    // not this project's.
    taskList()->clear(sender);
    for (const Node &task : tasksOf(currentProjectRecord())) {
        if (!writePrograms(task, sender))
            return false;
        taskList()->addUnnamed(sender)->copyFrom(task, sender);
    }
    return true;
}

QVector<ProgramFile> projectPrograms(const QString &project)
{
    const bool isCurrent = !project.isEmpty() && project == currentProject();
    const QVector<ProgramFile> listed = isCurrent ? listedPrograms() : QVector<ProgramFile>();
    const QString folder = projectFolder(project);
    return listed.isEmpty() && !folder.isEmpty() ? storedPrograms(folder) : listed;
}

} // namespace palx

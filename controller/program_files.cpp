#include "controller/program_files.h"

#include "controller/texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace controller {

using orba::Node;
using script::Problem;

namespace {

constexpr qint64 kMaxFile = 1 << 20; // bytes; programs are written by people

QString fileOf(const Node &entry, const QDir &folder)
{
    const QString name = entry.getString(u"name");
    const QString typed = name + QLatin1Char('.') + entry.getString(u"type", QStringLiteral("MOD"));
    return folder.exists(typed) ? typed : name + QStringLiteral(".mod");
}

/// Why a file could not be read; empty when `source` is filled.
QString readSource(const QDir &folder, const QString &name, script::Source *source)
{
    source->file = name.toStdString();
    QFile file(folder.filePath(name));
    if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')))
        return Texts::tr("this is no name of a file");
    if (file.exists() && !QFileInfo(file).isFile())
        return Texts::tr("this is no file"); // a pipe would be waited for
    if (!file.open(QIODevice::ReadOnly))
        return Texts::tr("the file cannot be read: %1").arg(file.errorString());
    if (file.size() > kMaxFile)
        return Texts::tr("the file is larger than %1 bytes").arg(kMaxFile);
    source->text = file.readAll().toStdString();
    return {};
}

void loadTask(const Node &record, const QString &folder, const std::vector<script::VariableInfo> &variables,
              LoadedPrograms *programs)
{
    LoadedTask task;
    const QString name = record.getString(u"name");
    task.info.name = name.toStdString();
    task.description = record.getString(u"description");
    task.priority = static_cast<int>(record.getInt(u"priority"));
    const auto complain = [&](const std::string &file, const QString &what) {
        programs->problems.push_back({task.info.name, Problem{file, 0, 0, what.toStdString()}});
    };
    if (!script::taskKindOfName(record.getString(u"type").toStdString(), &task.info.kind))
        return complain({}, Texts::tr("there is no kind of task \"%1\"").arg(record.getString(u"type")));
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return complain({}, Texts::tr("\"%1\" is no name of a task").arg(name));
    std::vector<script::Source> sources;
    const QDir place(QDir(folder).filePath(name));
    const Node *files = record.child(QStringView(u"files"));
    for (int i = 0; files && i < files->size(); ++i) {
        script::Source source;
        const QString why =
            files->at(i) ? readSource(place, fileOf(*files->at(i), place), &source) : QString();
        if (!why.isEmpty())
            return complain(source.file, why);
        sources.push_back(std::move(source));
    }
    script::Built built = script::build(task.info, sources, variables);
    for (Problem &problem : built.problems)
        programs->problems.push_back({task.info.name, std::move(problem)});
    task.program = std::move(built.program);
    if (task.program)
        programs->tasks.push_back(std::move(task));
}

} // namespace

QString toText(const TaskProblem &problem)
{
    const QString task = QString::fromStdString(problem.task);
    if (problem.problem.line == 0)
        return QStringLiteral("%1/%2: %3")
            .arg(task, QString::fromStdString(problem.problem.file),
                 QString::fromStdString(problem.problem.what));
    return task + QLatin1Char('/') + QString::fromStdString(script::toText(problem.problem));
}

LoadedPrograms loadPrograms(const Node &tasks, const QString &folder,
                            const std::vector<script::VariableInfo> &variables)
{
    LoadedPrograms programs;
    for (int i = 0; i < tasks.size(); ++i)
        if (const Node *record = tasks.at(i))
            loadTask(*record, folder, variables, &programs);
    std::stable_sort(programs.tasks.begin(), programs.tasks.end(),
                     [](const LoadedTask &a, const LoadedTask &b) { return a.priority > b.priority; });
    return programs;
}

} // namespace controller

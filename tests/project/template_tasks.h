#pragma once

#include "controller/script/program.h"
#include "controller/script_recorder.h"
#include "project/rules/program_template.h"
#include "support/cell_variables.h"

#include <QStringList>
#include <QVector>
#include <gtest/gtest.h>

/// The program templates as the tasks of a project, and a cell to run them in.
namespace template_tasks {

using namespace controller::script;

struct Task
{
    const char *name;
    TaskKind kind;
    QStringList files;
};

/// As a project's parameters ask for them.
inline QVector<Task> tasksOf(const palx::TemplateChoice &choice)
{
    QStringList motion{"main", "BackHome", "Init"};
    if (choice.schemeLayout != 1)
        motion.append("ZuoMaduo");
    if (choice.schemeLayout != 0)
        motion.append("YouMaduo");
    if (choice.bollard == 0)
        motion.append("Helper");
    QVector<Task> tasks{{"task0", TaskKind::Motion, motion},
                        {"task1", TaskKind::SemiStatic, {"main"}},
                        {"task2", TaskKind::SemiStatic, {"main"}},
                        {"task3", TaskKind::SemiStatic, {"main"}},
                        {"task4", TaskKind::Normal, {"main"}}};
    if (choice.bollard == 0)
        tasks.append({"task5", TaskKind::SemiStatic, {"main", "Helper"}});
    return tasks;
}

inline QByteArray templateText(const QString &path)
{
    QByteArray text;
    QString why;
    EXPECT_TRUE(palx::readProgramTemplate(path, &text, &why)) << why.toStdString();
    EXPECT_FALSE(text.isEmpty()) << path.toStdString();
    return text;
}

inline std::shared_ptr<const Program> programOf(const Task &task, const palx::TemplateChoice &choice)
{
    std::vector<Source> sources;
    for (const QString &file : task.files)
        sources.push_back({file.toStdString() + ".mod",
                           templateText(palx::programTemplate(task.name, file, choice)).toStdString()});
    const Built built = build({task.name, task.kind}, sources, cellVariables());
    for (const Problem &problem : built.problems)
        ADD_FAILURE() << task.name << " scheme " << choice.schemeLayout << ": " << toText(problem);
    return built.program;
}

/// A cell of the recorder's: recipe "A" with layers of 3 and 2 pieces, lift column that obeys at once.
class Cell : public ScriptRecorder
{
public:
    Cell() : ScriptRecorder(cellVariables())
    {
        for (const char *name :
             {"OperationModeWrite", "ProfileAcceleWrite", "ProfileDeceWrite", "ProfileVelocityWrite",
              "PositionWrite", "VelocityWrite", "PositionRead", "PointAcknowledge", "ModesOfOperation"})
            registers.emplace(name, 0);
        onWritten = [this](const std::string &name) {
            if (name == "PositionWrite")
                registers["PositionRead"] = registers[name] + 900; // near enough
        };
        set("currentLayerL", 1), set("layerCountL", 1), set("currentLayerR", 1), set("layerCountR", 1);
        set("SetZ", 150), set("MaxZ", 1000), set("Margin", 400), set("liftHeight", 60),
            set("boxHeightL", 250);
    }

    Value &at(const std::string &name)
    {
        const std::vector<VariableInfo> all = cellVariables();
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i].name == name)
                return variables[i];
        ADD_FAILURE() << name;
        return variables[0];
    }
    void set(const std::string &name, std::int64_t value) { at(name) = value; }
    std::string get(const std::string &name) { return toText(at(name)); }

    /// Runs one procedure of the left side's motion task, without a lift column or with one.
    void run(const std::string &procedure, bool lifts)
    {
        const palx::TemplateChoice choice{0, lifts ? 0 : 1, 0, 0};
        std::vector<Source> sources{{"start.mod", "PROC main()\n" + procedure + "()\nENDPROC\n"}};
        for (const QString &file : tasksOf(choice)[0].files.mid(1))
            sources.push_back({file.toStdString(),
                               templateText(palx::programTemplate("task0", file, choice)).toStdString()});
        const Built built = build({"task0", TaskKind::Motion}, sources, cellVariables());
        for (const Problem &problem : built.problems)
            ADD_FAILURE() << toText(problem);
        Executor executor(built.program, this);
        ScriptRecorder::run(&executor, 10000);
        EXPECT_EQ(executor.activity(), Activity::Ended);
    }

    /// What happened, without the times, from an event on.
    std::vector<std::string> eventsFrom(const std::string &first, std::size_t count) const
    {
        std::vector<std::string> found;
        for (const std::string &event : events) {
            const std::string what = event.substr(0, event.find('@'));
            if ((!found.empty() || what == first) && found.size() < count)
                found.push_back(what);
        }
        return found;
    }
    std::size_t count(const std::string &what) const
    {
        std::size_t count = 0;
        for (const std::string &event : events)
            count += event.substr(0, event.find('@')) == what ? 1 : 0;
        return count;
    }
};

} // namespace template_tasks

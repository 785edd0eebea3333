// The files of a project for every kind of cell, and that the controller takes them.

#include "line.h"

#include "controller/program_files.h"
#include "controller/program_variables.h"
#include "project/rules/program_template.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

namespace {

using Files = std::map<std::string, std::string>;

/// Program file and the template that it is a copy of.
Files expectedFiles(const LineSetup &setup)
{
    const char *const sides[] = {"left", "right", "both"};
    const std::string side = sides[setup.scheme];
    const std::string lift = setup.hasLift ? "bollard_" : "";
    const std::string facing = setup.towards == 0 ? "Forward-facing_" : "Backwards_";
    const std::string suction =
        setup.hasLift ? "single_suction_bollard_no_clapboard" : "single_suction_no_bollard_no_clapboard";
    Files files{{"task0/main.mod", "motion/main/main_single_" + side},
                {"task0/BackHome.mod", "motion/back_home/BackHome_" + facing + lift + side},
                {"task0/Init.mod", "motion/init/Init_single_" + lift + side},
                {"task1/main.mod", "semi_static/conveyor_belt_inspection"},
                {"task2/main.mod", "semi_static/palletizing_status_detection"},
                {"task3/main.mod", "semi_static/program_estop_collision"},
                {"task4/main.mod", "normal/task_stop"}};
    if (setup.scheme != 1)
        files["task0/ZuoMaduo.mod"] = "motion/left/ZuoMaDuo_" + suction;
    if (setup.scheme != 0)
        files["task0/YouMaduo.mod"] = "motion/right/YouMaDuo_" + suction;
    if (setup.hasLift) {
        files["task0/Helper.mod"] = files["task5/Helper.mod"] = "helper/bollard_helper";
        files["task5/main.mod"] = "semi_static/check_bollard_state";
    }
    return files;
}

std::string content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
}

/// The program files of a project with what is in them.
Files filesIn(const QString &folder)
{
    Files files;
    QDirIterator each(folder, {QStringLiteral("*.mod")}, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        files[QDir(folder).relativeFilePath(path).toStdString()] = content(path);
    }
    return files;
}

} // namespace

class Project : public ::testing::TestWithParam<LineSetup>
{
};

TEST_P(Project, HasTheFilesOfItsKindAndTheControllerTakesThem)
{
    Line line(GetParam());
    const QString folder = madeProject(GetParam()).workspaceFolder + QStringLiteral("/SIM-0001/Line");
    Files expected = expectedFiles(GetParam());
    for (auto &[file, path] : expected)
        path = content(QStringLiteral(":/palx_workstation/mod/%1.mod").arg(QString::fromStdString(path)));
    EXPECT_EQ(expected, filesIn(folder));
    const orba::Node &project = *line.station().tree().find(u"quill.project");
    const controller::LoadedPrograms loaded =
        controller::loadPrograms(*project.find(u"task._list"), folder,
                                 controller::ProgramVariables(*project.find(u"var._list")).infos());
    for (const controller::TaskProblem &problem : loaded.problems)
        ADD_FAILURE() << controller::toText(problem);
    EXPECT_EQ(GetParam().hasLift ? 6u : 5u, loaded.tasks.size());
}

INSTANTIATE_TEST_SUITE_P(Every, Project, ::testing::ValuesIn(everyLine()), nameOfLine);

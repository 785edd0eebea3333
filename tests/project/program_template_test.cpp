#include "project/rules/program_template.h"

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using palx::TemplateChoice;

struct Case
{
    const char *task;
    const char *file;
    TemplateChoice choice; ///< scheme, bollard, towards left, towards right
    const char *path;
};

constexpr Case kCases[] = {
    {"task1", "main", {0, 0, 0, 0}, "/semi_static/conveyor_belt_inspection.mod"},
    {"task1", "anything", {3, 1, 1, 1}, "/semi_static/conveyor_belt_inspection.mod"},
    {"task2", "main", {0, 0, 0, 0}, "/semi_static/palletizing_status_detection.mod"},
    {"task3", "main", {0, 0, 0, 0}, "/semi_static/program_estop_collision.mod"},
    {"task4", "main", {0, 0, 0, 0}, "/normal/task_stop.mod"},
    {"task5", "Helper", {0, 0, 0, 0}, "/helper/bollard_helper.mod"},
    {"task5", "main", {0, 0, 0, 0}, "/semi_static/check_bollard_state.mod"},
    {"task5", "helper", {0, 0, 0, 0}, "/semi_static/check_bollard_state.mod"},
    {"task0", "main", {0, 0, 0, 0}, "/motion/main/main_single_left.mod"},
    {"task0", "main", {1, 1, 0, 0}, "/motion/main/main_single_right.mod"},
    {"task0", "main", {2, 0, 0, 0}, "/motion/main/main_single_both.mod"},
    {"task0", "main", {3, 0, 0, 0}, ""},
    {"task0", "main", {-1, 0, 0, 0}, ""},
    {"task9", "main", {2, 0, 0, 0}, "/motion/main/main_single_both.mod"},
    {"task0", "Helper", {3, 1, 0, 0}, "/helper/bollard_helper.mod"},
    {"task0", "ZuoMaduo", {0, 0, 0, 0}, "/motion/left/ZuoMaDuo_single_suction_bollard_no_clapboard.mod"},
    {"task0", "ZuoMaduo", {3, 1, 0, 0}, "/motion/left/ZuoMaDuo_single_suction_no_bollard_no_clapboard.mod"},
    {"task0", "ZuoMaDuo", {0, 0, 0, 0}, ""}, // the file's name is spelled otherwise
    {"task0", "YouMaduo", {1, 0, 0, 0}, "/motion/right/YouMaDuo_single_suction_bollard_no_clapboard.mod"},
    {"task0", "YouMaduo", {1, 2, 0, 0}, "/motion/right/YouMaDuo_single_suction_no_bollard_no_clapboard.mod"},
    {"task0", "Init", {0, 0, 0, 0}, "/motion/init/Init_single_bollard_left.mod"},
    {"task0", "Init", {1, 1, 0, 0}, "/motion/init/Init_single_right.mod"},
    {"task0", "Init", {2, 1, 0, 0}, "/motion/init/Init_single_both.mod"},
    {"task0", "Init", {3, 1, 0, 0}, ""},
    {"task0", "BackHome", {0, 1, 0, 0}, "/motion/back_home/BackHome_Forward-facing_left.mod"},
    {"task0", "BackHome", {1, 0, 0, 0}, "/motion/back_home/BackHome_Forward-facing_bollard_right.mod"},
    {"task0", "BackHome", {2, 0, 1, 1}, "/motion/back_home/BackHome_Backwards_bollard_both.mod"},
    {"task0", "BackHome", {2, 1, 0, 1}, "/motion/back_home/BackHome_Backwards_both.mod"},
    {"task0", "BackHome", {2, 1, 1, 0}, "/motion/back_home/BackHome_Backwards_both.mod"},
    {"task0", "BackHome", {3, 1, 1, 0}, ""},
    {"task0", "Other", {0, 0, 0, 0}, ""},
    {"", "", {0, 0, 0, 0}, ""},
};

TEST(ProgramTemplate, isChosenByTaskFileAndParameters)
{
    for (const Case &c : kCases)
        EXPECT_EQ(palx::programTemplate(QLatin1String(c.task), QLatin1String(c.file), c.choice), c.path)
            << c.task << " " << c.file << " scheme " << c.choice.schemeLayout;
}

TEST(ProgramTemplate, thereAreThirtyOneFilesAndNoOthers)
{
    QStringList wanted = palx::programTemplates();
    QStringList built;
    const QString root = QStringLiteral(":/palx_workstation/mod");
    for (QDirIterator file(root, QDir::Files, QDirIterator::Subdirectories); file.hasNext();)
        built.append(file.next().mid(root.size()));
    wanted.sort();
    built.sort();
    EXPECT_EQ(wanted.size(), 31);
    EXPECT_EQ(wanted.join('\n').toStdString(), built.join('\n').toStdString());
}

TEST(ProgramTemplate, aFolderBesideTheProgramTakesThePlaceOfTheBuiltInTree)
{
    const QTemporaryDir folder;
    QByteArray text;
    QString why;
    EXPECT_EQ(palx::programTemplateRoot(folder.path()), QStringLiteral(":/palx_workstation/mod"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("mod/normal"));
    const QString root = palx::programTemplateRoot(folder.path());
    EXPECT_EQ(root, folder.path() + "/mod");
    QFile file(root + "/normal/task_stop.mod");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("own");
    file.close();
    EXPECT_TRUE(palx::readProgramTemplate("/normal/task_stop.mod", &text, &why, root));
    EXPECT_EQ(text, "own");
    EXPECT_FALSE(
        palx::readProgramTemplate("/helper/bollard_helper.mod", &text, &why, root)); // all or nothing
    EXPECT_TRUE(why.startsWith(root + "/helper/bollard_helper.mod: ")) << why.toStdString();
    EXPECT_TRUE(palx::readProgramTemplate(QString(), &text, &why, root));
    EXPECT_TRUE(text.isEmpty());
}

} // namespace

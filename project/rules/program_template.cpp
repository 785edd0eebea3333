#include "project/rules/program_template.h"

#include <QDir>
#include <QFile>

#include <iterator>

namespace palx {

namespace {

/// The first row that fits decides. An empty name fits any. In a path stand {side} for left, right or both; {_bollard}
/// for "_bollard" or nothing; {bollard} for "bollard" or "no_bollard"; {facing} for the way both work objects look.
struct Row
{
    const char *task;
    const char *file;
    const char *path;
};

constexpr Row kRows[] = {
    {"task1", "", "/semi_static/conveyor_belt_inspection.mod"},
    {"task2", "", "/semi_static/palletizing_status_detection.mod"},
    {"task3", "", "/semi_static/program_estop_collision.mod"},
    {"task4", "", "/normal/task_stop.mod"},
    {"task5", "Helper", "/helper/bollard_helper.mod"},
    {"task5", "", "/semi_static/check_bollard_state.mod"},
    {"", "main", "/motion/main/main_single_{side}.mod"},
    {"", "Helper", "/helper/bollard_helper.mod"},
    {"", "ZuoMaduo", "/motion/left/ZuoMaDuo_single_suction_{bollard}_no_clapboard.mod"},
    {"", "YouMaduo", "/motion/right/YouMaDuo_single_suction_{bollard}_no_clapboard.mod"},
    {"", "Init", "/motion/init/Init_single{_bollard}_{side}.mod"},
    {"", "BackHome", "/motion/back_home/BackHome_{facing}{_bollard}_{side}.mod"},
};

constexpr const char *kSides[] = {"left", "right", "both"}; // by "scheme_layout"

bool fits(const char *wanted, const QString &name)
{
    return *wanted == '\0' || name == QLatin1String(wanted);
}

/// Empty when the path names a side and the scheme has none.
QString filled(QString path, const TemplateChoice &choice)
{
    const bool hasSide = choice.schemeLayout >= 0 && choice.schemeLayout < int(std::size(kSides));
    if (path.contains(QLatin1String("{side}")) && !hasSide)
        return {};
    const bool lifts = choice.bollard == 0;
    const bool looksForward = choice.towardsLeft == 0 && choice.towardsRight == 0;
    path.replace(QLatin1String("{side}"), QLatin1String(hasSide ? kSides[choice.schemeLayout] : ""));
    path.replace(QLatin1String("{_bollard}"), QLatin1String(lifts ? "_bollard" : ""));
    path.replace(QLatin1String("{bollard}"), QLatin1String(lifts ? "bollard" : "no_bollard"));
    path.replace(QLatin1String("{facing}"), QLatin1String(looksForward ? "Forward-facing" : "Backwards"));
    return path;
}

} // namespace

QString programTemplate(const QString &task, const QString &file, const TemplateChoice &choice)
{
    for (const Row &row : kRows)
        if (fits(row.task, task) && fits(row.file, file))
            return filled(QLatin1String(row.path), choice);
    return {};
}

QStringList programTemplates()
{
    QStringList paths;
    for (const Row &row : kRows)
        for (int i = 0; i < 3 * 2 * 2; ++i) // every side, lift and facing
            paths.append(filled(QLatin1String(row.path), {i % 3, i / 3 % 2, i / 6, i / 6}));
    paths.removeDuplicates();
    return paths;
}

QString programTemplateRoot(const QString &programFolder)
{
    const QString beside = programFolder + QStringLiteral("/mod");
    return QDir(beside).exists() ? beside : QStringLiteral(":/palx_workstation/mod");
}

bool readProgramTemplate(const QString &path, QByteArray *text, QString *why, const QString &root)
{
    text->clear();
    if (path.isEmpty())
        return true;
    QFile file(root + path);
    const bool isRead = file.open(QIODevice::ReadOnly);
    if (isRead)
        *text = file.readAll();
    if (isRead && file.error() == QFileDevice::NoError)
        return true;
    *why = QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
    return false;
}

} // namespace palx

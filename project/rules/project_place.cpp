#include "project/rules/project_place.h"

#include "orba/module_object.h"
#include "workstation/plugin_node.h"
#include "workstation/workspace.h"

#include <QDir>
#include <QFileInfo>

namespace palx {

namespace {

const QString kNoProject = QStringLiteral("LOCALHOST/_temp");

/// Folders beside the projects that are none.
const QStringList &systemFolders()
{
    static const QStringList folders{QStringLiteral("_build"), hidden_project_name};
    return folders;
}

} // namespace

bool isProjectName(const QString &name)
{
    static const QStringList refused{QString(), QStringLiteral("_temp"), QStringLiteral("."),
                                     QStringLiteral("..")};
    const bool isOneFolder = !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
    const bool canBeStored = !name.contains(QChar::Null) && QString::fromUtf8(name.toUtf8()) == name;
    return isOneFolder && canBeStored && !refused.contains(name) && !systemFolders().contains(name);
}

QString projectFolder(const QString &name)
{
    const QString robot = robotFolder();
    return robot.isEmpty() || !isProjectName(name) ? QString() : QDir(robot).filePath(name);
}

QString projectKey(const QString &name)
{
    return name.isEmpty() ? QString() : m("nexo.r.id")->getString() + QLatin1Char('/') + name;
}

QString currentProject()
{
    return QFileInfo(m("quill.project.cur_project")->getString()).fileName();
}

QString startUpProject()
{
    return m("quill.project.autoload_prj_path")->getString().section(QLatin1Char('/'), 0, 0);
}

QStringList projectNames()
{
    const QString robot = robotFolder();
    if (robot.isEmpty())
        return QStringList();
    QStringList names = QDir(robot).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &folder : systemFolders())
        names.removeAll(folder);
    return names;
}

QString getFileName(const QString &fileName, const QString &taskName)
{
    const QString current = m("quill.project.cur_project")->getString();
    const QString file = taskName.isEmpty() ? fileName : taskName + QLatin1Char('/') + fileName;
    return QDir(m("nexo.setting.workspace")->getString())
        .filePath((current.isEmpty() ? kNoProject : current) + QLatin1Char('/') + file);
}

} // namespace palx

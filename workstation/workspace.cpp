#include "workstation/workspace.h"

#include "orba/module_object.h"

#include <QDir>

namespace palx {

QString robotFolder()
{
    const QString workspace = m("nexo.setting.workspace")->getString();
    const QString robot = m("nexo.r.id")->getString();
    if (workspace.isEmpty() || robot.isEmpty() || robot.contains(QLatin1Char('/')) ||
        robot.startsWith(QLatin1Char('.')))
        return QString();
    return QDir(workspace).filePath(robot);
}

} // namespace palx

#include "project/rules/project_messages.h"

#include "nexo/manager_helper.h"

namespace palx {

bool reportProject(const char *level, const QString &text, QObject *sender)
{
    nexo::ManagerHelper::instance()->throwLog(sender, QLatin1String(level), text);
    return false;
}

bool askAboutProject(const QString &question)
{
    return nexo::ManagerHelper::instance()->execMsgOk(ProjectText::tr("Project Manager"), question);
}

} // namespace palx

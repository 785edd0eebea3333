#include "workstation/plugin_log.h"

#include "orba/qflog.h"
#include "workstation/plugin_node.h"

#include <QDateTime>

namespace palx {

namespace {

QString stamped(const char *header)
{
    return QString::fromLatin1(header).arg(
        QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz")));
}

} // namespace

void writePluginLog(const QString &text)
{
    const orba::QFLog log(QStringLiteral("\033[35m"), stamped("[S|%1]"), QString(),
                          QStringLiteral("./log/%1").arg(getPluginName()), QStringLiteral("log"));
    log.write(text);
}

void writePluginInfo(const QString &text)
{
    orba::QFLog(QStringLiteral("\033[36m"), stamped("[I|%1]")).write(text);
}

} // namespace palx

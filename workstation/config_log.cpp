#include "workstation/config_log.h"

#include "orba/module_manager.h"

#include <QDateTime>

namespace palx {

void recordCfgLog(const QString &text, bool isError)
{
    orba::Node log{orba::Name(u"log")};
    log.ensure(u"level")->setString(isError ? QStringLiteral("error") : QStringLiteral("warning"));
    log.ensure(u"title")->setString(text);
    log.ensure(u"date_time")
        ->setString(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd/HH:mm:ss")));
    log.ensure(u"rcid")->setString(m("nexo.r.id")->getString());
    m("quill.log.current")->set(nullptr, "", QString::fromUtf8(orba::ModuleManager::toJson(log, true)));
}

} // namespace palx

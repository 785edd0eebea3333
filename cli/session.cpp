#include "session.h"

#include "orba/module_manager.h"
#include "workstation/plugin_node.h"

#include <utility>

namespace cli {

Session::Session(Pages pages, const QString &language, const QString &dataFolder)
    : host_(options(pages, language, dataFolder))
{
    QObject::connect(&host_, &host::HostSession::problemFound, &host_,
                     [](const QString &text) { say(text); });
}

Session::Session(host::SessionOptions options) : host_(completed(std::move(options)))
{
    QObject::connect(&host_, &host::HostSession::problemFound, &host_,
                     [](const QString &text) { say(text); });
}

host::SessionOptions Session::completed(host::SessionOptions options)
{
    options.language = QStringLiteral("en");
    options.touch = false;
    options.linkedPlugins = QStringList(palx::getPluginName());
    return options;
}

host::SessionOptions Session::options(Pages pages, const QString &language, const QString &dataFolder) const
{
    host::SessionOptions result = completed(host::SessionOptions());
    result.dataFolder = dataFolder;
    result.workspaceFolder = folder_.path();
    if (!language.isEmpty())
        result.language = language;
    result.pages = pages == Pages::With;
    return result;
}

bool Session::start()
{
    if (!folder_.isValid()) {
        say(QStringLiteral("cannot make a temporary folder: ") + folder_.errorString());
        return false;
    }
    if (!host_.start())
        return false;
    QObject::connect(m("quill.log.current"), &orba::ModuleObject::changed, &host_,
                     [this](const QVariant &json) { keepRecord(json); });
    return true;
}

QVector<LogRecord> Session::takeLog()
{
    return std::exchange(log_, {});
}

void Session::keepRecord(const QVariant &json)
{
    orba::Node record;
    if (orba::ModuleManager::fromJson(json.toString().toUtf8(), &record))
        log_.append({record.getString(u"level"), record.getString(u"title")});
}

} // namespace cli

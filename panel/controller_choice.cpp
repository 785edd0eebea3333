#include "panel/controller_choice.h"

#include "controller/in_process_carrier.h"
#include "controller/spawn_carrier.h"
#include "controller/tcp_carrier.h"
#include "nexo/setting_manager.h"

#include <QDir>

namespace panel {

namespace {

/// Asked when the way is made: by then the settings are read.
controller::StationOptions stationOptions(const QString &dataFolder)
{
    controller::StationOptions options;
    if (!dataFolder.isEmpty())
        options.dataFolder = QDir(dataFolder).absoluteFilePath(QStringLiteral("controller"));
    options.workspaceFolder = nexo::SettingManager::instance()->getStr(QStringLiteral("workspace"));
    return options;
}

std::unique_ptr<host::Carrier> spawn(const QString &dataFolder, const QString &programFolder)
{
    const controller::StationOptions options = stationOptions(dataFolder);
    QStringList arguments;
    if (!options.dataFolder.isEmpty())
        arguments += {QStringLiteral("--data"), options.dataFolder};
    if (!options.workspaceFolder.isEmpty())
        arguments += {QStringLiteral("--workspace"), options.workspaceFolder};
    return std::make_unique<controller::SpawnCarrier>(
        QDir(programFolder).filePath(QStringLiteral("palx_controller")), arguments);
}

bool parsePlace(const QString &text, ControllerChoice *choice)
{
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    bool isNumber = false;
    const quint16 port = text.mid(colon + 1).toUShort(&isNumber);
    if (colon <= 0 || !isNumber || port == 0)
        return false;
    *choice = {ControllerChoice::Tcp, text.left(colon), port};
    return true;
}

} // namespace

bool ControllerChoice::parse(const QString &text, ControllerChoice *choice)
{
    const struct
    {
        const char *text;
        Kind kind;
    } known[] = {{"inprocess", InProcess}, {"spawn", Spawn}, {"none", None}};
    for (const auto &each : known)
        if (text == QLatin1String(each.text)) {
            *choice = {each.kind, QString(), 0};
            return true;
        }
    return parsePlace(text, choice);
}

std::function<std::unique_ptr<host::Carrier>()>
carrierFactory(const ControllerChoice &choice, const QString &dataFolder, const QString &programFolder)
{
    switch (choice.kind) {
    case ControllerChoice::InProcess:
        return [dataFolder] {
            return std::make_unique<controller::InProcessCarrier>(
                std::make_shared<controller::Controller>(stationOptions(dataFolder)));
        };
    case ControllerChoice::Spawn:
        return [dataFolder, programFolder] { return spawn(dataFolder, programFolder); };
    case ControllerChoice::Tcp:
        return [choice] { return std::make_unique<controller::TcpCarrier>(choice.hostName, choice.port); };
    case ControllerChoice::None:
        break;
    }
    return {};
}

} // namespace panel

#include "panel/panel_options.h"

#include "nexo/setting_manager.h"
#include "panel/controller_choice.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace panel {

namespace {

const QStringList kLanguages{QStringLiteral("en"), QStringLiteral("cn"), QStringLiteral("ru"),
                             QStringLiteral("jp"), QStringLiteral("kr")};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(panel::Options)
};

struct OptionText
{
    const char *name;
    const char *description;
    const char *value; ///< null for a switch
};

constexpr OptionText kOptions[] = {
    {"data", QT_TRANSLATE_NOOP("panel::Options", "Folder of the stored data, settings and logs."), "FOLDER"},
    {"workspace", QT_TRANSLATE_NOOP("panel::Options", "Controller workspace."), "FOLDER"},
    {"language", QT_TRANSLATE_NOOP("panel::Options", "en, cn, ru, jp or kr."), "LANGUAGE"},
    {"touch", QT_TRANSLATE_NOOP("panel::Options", "Fields that are touched open a keypad or keyboard."),
     nullptr},
    {"plugin", QT_TRANSLATE_NOOP("panel::Options", "Plug-in library to load; may be given several times."),
     "FILE"},
    {"examples",
     QT_TRANSLATE_NOOP("panel::Options",
                       "Recipes (file or folder) for an empty store; may be given several times."),
     "PATH"},
    {"controller",
     QT_TRANSLATE_NOOP("panel::Options",
                       "Robot controller: inprocess (simulated, the default), spawn (simulated, in a "
                       "process of its own), HOST:PORT or none."),
     "WHERE"},
};

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(Text::tr("Desktop panel of the palletizing workstation."));
    parser->addHelpOption();
    parser->addVersionOption();
    for (const OptionText &option : kOptions)
        parser->addOption({QLatin1String(option.name), Text::tr(option.description),
                           option.value ? QLatin1String(option.value) : QString()});
}

/// The files of a folder in the order of their names; a file stands for itself.
QStringList filesOf(const QString &path, const QStringList &patterns)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    for (const QString &name : QDir(path).entryList(patterns, QDir::Files, QDir::Name))
        files.append(QDir(path).filePath(name));
    return files;
}

QString defaultDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

host::SessionOptions sessionOptions(const QCommandLineParser &parser, const QString &programFolder)
{
    host::SessionOptions options;
    options.dataFolder = parser.value(QStringLiteral("data"));
    if (options.dataFolder.isEmpty()) // the environment may name one
        options.dataFolder =
            nexo::SettingManager::instance()->getStr(QStringLiteral("data"), defaultDataFolder());
    options.workspaceFolder = parser.value(QStringLiteral("workspace"));
    options.language = parser.value(QStringLiteral("language"));
    if (parser.isSet(QStringLiteral("touch")))
        options.touch = true;
    options.pluginFiles = parser.values(QStringLiteral("plugin"));
    if (options.pluginFiles.isEmpty())
        options.pluginFiles = filesOf(QDir::cleanPath(programFolder + QStringLiteral("/../plugins")),
                                      {QStringLiteral("lib*.so")});
    for (const QString &path : parser.values(QStringLiteral("examples")))
        options.examples += filesOf(path, {QStringLiteral("*.xml"), QStringLiteral("*.json")});
    return options;
}

/// False when "--controller" names none.
bool chooseController(const QCommandLineParser &parser, const QString &programFolder,
                      host::SessionOptions *options)
{
    ControllerChoice choice;
    if (parser.isSet(QStringLiteral("controller")) &&
        !ControllerChoice::parse(parser.value(QStringLiteral("controller")), &choice))
        return false;
    options->carrier = carrierFactory(choice, options->dataFolder, programFolder);
    return true;
}

QString refusalOf(const QCommandLineParser &parser, const QString &language, bool isControllerKnown)
{
    if (!parser.positionalArguments().isEmpty())
        return Text::tr("Unknown argument \"%1\".").arg(parser.positionalArguments().constFirst());
    if (!language.isEmpty() && !kLanguages.contains(language))
        return Text::tr("Unknown language \"%1\"; there are %2.")
            .arg(language, kLanguages.join(QStringLiteral(", ")));
    if (!isControllerKnown)
        return Text::tr("Unknown controller \"%1\"; there are inprocess, spawn, none and HOST:PORT.")
            .arg(parser.value(QStringLiteral("controller")));
    return {};
}

} // namespace

PanelOptions parseOptions(const QStringList &arguments, const QString &programFolder)
{
    QCommandLineParser parser;
    addOptions(&parser);
    PanelOptions options;
    if (!parser.parse(arguments)) {
        options.refusal = parser.errorText();
        return options;
    }
    options.helpText = parser.helpText();
    options.wantsHelp = parser.isSet(QStringLiteral("help"));
    options.wantsVersion = parser.isSet(QStringLiteral("version"));
    options.session = sessionOptions(parser, programFolder);
    const bool isControllerKnown = chooseController(parser, programFolder, &options.session);
    options.refusal = refusalOf(parser, options.session.language, isControllerKnown);
    return options;
}

} // namespace panel

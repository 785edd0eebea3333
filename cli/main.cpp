// The command line of the palletizing workstation; docs/command-line.md says what each command does.

#include "demo.h"
#include "exchange_options.h"
#include "layout_options.h"
#include "project_options.h"
#include "recipe_commands.h"
#include "render.h"
#include "screenshots.h"
#include "simulate_options.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QTextCodec>

#include <cstdio>
#include <exception>
#include <functional>
#include <limits>
#include <memory>

namespace {

/// The arguments as the parser fills them, and the command that they chose.
struct Arguments
{
    std::string file, stack, format, language = "en", size = "1280x800", output, examples = PALX_EXAMPLES;
    int layer = 0;
    int pieces = 0;
    double turn = 0;
    bool drawsPictures = false; ///< needs an application with fonts and widgets
    std::function<int()> command;
};

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

/// "1280x800"
QSize sizeOf(const std::string &value)
{
    const QStringList sides = text(value).split(QLatin1Char('x'));
    bool isWidth = false;
    bool isHeight = false;
    const int width = sides.value(0).toInt(&isWidth);
    const int height = sides.value(1).toInt(&isHeight);
    return sides.size() == 2 && isWidth && isHeight ? QSize(width, height) : QSize();
}

void addSize(CLI::App *command, Arguments &arguments)
{
    const auto check = [](const std::string &value) -> std::string {
        const QSize size = sizeOf(value);
        const bool usable = qMin(size.width(), size.height()) >= cli::kMinPicture &&
                            qMax(size.width(), size.height()) <= cli::kMaxPicture;
        return usable ? std::string()
                      : QStringLiteral("a size is WIDTHxHEIGHT with %1 to %2 pixels on each side")
                            .arg(cli::kMinPicture)
                            .arg(cli::kMaxPicture)
                            .toStdString();
    };
    command->add_option("--size", arguments.size, "WIDTHxHEIGHT in pixels")
        ->check(check)
        ->capture_default_str();
}

void addFile(CLI::App *command, Arguments &arguments)
{
    command->add_option("FILE", arguments.file, "recipe XML, or the JSON of a whole plugin node")->required();
    command->add_option("--stack", arguments.stack, "only the recipe of this name");
}

void addExamples(CLI::App *command, Arguments &arguments)
{
    command->add_option("--examples", arguments.examples, "folder of the example recipes");
}

void addRecipeCommand(CLI::App &app, Arguments &arguments, const char *name, const char *help,
                      int (*run)(const cli::RecipeRequest &))
{
    CLI::App *command = app.add_subcommand(name, help);
    addFile(command, arguments);
    command
        ->add_option("--format", arguments.format,
                     "json or table; otherwise table on a terminal and json elsewhere")
        ->check(CLI::IsMember({"json", "table"}));
    command->callback([&arguments, run] {
        const bool json =
            arguments.format.empty() ? !cli::resultGoesToTerminal() : arguments.format == "json";
        const cli::RecipeRequest request{text(arguments.file), text(arguments.stack),
                                         json ? cli::Output::Json : cli::Output::Table};
        arguments.command = [request, run] { return run(request); };
    });
}

/// The pallet has no layer 0, and a layer below it is a slip of the hand.
const CLI::Range kLayers(1, std::numeric_limits<int>::max());

void addRender(CLI::App &app, Arguments &arguments)
{
    CLI::App *command = app.add_subcommand("render", "draw a layer's plan, or the whole stack, as a PNG");
    addFile(command, arguments);
    CLI::Option *layer =
        command->add_option("--layer", arguments.layer, "plan of this layer, from 1 at the pallet")
            ->check(kLayers);
    command->add_option("--turn", arguments.turn, "the stack turned clockwise by so many degrees")
        ->check(CLI::Range(-360.0, 360.0))
        ->excludes(layer);
    CLI::Option *pieces = command
                              ->add_option("--pieces", arguments.pieces,
                                           "the stack with only the first products and sheets laid")
                              ->check(CLI::Range(0, std::numeric_limits<int>::max()))
                              ->excludes(layer);
    command->add_option("-o,--output", arguments.output, "PNG file")->required();
    addSize(command, arguments);
    command->callback([&arguments, layer, pieces] {
        cli::RenderOptions options;
        options.file = text(arguments.file);
        options.stack = text(arguments.stack);
        if (layer->count() > 0)
            options.layer = arguments.layer;
        if (pieces->count() > 0)
            options.pieces = arguments.pieces;
        options.turn = arguments.turn;
        options.output = text(arguments.output);
        options.size = sizeOf(arguments.size);
        arguments.drawsPictures = true;
        arguments.command = [options] { return cli::runRender(options); };
    });
}

void addScreenshots(CLI::App &app, Arguments &arguments)
{
    CLI::App *command =
        app.add_subcommand("screenshots", "write every page and dialog of the panel as a PNG");
    command->add_option("-o,--output", arguments.output, "folder")->required();
    command->add_option("--language", arguments.language, "en, cn, ru, jp or kr")
        ->check(CLI::IsMember({"en", "cn", "ru", "jp", "kr"}))
        ->capture_default_str();
    addSize(command, arguments);
    addExamples(command, arguments);
    command->callback([&arguments] {
        const cli::ScreenshotRequest request{text(arguments.output), text(arguments.language),
                                             sizeOf(arguments.size), text(arguments.examples)};
        arguments.drawsPictures = true;
        arguments.command = [request] { return cli::runScreenshots(request); };
    });
}

void addDemo(CLI::App &app, Arguments &arguments)
{
    CLI::App *command = app.add_subcommand("demo", "the whole path on the examples, with pictures");
    command->add_option("-o,--output", arguments.output, "folder of the pictures; build/demo unless given");
    addExamples(command, arguments);
    command->callback([&arguments] {
        const QString folder =
            arguments.output.empty() ? QStringLiteral("build/demo") : text(arguments.output);
        const QString examples = text(arguments.examples);
        arguments.drawsPictures = true;
        arguments.command = [folder, examples] { return cli::runDemo(folder, examples); };
    });
}

/// Qt's own messages as lines of ours, without those that say nothing to whoever runs a command.
void showQtMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const bool idle = message.startsWith(QLatin1String("This plugin does not support")) ||
                      message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
    if (type != QtDebugMsg && type != QtInfoMsg && !idle)
        cli::say(message);
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv, bool drawsPictures)
{
    if (!drawsPictures)
        return std::make_unique<QCoreApplication>(argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

int run(int argc, char **argv)
{
    // File names and recipe names are UTF-8, also where the locale is not set.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    qInstallMessageHandler(&showQtMessage);
    Arguments arguments;
    CLI::App app("Command line of the palletizing workstation.", "palx");
    app.set_version_flag("--version", PALX_VERSION);
    app.require_subcommand(1);
    addRecipeCommand(app, arguments, "points", "make all points of recipes anew and print them",
                     &cli::runPoints);
    addRecipeCommand(app, arguments, "check", "check recipes; print repairs, refusals and warnings",
                     &cli::runCheck);
    cli::addProjectCommands(app, &arguments.command);
    cli::addExchangeCommands(app, &arguments.command);
    cli::addLayoutCommands(app, &arguments.command);
    cli::addSimulateCommand(app, &arguments.command);
    addRender(app, arguments);
    addScreenshots(app, arguments);
    addDemo(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? cli::kDone : cli::kWrongUsage;
    }
    const auto application = makeApplication(argc, argv, arguments.drawsPictures);
    return arguments.command();
}

} // namespace

int main(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception &error) { // memory that is used up, above all
        std::fprintf(stderr, "palx: %s\n", error.what());
        return cli::kRefused;
    }
}

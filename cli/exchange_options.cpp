#include "exchange_options.h"

#include "exchange_command.h"
#include "place_options.h"

#include <map>
#include <memory>

namespace cli {
namespace {

using palx::RecipeClash;

const std::map<std::string, RecipeClash> kClashes{
    {"rename", RecipeClash::Rename}, {"replace", RecipeClash::Replace}, {"discard", RecipeClash::Discard}};

struct Arguments
{
    std::string file;
    std::vector<std::string> names;
    RecipeClash onClash = RecipeClash::Rename;
    PlaceArguments place;
};

void addExport(CLI::App &app, std::function<int()> *command)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App *sub = app.add_subcommand("export", "write recipes of a panel to an exchange file");
    sub->add_option("NAME", arguments->names, "recipes; all unless given");
    sub->add_option("-o,--output", arguments->file, "exchange file; replaced when it is there")->required();
    addPlaces(sub, &arguments->place);
    sub->callback([command, arguments] {
        ExportRequest request{arguments->place.places(), QString::fromStdString(arguments->file),
                              QStringList(), arguments->place.output()};
        for (const std::string &name : arguments->names)
            request.names.append(QString::fromStdString(name));
        *command = [request] { return runExport(request); };
    });
}

void addImport(CLI::App &app, std::function<int()> *command)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App *sub =
        app.add_subcommand("import", "merge the recipes of an exchange file into those of a panel");
    sub->add_option("FILE", arguments->file, "exchange file")->required();
    sub->add_option("--on-clash", arguments->onClash, "what to do with a recipe whose name is taken")
        ->transform(CLI::CheckedTransformer(kClashes))
        ->default_str("rename");
    addPlaces(sub, &arguments->place);
    sub->callback([command, arguments] {
        const ImportRequest request{arguments->place.places(), QString::fromStdString(arguments->file),
                                    arguments->onClash, arguments->place.output()};
        *command = [request] { return runImport(request); };
    });
}

} // namespace

void addExchangeCommands(CLI::App &app, std::function<int()> *command)
{
    addExport(app, command);
    addImport(app, command);
}

} // namespace cli

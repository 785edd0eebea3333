#include "project_options.h"

#include "place_options.h"
#include "project_command.h"

#include <memory>

namespace cli {
namespace {

using What = ProjectRequest::What;

/// Options as the parser fills them; shared by the commands, of which one runs.
struct Arguments
{
    std::string name, newName, source;
    std::string onClash = "rename", target;
    std::vector<std::string> files;
    bool hasTemplates = false;
    std::string scheme, type, sucker, lift, clapboard, leftRecipe, rightRecipe;
    PlaceArguments place;
};

/// An option whose words stand for 0, 1, ...
struct Words
{
    const char *option;
    std::string Arguments::*value;
    const char *key;
    std::vector<std::string> words;
    const char *help;
};

const std::vector<Words> &allWords()
{
    static const std::vector<Words> all{
        {"--scheme",
         &Arguments::scheme,
         "scheme_layout",
         {"left", "right", "both", "double"},
         "lines and sides"},
        {"--type",
         &Arguments::type,
         "palletizing_type",
         {"palletizing", "depalletizing"},
         "kept, selects nothing"},
        {"--sucker", &Arguments::sucker, "type_of_sucker", {"single", "double"}, "kept, selects nothing"},
        {"--lift", &Arguments::lift, "bollard", {"yes", "no"}, "whether the cell has a lift column"},
        {"--clapboard", &Arguments::clapboard, "clapboard", {"yes", "no"}, "kept, selects nothing"},
    };
    return all;
}

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

ProjectRequest requestOf(What what, const Arguments &arguments)
{
    ProjectRequest request;
    request.what = what;
    request.name = text(arguments.name);
    request.newName = text(arguments.newName);
    request.source = text(arguments.source);
    request.places = arguments.place.places();
    for (const std::string &file : arguments.files)
        request.files.append(text(file));
    request.isReplacing = arguments.onClash == "replace";
    request.hasTemplates = arguments.hasTemplates;
    request.targetFolder = text(arguments.target);
    for (const Words &each : allWords()) {
        const std::string &word = arguments.*each.value;
        const auto found = std::find(each.words.begin(), each.words.end(), word);
        if (found != each.words.end())
            request.parameters.insert(QLatin1String(each.key), int(found - each.words.begin()));
    }
    if (!arguments.leftRecipe.empty())
        request.recipes.insert(QStringLiteral("left_stack_recipe"), text(arguments.leftRecipe));
    if (!arguments.rightRecipe.empty())
        request.recipes.insert(QStringLiteral("right_stack_recipe"), text(arguments.rightRecipe));
    request.output = arguments.place.output();
    return request;
}

void addParameters(CLI::App *command, Arguments *arguments)
{
    for (const Words &each : allWords())
        command->add_option(each.option, arguments->*each.value, each.help)->check(CLI::IsMember(each.words));
    command->add_option("--left-recipe", arguments->leftRecipe, "name of the left pallet's recipe");
    command->add_option("--right-recipe", arguments->rightRecipe, "name of the right pallet's recipe");
}

void addImport(CLI::App *command, Arguments *arguments)
{
    command->add_option("FILE", arguments->files, "project archives (zip)")->required();
    command
        ->add_option(
            "--on-clash", arguments->onClash,
            "what happens when there is a project of that name: rename the imported one, or replace it")
        ->check(CLI::IsMember({"rename", "replace"}))
        ->capture_default_str();
}

void addExport(CLI::App *command, Arguments *arguments)
{
    command->add_option("NAME", arguments->files, "projects");
    command->add_flag("--templates", arguments->hasTemplates, "the program templates, too, as mod.zip");
    command->add_option("-o,--output", arguments->target, "folder for the archives; made when missing")
        ->required();
}

} // namespace

void addProjectCommands(CLI::App &app, std::function<int()> *command)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App *project = app.add_subcommand("project", "robot projects: list, make, edit, delete, switch");
    project->require_subcommand(1);
    const struct
    {
        const char *name;
        const char *help;
        What what;
        bool hasName, needsName, hasParameters;
    } commands[] = {
        {"list", "print all projects", What::List, false, false, false},
        {"create", "make a project and switch to it", What::Create, true, true, true},
        {"edit", "make a project anew with other parameters, and switch to it", What::Edit, true, true, true},
        {"delete", "delete a project", What::Delete, true, true, false},
        {"switch", "switch to a project; without NAME to none", What::Switch, true, false, false},
        {"start-up", "have the controller load a project when it starts; without NAME none", What::StartUp,
         true, false, false},
        {"import", "make projects from archives", What::Import, false, false, false},
        {"export", "write an archive NAME.zip for each project", What::Export, false, false, false},
    };
    for (const auto &each : commands) {
        CLI::App *sub = project->add_subcommand(each.name, each.help);
        if (each.hasName)
            sub->add_option("NAME", arguments->name, "project")->required(each.needsName);
        if (each.what == What::Create)
            sub->add_option("--clone", arguments->source, "copy the files of this project");
        if (each.what == What::Edit)
            sub->add_option("--rename", arguments->newName, "new name");
        if (each.what == What::Import)
            addImport(sub, arguments.get());
        if (each.what == What::Export)
            addExport(sub, arguments.get());
        if (each.hasParameters)
            addParameters(sub, arguments.get());
        addPlaces(sub, &arguments->place);
        sub->callback([command, arguments, what = each.what] {
            const ProjectRequest request = requestOf(what, *arguments);
            *command = [request] { return runProject(request); };
        });
    }
}

} // namespace cli

#include "place_options.h"

namespace cli {

PanelPlaces PlaceArguments::places() const
{
    return {QString::fromStdString(data), QString::fromStdString(workspace),
            QString::fromStdString(controller)};
}

void addFormat(CLI::App *command, std::string *format)
{
    command
        ->add_option("--format", *format, "json or table; otherwise table on a terminal and json elsewhere")
        ->check(CLI::IsMember({"json", "table"}));
}

Output outputOf(const std::string &format)
{
    const bool json = format.empty() ? !resultGoesToTerminal() : format == "json";
    return json ? Output::Json : Output::Table;
}

void addPlaces(CLI::App *command, PlaceArguments *arguments)
{
    command->add_option("--data", arguments->data, "the panel's data; made when missing")->required();
    command->add_option("--workspace", arguments->workspace,
                        "the controller workspace; as the panel's settings say unless given");
    command->add_option("--controller", arguments->controller, "inprocess, spawn, none or HOST:PORT")
        ->capture_default_str();
    addFormat(command, &arguments->format);
}

} // namespace cli

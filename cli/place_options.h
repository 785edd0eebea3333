#pragma once

#include "panel_data.h"
#include "recipe_commands.h"

#include <CLI/CLI.hpp>

#include <string>

namespace cli {

void addFormat(CLI::App *command, std::string *format);
Output outputOf(const std::string &format);

/// Where a command finds a panel's data, and how it prints, as the parser fills it.
struct PlaceArguments
{
    std::string data, workspace, controller = "inprocess", format;

    PanelPlaces places() const;
    Output output() const { return outputOf(format); }
};

void addPlaces(CLI::App *command, PlaceArguments *arguments);

} // namespace cli

#include "simulate_options.h"

#include "simulate.h"

#include <limits>
#include <memory>

namespace cli {
namespace {

/// Options as the parser fills them.
struct Arguments
{
    std::string file, stack, format, scheme, trace;
    std::vector<std::string> faults;
    bool withLift = false;
    int seed = 1;
};

QString text(const std::string &value)
{
    return QString::fromStdString(value);
}

/// Why a text names no fault; empty when it does.
std::string whyNoFault(const std::string &value)
{
    PlannedFault fault;
    QString why;
    readFault(text(value), &fault, &why);
    return why.toStdString();
}

SimulateRequest requestOf(const Arguments &arguments)
{
    SimulateRequest request;
    const bool json = arguments.format.empty() ? !resultGoesToTerminal() : arguments.format == "json";
    request.recipes = {text(arguments.file), text(arguments.stack), json ? Output::Json : Output::Table};
    request.scheme = text(arguments.scheme);
    request.withLift = arguments.withLift;
    request.traceFile = text(arguments.trace);
    request.seed = arguments.seed;
    for (const std::string &each : arguments.faults) {
        PlannedFault fault;
        QString why;
        readFault(text(each), &fault, &why); // checked while parsing
        request.faults.append(fault);
    }
    return request;
}

} // namespace

void addSimulateCommand(CLI::App &app, std::function<int()> *command)
{
    const auto arguments = std::make_shared<Arguments>();
    CLI::App *simulate = app.add_subcommand("simulate", "fill the pallets in the simulated cell");
    simulate->add_option("FILE", arguments->file, "recipe XML, or the JSON of a whole plugin node")
        ->required();
    simulate->add_option("--stack", arguments->stack, "only the recipe of this name");
    simulate->add_option("--format", arguments->format, "json or table; otherwise table on a terminal")
        ->check(CLI::IsMember({"json", "table"}));
    simulate
        ->add_option("--scheme", arguments->scheme,
                     "left, right or both; the sides that have recipes unless given")
        ->check(CLI::IsMember({"left", "right", "both"}));
    simulate->add_flag("--lift", arguments->withLift, "the robot stands on a lift column");
    simulate->add_option("--fault", arguments->faults, "NAME@SECONDS: a fault at a simulated time")
        ->check(whyNoFault);
    simulate->add_option("--trace", arguments->trace, "file for everything that happens, a line each");
    simulate->add_option("--seed", arguments->seed, "of the distances between products on the conveyor")
        ->check(CLI::Range(0, std::numeric_limits<int>::max()))
        ->capture_default_str();
    simulate->callback([arguments, command] {
        const SimulateRequest request = requestOf(*arguments);
        *command = [request] { return runSimulate(request); };
    });
}

} // namespace cli

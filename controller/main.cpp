#include "controller/tcp_server.h"
#include "controller/texts.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QDir>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

using controller::Texts;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct ProgramOptions
{
    std::uint16_t port = 0;
    std::string data;
    std::string workspace;
    std::string id;
    std::string version = "2.3.0";
    double speed = 1;
    bool stopsWithInput = false;
};

/// -1 to go on, else what to return.
int readOptions(int argc, char **argv, ProgramOptions *options)
{
    CLI::App app("Simulated robot controller: serves one panel over TCP on this machine.", "palx_controller");
    app.add_option("--port", options->port, "Port to listen on; 0 picks a free one")->capture_default_str();
    app.add_option("--data", options->data,
                   "Folder for recipes, projects and variables; without it nothing is kept");
    app.add_option(
        "--workspace", options->workspace,
        "Controller workspace with the project folders; \"workspace\" in the data folder by default");
    app.add_option("--id", options->id, "Robot id; by default the one that is kept, SIM-0001 at first");
    app.add_option("--version", options->version, "Software version to tell the panel")
        ->capture_default_str();
    app.add_option("--speed", options->speed, "Simulated seconds per second")
        ->check(CLI::Range(0.01, 1000.0))
        ->capture_default_str();
    app.add_flag("--stop-with-input", options->stopsWithInput,
                 "End when standard input ends, as it does when the program that started this one dies");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    return -1;
}

controller::StationOptions stationOptions(const ProgramOptions &options)
{
    controller::StationOptions station;
    station.version = QString::fromStdString(options.version);
    station.id = QString::fromStdString(options.id);
    station.dataFolder = QString::fromStdString(options.data);
    station.workspaceFolder = QString::fromStdString(options.workspace);
    if (station.workspaceFolder.isEmpty() && !station.dataFolder.isEmpty())
        station.workspaceFolder = QDir(station.dataFolder).filePath(QStringLiteral("workspace"));
    station.speed = options.speed;
    return station;
}

// ---------------------------------------------------------------- ending

int endPipe[2]; ///< a signal may do nothing but write a byte

void onSignal(int)
{
    const ssize_t written = ::write(endPipe[1], "", 1);
    static_cast<void>(written); // a full pipe means that the end was asked for already
}

bool catchSignals()
{
    if (::pipe(endPipe) != 0)
        return false;
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    return ::sigaction(SIGTERM, &action, nullptr) == 0 && ::sigaction(SIGINT, &action, nullptr) == 0;
}

void endWithInput(QSocketNotifier *input)
{
    char bytes[256];
    if (::read(STDIN_FILENO, bytes, sizeof bytes) > 0)
        return; // nobody reads what is typed
    input->setEnabled(false);
    QCoreApplication::quit();
}

int fail(const QString &why)
{
    std::fprintf(stderr, "palx_controller: %s\n", qUtf8Printable(why));
    return kFailed;
}

int serve(const ProgramOptions &options)
{
    controller::Controller controller(stationOptions(options));
    for (const QString &report : controller.reports())
        std::fprintf(stderr, "palx_controller: %s\n", qUtf8Printable(report));
    if (!options.data.empty() && !controller.keepsState())
        return kFailed; // told above
    controller::TcpServer server(&controller);
    QString why;
    if (!server.listen(options.port, &why))
        return fail(why);
    std::printf("listening on 127.0.0.1:%d\n", server.port());
    std::fflush(stdout);
    return QCoreApplication::exec();
}

int run(int argc, char **argv)
{
    ProgramOptions options;
    const int code = readOptions(argc, argv, &options);
    if (code >= 0)
        return code;
    QCoreApplication application(argc, argv);
    if (!catchSignals())
        return fail(Texts::tr("signals cannot be caught"));
    QSocketNotifier end(endPipe[0], QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    input.setEnabled(options.stopsWithInput);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&input] { endWithInput(&input); });
    return serve(options);
}

} // namespace

int main(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception &error) { // memory or threads have run out
        std::fprintf(stderr, "palx_controller: %s\n", error.what());
        return kFailed;
    }
}

// The way to the controller: all recipes at once over both carriers, beside a copy of the same bytes and a bare parse of
// them; ten thousand pushes and what they leave in memory; the longest time that a page waits when the way is bad.

#include "controller/faulty_carrier.h"
#include "controller/in_process_carrier.h"
#include "controller/tcp_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "link/frame.h"
#include "orba/module_manager.h"
#include "xservice.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>

using orba::Name;
using orba::Node;

namespace {

constexpr int kRecipes = 50;
constexpr int kProducts = 500;
constexpr int kLayers = 10;
constexpr int kBoundMs = 60000;

[[noreturn]] void giveUp(const QString &why)
{
    std::fprintf(stderr, "controller_bench: %s\n", qUtf8Printable(why));
    std::exit(1);
}

double millisecondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// ---------------------------------------------------------------- recipes

void fillPoint(Node *point, int seed)
{
    const double trans[] = {std::sin(seed * 0.37) * 1.6, std::cos(seed * 0.11) * 1.6, 0.15 + seed % 7 * 0.2};
    const double rot[] = {3.141592653589793, 0, seed % 2 * 1.5707963267948966};
    const double zeros[8] = {};
    point->ensureChild(Name(u"trans"))->setDoubles(trans, 3);
    point->ensureChild(Name(u"rot"))->setDoubles(rot, 3);
    point->ensureChild(Name(u"near"))->setDoubles(zeros, 6);
    point->ensureChild(Name(u"conf"))->setDoubles(zeros, 8);
}

void fillRecipe(Node *recipe, const QString &name, int layers, int productsPerLayer)
{
    recipe->ensure(u"name")->setString(name);
    recipe->ensure(u"layers")->reset(Node::Kind::List);
    Node *put = recipe->ensure(u"points.put");
    put->reset(Node::Kind::List);
    int seed = 0;
    for (int i = 0; i < layers; ++i) {
        Node *layer = put->add();
        layer->reset(Node::Kind::List);
        for (int k = 0; k < productsPerLayer; ++k) {
            Node *product = layer->add();
            for (const char16_t *key :
                 {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"})
                fillPoint(product->ensure(key), seed++);
        }
    }
}

Node &allRecipes()
{
    static Node *list = [] {
        auto *made = new Node;
        made->reset(Node::Kind::List);
        for (int i = 0; i < kRecipes; ++i)
            fillRecipe(made->add(), QStringLiteral("Recipe %1").arg(i), kLayers, kProducts / kLayers);
        return made;
    }();
    return *list;
}

/// Every recipe differs from what the controller has.
void changeAll(int round)
{
    for (int i = 0; i < kRecipes; ++i)
        allRecipes().at(i)->find(u"points.put.#0.#0.put_p.trans")->setNumber(2, round + 1.5);
}

// ---------------------------------------------------------------- ways

class Program
{
public:
    Program()
    {
        process_.start(QCoreApplication::applicationDirPath() + QStringLiteral("/palx_controller"),
                       {QStringLiteral("--stop-with-input"), QStringLiteral("--data"), folder_.path()});
        if (!process_.waitForReadyRead(kBoundMs))
            giveUp(QStringLiteral("palx_controller does not start"));
        port_ = process_.readLine().trimmed().split(':').last().toUShort();
    }
    ~Program()
    {
        process_.closeWriteChannel();
        process_.waitForFinished(kBoundMs);
    }
    std::unique_ptr<host::Carrier> carrier() const
    {
        return std::make_unique<controller::TcpCarrier>(QStringLiteral("127.0.0.1"), port_);
    }
    qint64 processId() const { return process_.processId(); }

private:
    QTemporaryDir folder_;
    QProcess process_;
    quint16 port_ = 0;
};

enum WayKind { InProcess, Tcp };

/// A controller and the panel's link to it.
class Bench
{
public:
    explicit Bench(WayKind kind, const controller::Faults *faults = nullptr)
    {
        if (!host::buildGlobalNodes())
            giveUp(QStringLiteral("no global nodes"));
        std::unique_ptr<host::Carrier> carrier = kind == Tcp ? makeProgram() : makeThread();
        if (faults) {
            auto bad = std::make_unique<controller::FaultyCarrier>(std::move(carrier));
            faulty = bad.get();
            carrier = std::move(bad);
        }
        link = std::make_unique<host::ControllerLink>(std::move(carrier));
        link->open();
        if (!waitFor([this] { return link->isConnected(); }))
            giveUp(QStringLiteral("no connection"));
        if (faults)
            faulty->setFaults(*faults);
    }
    ~Bench()
    {
        link.reset();
        host::removeGlobalNodes();
    }
    static bool waitFor(const std::function<bool()> &condition)
    {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < kBoundMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
        return condition();
    }

    std::unique_ptr<Program> program;
    std::unique_ptr<host::ControllerLink> link;
    controller::FaultyCarrier *faulty = nullptr;

private:
    std::unique_ptr<host::Carrier> makeProgram()
    {
        program = std::make_unique<Program>();
        return program->carrier();
    }
    std::unique_ptr<host::Carrier> makeThread()
    {
        controller::StationOptions options;
        options.dataFolder = folder_.path();
        return std::make_unique<controller::InProcessCarrier>(
            std::make_shared<controller::Controller>(options));
    }
    QTemporaryDir folder_;
};

// ---------------------------------------------------------------- all recipes at once

/// What the machine could do at best: copying the frame, and parsing it without keeping anything.
void countFloor(benchmark::State &state, double ms)
{
    host::LinkMessage message;
    message.kind = host::LinkMessage::Kind::Request;
    message.name = QStringLiteral("pallet.data");
    const std::string frame = host::encodeFrame(message, allRecipes());
    std::string copy(frame.size(), 'x');
    double copyMs = 1e9;
    double parseMs = 1e9;
    for (int i = 0; i < 3; ++i) {
        copyMs =
            std::min(copyMs, millisecondsOf([&] { std::memcpy(copy.data(), frame.data(), frame.size()); }));
        benchmark::DoNotOptimize(copy);
        parseMs = std::min(
            parseMs, millisecondsOf([&frame] {
                rapidjson::MemoryStream stream(frame.data() + host::kFrameHeaderBytes,
                                               frame.size() - host::kFrameHeaderBytes);
                rapidjson::BaseReaderHandler<> nothing;
                rapidjson::Reader reader;
                benchmark::DoNotOptimize(
                    reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag>(
                        stream, nothing));
            }));
    }
    state.counters["MB"] = static_cast<double>(frame.size()) / 1e6;
    state.counters["copy_ms"] = copyMs;
    state.counters["parse_ms"] = parseMs;
    state.counters["per_copy"] = ms / copyMs;
    state.counters["per_parse"] = ms / parseMs;
}

void pushAll(benchmark::State &state)
{
    Bench bench(static_cast<WayKind>(state.range(0)));
    int round = 0;
    double sum = 0;
    double longest = 0;
    double shortest = 1e9;
    for (auto _ : state) {
        changeAll(++round);
        const double ms = millisecondsOf([] {
            const XReply reply =
                xservice()->set(nullptr, QStringLiteral("pallet.data"), allRecipes(), kBoundMs);
            if (!reply.isOk())
                giveUp(reply.error);
        });
        state.SetIterationTime(ms / 1000);
        sum += ms;
        longest = std::max(longest, ms);
        shortest = std::min(shortest, ms);
    }
    state.counters["longest_ms"] = longest;
    state.counters["shortest_ms"] = shortest;
    countFloor(state, sum / static_cast<double>(state.iterations()));
}

// ---------------------------------------------------------------- many pushes

double residentMb(qint64 processId)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(processId));
    if (!status.open(QIODevice::ReadOnly))
        giveUp(status.errorString());
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

void pushOne(benchmark::State &state)
{
    constexpr int kPushes = 10000;
    Node recipe;
    fillRecipe(&recipe, QStringLiteral("A"), 2, 5);
    for (auto _ : state) {
        Bench bench(Tcp);
        const qint64 processes[] = {bench.program->processId(), QCoreApplication::applicationPid()};
        double before[2] = {0, 0};
        for (int i = 1; i <= kPushes; ++i) {
            recipe.find(u"points.put.#0.#0.put_p.trans")->setNumber(2, i * 0.001);
            if (!xservice()->set(nullptr, QStringLiteral("pallet.set.one"), recipe, kBoundMs).isOk())
                giveUp(QStringLiteral("push %1 failed").arg(i));
            for (int k = 0; i == 1000 && k < 2; ++k)
                before[k] = residentMb(processes[k]);
        }
        const XReply info = xservice()->get(nullptr, QStringLiteral("link.info"), kBoundMs);
        state.counters["taken"] = static_cast<double>(info.value.getInt(u"requests"));
        state.counters["controller_growth_MB"] = residentMb(processes[0]) - before[0];
        state.counters["panel_growth_MB"] = residentMb(processes[1]) - before[1];
    }
    state.counters["pushes"] = kPushes;
    state.SetItemsProcessed(state.iterations() * kPushes);
}

// ---------------------------------------------------------------- bad ways

controller::Faults faultsOf(int kind)
{
    controller::Faults faults;
    faults.delay = std::chrono::milliseconds(kind == 0 ? 100 : 0);
    faults.jitter = std::chrono::milliseconds(kind == 0 ? 100 : 0);
    faults.dropEvery = kind == 1 ? 3 : 0;
    faults.cutEvery = kind == 2 ? 4 : 0;
    return faults;
}

/// A page that asks the controller again and again; what counts is how long no event was handled.
void askOnABadWay(benchmark::State &state)
{
    constexpr int kRequests = 30;
    constexpr int kTimeoutMs = 300;
    const controller::Faults faults = faultsOf(static_cast<int>(state.range(1)));
    for (auto _ : state) {
        Bench bench(static_cast<WayKind>(state.range(0)), &faults);
        QElapsedTimer sinceEvent;
        qint64 longestGap = 0;
        int done = 0;
        QTimer pulse;
        QObject::connect(&pulse, &QTimer::timeout,
                         [&] { longestGap = std::max(longestGap, sinceEvent.restart()); });
        QTimer asking;
        int asked = 0;
        QObject::connect(&asking, &QTimer::timeout, [&] {
            ++asked;
            done += xservice()->get(nullptr, QStringLiteral("link.info"), kTimeoutMs).isOk() ? 1 : 0;
            if (bench.faulty->isCut())
                bench.faulty->restore();
        });
        sinceEvent.start();
        pulse.start(1);
        asking.start(20);
        Bench::waitFor([&] { return asked >= kRequests; });
        state.counters["longest_gap_ms"] = static_cast<double>(longestGap);
        state.counters["timeout_ms"] = kTimeoutMs;
        state.counters["answered"] = done;
        state.counters["asked"] = asked;
    }
}

BENCHMARK(pushAll)
    ->ArgName("tcp")
    ->Arg(InProcess)
    ->Arg(Tcp)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK(pushOne)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(askOnABadWay)
    ->ArgNames({"tcp", "slow0_drop1_cut2"})
    ->ArgsProduct({{InProcess, Tcp}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

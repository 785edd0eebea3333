// "pallet.data" on its way: 50 recipes of 500 products written as a frame and read back, beside a copy of the
// same bytes and a bare parse of them; comparing them with what the controller holds; and what the search for edits costs
// each time the event loop rests.

#include "core/tree_compare.h"
#include "link/frame.h"
#include "stack/recipe_match.h"

#include <benchmark/benchmark.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <zlib.h>

using host::LinkMessage;
using orba::Name;
using orba::Node;

namespace {

constexpr int kRecipes = 50;
constexpr int kProducts = 500;

void fillPoint(Node *point, int seed)
{
    const double place[] = {std::sin(seed * 0.37) * 1.6, std::sin(seed * 0.37 + 1) * 1.6,
                            std::sin(seed * 0.37 + 2)};
    const double turn[] = {0, 0, 1.5707963267948966 * (seed % 4)};
    const double none[8] = {};
    point->add(Name(u"trans"))->setDoubles(place, 3);
    point->add(Name(u"rot"))->setDoubles(turn, 3);
    point->add(Name(u"near"))->setDoubles(none, 6);
    point->add(Name(u"conf"))->setDoubles(none, 8);
}

const Node &recipes()
{
    static const Node *tree = [] {
        auto *list = new Node;
        int seed = 0;
        for (int r = 0; r < kRecipes; ++r) {
            Node *recipe = list->add();
            recipe->ensure(u"name")->setString(QStringLiteral("Recipe %1").arg(r));
            Node *layer = recipe->ensure(u"points.put")->add();
            for (int p = 0; p < kProducts; ++p) {
                Node *product = layer->add();
                for (const QStringView key :
                     {QStringView(u"enter_p"), QStringView(u"ready_p"), QStringView(u"approach_p"),
                      QStringView(u"put_p"), QStringView(u"retract_p"), QStringView(u"exit_p")})
                    fillPoint(product->add(Name(key)), ++seed);
            }
        }
        return list;
    }();
    return *tree;
}

LinkMessage request()
{
    LinkMessage message;
    message.kind = LinkMessage::Kind::Request;
    message.id = 1;
    message.name = QStringLiteral("pallet.data");
    return message;
}

double milliseconds(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The allocator puts off part of the work of freeing until somebody asks for a large block: that belongs to
/// the message that ended, not to the next one.
void endMessage(LinkMessage *message)
{
    *message = LinkMessage();
    std::unique_ptr<char[]> large(new char[1 << 16]);
    benchmark::DoNotOptimize(large.get());
}

struct Ignore : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Ignore>
{
};

void parseBare(const std::string &frame)
{
    rapidjson::MemoryStream stream(frame.data() + host::kFrameHeaderBytes,
                                   frame.size() - host::kFrameHeaderBytes);
    rapidjson::Reader reader;
    Ignore handler;
    benchmark::DoNotOptimize(
        reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(stream,
                                                                                             handler));
}

/// Runs the work and its floors in turn, so that a slower moment of the machine hits all.
void compare(benchmark::State &state, const std::string &frame, const std::function<void()> &work,
             const std::function<void()> &cleanUp)
{
    std::unique_ptr<char[]> copy(new char[frame.size()]());
    double ours = 0;
    double copied = 0;
    double parsed = 0;
    for (auto _ : state) {
        const double now = milliseconds(work);
        cleanUp();
        ours += now;
        copied += milliseconds([&] {
            std::memcpy(copy.get(), frame.data(), frame.size());
            benchmark::DoNotOptimize(copy.get());
            benchmark::ClobberMemory();
        });
        parsed += milliseconds([&] { parseBare(frame); });
        state.SetIterationTime(now / 1000);
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = ours / n;
    state.counters["memcpy_ms"] = copied / n;
    state.counters["parse_ms"] = parsed / n;
    state.counters["to_memcpy"] = ours / copied;
    state.counters["to_parse"] = ours / parsed;
    state.counters["MB"] = static_cast<double>(frame.size()) / 1e6;
}

void encode(benchmark::State &state)
{
    const std::string frame = host::encodeFrame(request(), recipes());
    std::string written;
    compare(
        state, frame, [&] { written = host::encodeFrame(request(), recipes()); },
        [&] { written = std::string(); });
}
BENCHMARK(encode)->UseManualTime()->Unit(benchmark::kMillisecond);

void decode(benchmark::State &state)
{
    const std::string frame = host::encodeFrame(request(), recipes());
    LinkMessage message;
    compare(
        state, frame, [&] { host::decodeFrame(frame, &message); }, [&] { endMessage(&message); });
    host::decodeFrame(frame, &message);
    if (message.payload != recipes())
        state.SkipWithError("what was read is not what was written");
}
BENCHMARK(decode)->UseManualTime()->Unit(benchmark::kMillisecond);

void encodeAndDecode(benchmark::State &state)
{
    const std::string frame = host::encodeFrame(request(), recipes());
    LinkMessage message;
    compare(
        state, frame, [&] { host::decodeFrame(host::encodeFrame(request(), recipes()), &message); },
        [&] { endMessage(&message); });
}
BENCHMARK(encodeAndDecode)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A stream as TCP brings it, in pieces of 64 KB.
void cutStream(benchmark::State &state)
{
    const std::string frame = host::encodeFrame(request(), recipes());
    std::string read;
    compare(
        state, frame,
        [&] {
            host::FrameReader reader;
            for (std::size_t at = 0; at < frame.size(); at += 65536) {
                reader.append(frame.data() + at, std::min<std::size_t>(65536, frame.size() - at));
                reader.next(&read);
            }
        },
        [&] { read = std::string(); });
}
BENCHMARK(cutStream)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Whether the controller holds these recipes: a checksum over every number and name. The floor sums the numbers alone.
void compareRecipes(benchmark::State &state)
{
    const auto sumUp = [] {
        std::vector<host::RecipeSummary> summaries;
        for (int i = 0; i < recipes().size(); ++i)
            summaries.push_back(host::summaryOf(*recipes().at(i)));
        return summaries;
    };
    const std::vector<host::RecipeSummary> told = sumUp();
    constexpr std::size_t kNumbers = std::size_t(kRecipes) * kProducts * 6 * 20;
    const std::vector<double> numbers(kNumbers, 0.5);
    double ours = 0;
    double summed = 0;
    for (auto _ : state) {
        const double now = milliseconds([&] { benchmark::DoNotOptimize(palx::matchRecipes(sumUp(), told)); });
        ours += now;
        summed += milliseconds([&] {
            benchmark::DoNotOptimize(crc32_z(0, reinterpret_cast<const unsigned char *>(numbers.data()),
                                             numbers.size() * sizeof(double)));
        });
        state.SetIterationTime(now / 1000);
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = ours / n;
    state.counters["crc_ms"] = summed / n;
    state.counters["to_crc"] = ours / summed;
}
BENCHMARK(compareRecipes)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A project of so many variables, unchanged: what each rest of the event loop pays.
void findNoEdits(benchmark::State &state)
{
    Node project;
    for (int i = 0; i < state.range(0); ++i) {
        Node *variable = project.ensure(u"var._list")->add();
        variable->ensure(u"name")->setString(QStringLiteral("variable%1").arg(i));
        variable->ensure(u"description")->setString(QStringLiteral("Left side pallet total count"));
        variable->ensure(u"type")->setString(QStringLiteral("int"));
        variable->ensure(u"pers")->setString(QStringLiteral("true"));
        variable->ensure(u"d.#0")->setInt(0);
        variable->ensure(u"value")->add(Name(u"[0][0][0]"))->setInt(i);
    }
    const Node told = project;
    for (auto _ : state)
        benchmark::DoNotOptimize(host::differences(told, project));
}
BENCHMARK(findNoEdits)->Arg(50)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();

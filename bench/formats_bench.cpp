// Reading and writing 10,000 products as JSON and XML, each beside a bare pass of the same library over the same bytes:
// the parser with a handler that drops everything, the writer fed with events that lie ready.

#include "orba/module_manager.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <chrono>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using orba::ModuleManager;
using orba::Name;
using orba::Node;

namespace {

constexpr int kProducts = 10000;

void fillPoint(Node *point, int seed)
{
    const auto numbers = [seed](Node *list, int n) {
        std::vector<double> values(static_cast<std::size_t>(n), 0.0);
        for (int i = 0; i < 3 && n < 8; ++i) // computed places; "near" is half filled, "conf" is zero
            values[static_cast<std::size_t>(i)] = std::sin(seed * 0.37 + i) * 1.6;
        list->setDoubles(values.data(), n);
    };
    numbers(point->add(Name(u"trans")), 3);
    numbers(point->add(Name(u"rot")), 3);
    numbers(point->add(Name(u"near")), 6);
    numbers(point->add(Name(u"conf")), 8);
}

const Node &products()
{
    static const Node *tree = [] {
        auto *list = new Node;
        list->reset(Node::Kind::List);
        const QStringView kPoints[] = {u"enter_p", u"ready_p",   u"approach_p",
                                       u"put_p",   u"retract_p", u"exit_p"};
        for (int i = 0; i < kProducts; ++i) {
            Node *product = list->add();
            product->reset(Node::Kind::Map);
            for (int k = 0; k < 6; ++k)
                fillPoint(product->add(Name(kPoints[k])), i * 6 + k);
        }
        return list;
    }();
    return *tree;
}

double milliseconds(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The allocator puts off part of the work of freeing until somebody asks for a large block: that belongs to the tree that
/// ended, not to the next reading.
void endTree(Node *node)
{
    node->reset(Node::Kind::Null);
    std::unique_ptr<char[]> large(new char[1 << 16]);
    benchmark::DoNotOptimize(large.get());
}

/// Runs both in turn, so that a slower moment of the machine hits both.
double compare(
    benchmark::State &state, qint64 bytes, const std::function<void()> &ours,
    const std::function<void()> &bare, const std::function<void()> &cleanUp = [] {})
{
    double oursMs = 0;
    double bareMs = 0;
    bare();
    for (auto _ : state) {
        const double now = milliseconds(ours);
        oursMs += now;
        cleanUp();
        bareMs += milliseconds(bare);
        state.SetIterationTime(now / 1000);
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = oursMs / n;
    state.counters["bare_ms"] = bareMs / n;
    state.counters["ratio"] = oursMs / bareMs;
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
    return oursMs / n;
}

// ---------------------------------------------------------------- JSON

// Our reader gives exact doubles, so the pass beside it does too. Without them the parser takes a third of the time.
constexpr unsigned kQuick = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
constexpr unsigned kExact = kQuick | rapidjson::kParseFullPrecisionFlag;
using JsonWriter = rapidjson::Writer<rapidjson::StringBuffer>;

/// The events of a text, kept in order.
struct Recorder : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Recorder>
{
    struct Event
    {
        enum Kind { Number, Text, StartObject, EndObject, StartArray, EndArray } kind;
        double number;
        std::string text;
    };
    bool keep(Event::Kind kind, double number = 0, std::string text = {})
    {
        events.push_back({kind, number, std::move(text)});
        return true;
    }
    bool Double(double value) { return keep(Event::Number, value); }
    bool Key(const char *text, rapidjson::SizeType length, bool)
    {
        return keep(Event::Text, 0, {text, length});
    }
    bool StartObject() { return keep(Event::StartObject); }
    bool EndObject(rapidjson::SizeType) { return keep(Event::EndObject); }
    bool StartArray() { return keep(Event::StartArray); }
    bool EndArray(rapidjson::SizeType) { return keep(Event::EndArray); }

    std::vector<Event> events;
};

template <unsigned flags, class Handler> void parseJson(const QByteArray &text, Handler &handler)
{
    rapidjson::MemoryStream stream(text.constData(), static_cast<std::size_t>(text.size()));
    rapidjson::Reader reader;
    benchmark::DoNotOptimize(reader.Parse<flags>(stream, handler));
}

void send(const Recorder::Event &event, JsonWriter &writer)
{
    switch (event.kind) {
    case Recorder::Event::Number:
        writer.Double(event.number);
        break;
    case Recorder::Event::Text:
        writer.String(event.text.data(), static_cast<rapidjson::SizeType>(event.text.size()));
        break;
    case Recorder::Event::StartObject:
        writer.StartObject();
        break;
    case Recorder::Event::EndObject:
        writer.EndObject();
        break;
    case Recorder::Event::StartArray:
        writer.StartArray();
        break;
    case Recorder::Event::EndArray:
        writer.EndArray();
        break;
    }
}

void readJson(benchmark::State &state)
{
    const QByteArray text = ModuleManager::toJson(products(), true);
    Node node;
    const auto ours = [&] { benchmark::DoNotOptimize(ModuleManager::fromJson(text, &node)); };
    const auto bare = [&] {
        rapidjson::BaseReaderHandler<> nothing;
        parseJson<kExact>(text, nothing);
    };
    const double oursMs = compare(state, text.size(), ours, bare, [&] { endTree(&node); });
    state.counters["ratio_quick"] = oursMs / milliseconds([&] {
                                        rapidjson::BaseReaderHandler<> nothing;
                                        parseJson<kQuick>(text, nothing);
                                    });
}

void writeJson(benchmark::State &state)
{
    const QByteArray text = ModuleManager::toJson(products(), true);
    Recorder recorder;
    parseJson<kExact>(text, recorder);
    const auto ours = [] { benchmark::DoNotOptimize(ModuleManager::toJson(products(), true)); };
    const auto bare = [&] {
        rapidjson::StringBuffer buffer;
        JsonWriter writer(buffer);
        for (const auto &event : recorder.events)
            send(event, writer);
        benchmark::DoNotOptimize(QByteArray(buffer.GetString(), static_cast<int>(buffer.GetSize())));
    };
    compare(state, text.size(), ours, bare);
}

// ---------------------------------------------------------------- XML

struct XmlEvent
{
    QXmlStreamReader::TokenType token;
    QString name;
    QString type;
    QString text;
};

std::vector<XmlEvent> xmlEvents(const QByteArray &text)
{
    std::vector<XmlEvent> events;
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::Characters && reader.isWhitespace())
            continue; // the writer indents by itself
        events.push_back({token, reader.attributes().value(QLatin1String("name")).toString(),
                          reader.attributes().value(QLatin1String("type")).toString(),
                          reader.text().toString()});
    }
    return events;
}

void readXml(benchmark::State &state)
{
    const QByteArray text = ModuleManager::toXml(products());
    Node node;
    const auto ours = [&] { benchmark::DoNotOptimize(ModuleManager::fromXml(text, &node)); };
    const auto bare = [&] {
        QXmlStreamReader reader(text);
        reader.setNamespaceProcessing(false);
        while (!reader.atEnd())
            reader.readNext();
        benchmark::DoNotOptimize(reader.hasError());
    };
    compare(state, text.size(), ours, bare, [&] { endTree(&node); });
}

void writeXml(benchmark::State &state)
{
    const QByteArray text = ModuleManager::toXml(products());
    const auto events = xmlEvents(text);
    const auto ours = [] { benchmark::DoNotOptimize(ModuleManager::toXml(products())); };
    const auto bare = [&] {
        QByteArray out;
        QXmlStreamWriter writer(&out);
        writer.setAutoFormatting(true);
        writer.setAutoFormattingIndent(1);
        writer.writeStartDocument();
        for (const XmlEvent &event : events) {
            if (event.token == QXmlStreamReader::StartElement) {
                writer.writeStartElement(QStringLiteral("node"));
                if (!event.name.isEmpty())
                    writer.writeAttribute(QStringLiteral("name"), event.name);
                writer.writeAttribute(QStringLiteral("type"), event.type);
            } else if (event.token == QXmlStreamReader::EndElement) {
                writer.writeEndElement();
            } else if (event.token == QXmlStreamReader::Characters) {
                writer.writeCharacters(event.text);
            }
        }
        writer.writeEndDocument();
        benchmark::DoNotOptimize(out);
    };
    compare(state, text.size(), ours, bare);
}

BENCHMARK(readJson)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeJson)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readXml)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeXml)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();

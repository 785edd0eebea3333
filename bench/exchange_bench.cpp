// Exporting and importing 50 recipes of 500 products, points included. The floor is a bare pass of Qt's stream writer or
// reader over the same bytes: the writer with the events of the file lying ready, into a file that is synced and renamed; the
// reader with the tokens thrown away. Times are the process's own (user) times; memory is what the process had at most, less
// what it had before.

#include "orba/module_manager.h"
#include "stack/recipe_import.h"
#include "workstation/progress.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>

#include <functional>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using orba::Name;
using orba::Node;

namespace {

constexpr int kRecipes = 50;
constexpr int kLayers = 10;
constexpr int kProducts = 50; // of a layer

Node templateStack()
{
    Node plugin;
    const QString file = QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json");
    if (!orba::ModuleManager::readFromJson(file, &plugin))
        std::abort();
    return *plugin.child(u"default");
}

/// Numbers with as many digits as generated points have.
void fillPoint(Node *point, int seed)
{
    const double trans[] = {seed * 0.0137 + 1.0 / 3, seed * -0.0071 + 1.0 / 7, 0.15 + seed * 1e-5};
    const double rot[] = {3.141592653589793, 0, seed % 2 ? 1.5707963267948966 : 0.0};
    const double zeros[8] = {};
    point->add(Name(u"trans"))->setDoubles(trans, 3);
    point->add(Name(u"rot"))->setDoubles(rot, 3);
    point->add(Name(u"near"))->setDoubles(zeros, 6);
    point->add(Name(u"conf"))->setDoubles(zeros, 8);
}

void fillRecipe(Node *recipe, int index)
{
    *recipe = templateStack();
    recipe->add(Name(u"name"))->setString(QStringLiteral("Recipe %1").arg(index));
    recipe->add(Name(u"desc"))->setString(QStringLiteral("Five hundred products"));
    Node *put = recipe->child(u"points")->child(u"put");
    for (int layer = 0; layer < kLayers; ++layer) {
        Node *products = put->add();
        for (int i = 0; i < kProducts; ++i) {
            Node *product = products->add();
            for (const char16_t *point :
                 {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"})
                fillPoint(product->add(Name(point)), index * 1000 + layer * kProducts + i);
        }
    }
}

const Node &recipes()
{
    static const Node *list = [] {
        auto *made = new Node;
        made->reset(Node::Kind::List);
        for (int i = 0; i < kRecipes; ++i)
            fillRecipe(made->add(), i);
        return made;
    }();
    return *list;
}

const QString &file()
{
    static QTemporaryDir folder;
    static const QString name = folder.filePath(QStringLiteral("pallet.xml"));
    return name;
}

const std::vector<bool> kAll(kRecipes, true);

void exportAll()
{
    palx::NoProgress progress;
    const Node prototype = templateStack();
    if (!palx::writeExchangeFile(palx::makeTempList(recipes(), &prototype, kAll), file(), progress).isDone())
        std::abort();
}

void importAll()
{
    palx::NoProgress progress;
    const palx::ExchangeFile read = palx::readExchangeFile(file(), templateStack(), progress);
    orba::ModuleObject list;
    list.node().reset(Node::Kind::List);
    if (!palx::importRecipes(&list, read.content, kAll, palx::RecipeClash::Rename, progress) ||
        list.cmobjCount() != kRecipes)
        std::abort();
}

struct Event
{
    QXmlStreamReader::TokenType token;
    QString name;
    QString type;
    QString text;
};

const std::vector<Event> &events()
{
    static const std::vector<Event> *ready = [] {
        auto *made = new std::vector<Event>;
        QFile source(file());
        source.open(QIODevice::ReadOnly);
        QXmlStreamReader reader(&source);
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token != QXmlStreamReader::Characters || !reader.isWhitespace())
                made->push_back({token, reader.attributes().value(QLatin1String("name")).toString(),
                                 reader.attributes().value(QLatin1String("type")).toString(),
                                 reader.text().toString()});
        }
        return made;
    }();
    return *ready;
}

void writeBare()
{
    QSaveFile target(file());
    target.open(QIODevice::WriteOnly);
    QByteArray out;
    QXmlStreamWriter writer(&out);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartDocument();
    const QString element = QStringLiteral("node");
    const QString name = QStringLiteral("name");
    const QString type = QStringLiteral("type");
    for (const Event &event : events()) {
        if (event.token == QXmlStreamReader::StartElement) {
            writer.writeStartElement(element);
            if (!event.name.isEmpty())
                writer.writeAttribute(name, event.name);
            writer.writeAttribute(type, event.type);
        } else if (event.token == QXmlStreamReader::EndElement) {
            writer.writeEndElement();
        } else if (event.token == QXmlStreamReader::Characters) {
            writer.writeCharacters(event.text);
        }
    }
    writer.writeEndDocument();
    target.write(out);
    target.flush();
    ::fsync(target.handle());
    target.commit();
}

void readBare()
{
    QFile source(file());
    source.open(QIODevice::ReadOnly);
    QXmlStreamReader reader(&source);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    benchmark::DoNotOptimize(reader.hasError());
}

double userMs(const std::function<void()> &work)
{
    rusage before{};
    rusage after{};
    getrusage(RUSAGE_SELF, &before);
    work();
    getrusage(RUSAGE_SELF, &after);
    const auto ms = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return ms(after.ru_utime) - ms(before.ru_utime);
}

/// A line of /proc/self/status, in bytes.
qint64 memory(const char *key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith(key))
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
    return 0;
}

/// What the work needs at most beyond what is there before, in a process of its own.
double extraMegabytes(const std::function<void()> &work)
{
    int pipe[2];
    if (::pipe(pipe) != 0)
        std::abort();
    if (::fork() == 0) {
        malloc_trim(0);
        QFile reset(QStringLiteral("/proc/self/clear_refs"));
        if (reset.open(QIODevice::WriteOnly))
            reset.write("5"); // the highest mark starts anew
        reset.close();
        const qint64 before = memory("VmRSS:");
        work();
        const double extra = double(memory("VmHWM:") - before) / 1e6;
        _exit(::write(pipe[1], &extra, sizeof extra) == sizeof extra ? 0 : 1);
    }
    double extra = 0;
    if (::read(pipe[0], &extra, sizeof extra) != sizeof extra)
        std::abort();
    ::wait(nullptr);
    ::close(pipe[0]);
    ::close(pipe[1]);
    return extra;
}

void compare(benchmark::State &state, void (*ours)(), void (*bare)())
{
    exportAll();
    events();
    double oursMs = 0;
    double bareMs = 0;
    for (auto _ : state) {
        const double now = userMs(ours);
        oursMs += now;
        bareMs += userMs(bare);
        state.SetIterationTime(now / 1000);
    }
    exportAll();
    const double megabytes = double(QFileInfo(file()).size()) / 1e6;
    const double extra = extraMegabytes(ours);
    const double n = double(state.iterations());
    state.counters["ours_ms"] = oursMs / n;
    state.counters["bare_ms"] = bareMs / n;
    state.counters["ratio"] = oursMs / bareMs;
    state.counters["MB"] = megabytes;
    state.counters["memory_MB"] = extra;
    state.counters["memory_ratio"] = extra / megabytes;
}

void exportRecipes(benchmark::State &state)
{
    compare(state, exportAll, writeBare);
}

void importRecipes(benchmark::State &state)
{
    compare(state, importAll, readBare);
}

BENCHMARK(exportRecipes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(importRecipes)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

BENCHMARK_MAIN();

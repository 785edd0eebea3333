// Starting with a stored panel: 50 recipes of 100 products with six point records each. The floor is SQLite handing out
// the same texts: below that, only other storage would help.

#include "core/store.h"
#include "core/tree_binder.h"
#include "orba/tree_registry.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <memory>

using orba::Name;
using orba::Node;

namespace {

constexpr int kRecipes = 50;
constexpr int kProducts = 100;
const QString kModule = QStringLiteral("bench_module");

void fillPoint(Node *point, int seed)
{
    const auto numbers = [&](QStringView name, int n) {
        std::vector<double> values(static_cast<std::size_t>(n), 0.0);
        for (int i = 0; i < 3 && n < 8; ++i)
            values[static_cast<std::size_t>(i)] = std::sin(seed * 0.37 + i) * 1.6;
        point->add(Name(name))->setDoubles(values.data(), n);
    };
    numbers(u"trans", 3);
    numbers(u"rot", 3);
    numbers(u"near", 6);
    numbers(u"conf", 8);
}

void fillRecipe(Node *recipe, int number)
{
    const QStringView points[] = {u"enter_p", u"ready_p", u"approach_p", u"put_p", u"retract_p", u"exit_p"};
    recipe->ensure(u"name")->setString(QStringLiteral("Recipe %1").arg(number));
    Node *layer = recipe->ensure(u"points.put")->add();
    for (int i = 0; i < kProducts; ++i) {
        Node *product = layer->add();
        for (const QStringView name : points)
            fillPoint(product->add(Name(name)), number * 1000 + i);
    }
}

/// A data folder with the stored recipes.
class Panel
{
public:
    Panel()
    {
        QFile file(templateFile());
        file.open(QIODevice::WriteOnly);
        file.write("{\"default\": {\"name\": \"\"}, \"stacks\": []}");
        file.close();
        start();
        for (int i = 0; i < kRecipes; ++i)
            fillRecipe(stacks()->add(), i);
        stop();
    }
    void start()
    {
        store_ = std::make_unique<host::Store>();
        if (!store_->open(folder_.filePath(QStringLiteral("data"))))
            qFatal("the store does not open");
        host::bindTree(kModule, templateFile(), true);
    }
    void stop()
    {
        store_.reset();
        orba::TreeRegistry::instance().removeModule(kModule);
    }
    Node *stacks() { return orba::TreeRegistry::instance().module(kModule)->find(u"stacks"); }
    host::Store *store() { return store_.get(); }
    QString databaseFile() const { return folder_.filePath(QStringLiteral("data/store.sqlite")); }

private:
    QString templateFile() const { return folder_.filePath(QStringLiteral("template.json")); }
    QTemporaryDir folder_;
    std::unique_ptr<host::Store> store_;
};

int nodesBelow(const Node &node)
{
    int count = 1;
    for (int i = 0; !node.isPacked() && i < node.size(); ++i)
        count += nodesBelow(*node.at(i));
    return count;
}

double seconds(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Bytes of all texts, read with the same driver.
qint64 readTexts(const QString &file)
{
    qint64 bytes = 0;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("floor"));
        database.setDatabaseName(file);
        database.open();
        QSqlQuery query(database);
        query.setForwardOnly(true);
        query.exec(QStringLiteral("SELECT json FROM text"));
        while (query.next())
            bytes += query.value(0).toByteArray().size();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("floor"));
    return bytes;
}

void loadStore(benchmark::State &state)
{
    Panel panel;
    double total = 0;
    double floor = 0;
    qint64 bytes = 0;
    int nodes = 0;
    for (auto _ : state) {
        const double now = seconds([&] { panel.start(); });
        nodes = nodesBelow(*panel.stacks());
        panel.stop();
        floor += seconds([&] { bytes = readTexts(panel.databaseFile()); });
        state.SetIterationTime(now);
        total += now;
    }
    state.counters["floor_ms"] = floor * 1000 / static_cast<double>(state.iterations());
    state.counters["ratio"] = total / floor;
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
    state.counters["nodes"] = nodes;
}

/// Saving after one number changed: the row of one recipe is written. The disk syncs dominate.
void saveOneChange(benchmark::State &state)
{
    Panel panel;
    panel.start();
    Node *numbers = panel.stacks()->find(u"#7.points.put.#0.#3.put_p.trans");
    double value = 0;
    for (auto _ : state) {
        numbers->setNumber(0, value += 1);
        panel.store()->save();
    }
    panel.stop();
}

BENCHMARK(loadStore)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveOneChange)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

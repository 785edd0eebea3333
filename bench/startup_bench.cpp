// From the start of the panel's process to its shown home page, with 50 stored recipes of 100 products each and all their
// points. The floor is the same program with an empty store: the difference is what recipes cost.

#include "core/store.h"
#include "core/tree_binder.h"
#include "orba/tree_registry.h"
#include "stack/way_points.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using orba::Node;

namespace {

constexpr int kRecipes = 50;
constexpr int kLayers = 5;
constexpr int kPerLayer = 20;

void fillRecipe(Node &stack, const Node &prototype, int number)
{
    stack.assign(prototype);
    stack.ensure(u"name")->setString(QStringLiteral("Recipe %1").arg(number));
    stack.ensure(u"desc")->setString(QStringLiteral("Twenty boxes on each of five layers"));
    stack.ensure(u"product_cfg.product.height")->setInt(200);
    Node &pattern = *stack.ensure(u"patterns.A");
    for (int i = 0; i < kPerLayer; ++i) {
        Node &item = *pattern.add();
        item.ensure(u"x")->setDouble(75 + 151 * (i % 5));
        item.ensure(u"y")->setDouble(100 + 201 * (i / 5));
        item.ensure(u"w")->setInt(150);
        item.ensure(u"h")->setInt(200);
        item.ensure(u"r")->setInt(0);
        item.ensure(u"index")->setInt(i + 1);
    }
    for (int i = 0; i < kLayers; ++i)
        stack.ensure(QStringLiteral("layers.#%1.pattern").arg(i))->setString(QStringLiteral("A"));
    palx::genStackWayPoints(stack, palx::pluginNodeOf(stack));
}

void makeData(const QString &folder, int recipes)
{
    host::Store store;
    if (!store.open(folder))
        qFatal("the store does not open");
    const QString module = palx::getPluginName();
    host::bindTree(module, QStringLiteral(":/palx_workstation/template/palx_workstation.json"), true);
    Node &plugin = *orba::TreeRegistry::instance().module(module);
    for (int i = 0; i < recipes; ++i)
        fillRecipe(*plugin.find(u"stacks")->add(), *plugin.child(u"default"), i);
    store.save();
    orba::TreeRegistry::instance().removeModule(module);
}

void startPanel(benchmark::State &state)
{
    QTemporaryDir folder;
    makeData(folder.filePath(QStringLiteral("data")), static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QProcess panel;
        QElapsedTimer clock;
        clock.start();
        panel.start(QCoreApplication::applicationDirPath() + QStringLiteral("/palx_panel"),
                    {QStringLiteral("--data"), folder.filePath(QStringLiteral("data"))});
        bool isShown = false;
        while (!isShown && panel.waitForReadyRead(20000))
            isShown = panel.readAllStandardOutput().contains("shown");
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        panel.kill(); // nothing is to be saved
        panel.waitForFinished();
        if (!isShown)
            state.SkipWithError("the panel did not show its home page");
    }
}
BENCHMARK(startPanel)->ArgName("recipes")->Arg(0)->Arg(kRecipes)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("PALX_REPORT_SHOWN", "1");
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

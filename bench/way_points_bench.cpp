// Point generation against its floor: the same arithmetic on plain structs, written to a flat array.

#include "stack/way_points.h"

#include "orba/node.h"
#include "workstation/plugin_node.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <memory>
#include <vector>

using orba::Node;

namespace {

constexpr int kLayers = 20;
constexpr int kPerLayer = 100;
constexpr int kProducts = kLayers * kPerLayer;

void setNumbers(Node &parent, QStringView list, std::initializer_list<double> values)
{
    parent.ensure(list)->setDoubles(values.begin(), static_cast<int>(values.size()));
}

void makePoint(Node &point, double x, double y, double z)
{
    palx::makePointRecord(point);
    setNumbers(point, u"trans", {x, y, z});
    setNumbers(point, u"rot", {3.14159, 0, 0.3});
    setNumbers(point, u"conf", {1, 0, 0, 0, 1, 0, 0, 0});
}

/// A plugin node with one stack of 20 layers with 100 boxes of 120 x 80 x 90 mm; `onePoint` chooses the frame.
struct Recipe {
    explicit Recipe(bool onePoint)
    {
        plugin.ensure(u"stacks")->reset(Node::Kind::List);
        stack = plugin.find(u"stacks")->add();
        fillGlobals();
        stack->ensure(u"use_global_wobj")->setBool(onePoint);
        stack->ensure(u"pallet_position")->setInt(0);
        const struct {
            const char16_t *path;
            double value;
        } sizes[] = {{u"product_cfg.product.length", 120}, {u"product_cfg.product.width", 80},
                     {u"product_cfg.product.height", 90},  {u"product_cfg.pallet.length", 1200},
                     {u"product_cfg.pallet.width", 800},   {u"product_cfg.pallet.height", 150},
                     {u"put.ready_h", 150},                {u"put.approach_h", 50},
                     {u"put.retract_h", 60},               {u"put.exit_h", 200},
                     {u"get.ready_h", 100},                {u"get.approach_h", 50},
                     {u"get.retract_h", 60}};
        for (const auto &size : sizes)
            stack->ensure(size.path)->setDouble(size.value);
        for (const char16_t *path : {u"put.put_p", u"put.enter_p", u"get.get_p", u"get.enter_p"})
            makePoint(*stack->ensure(path), 0.8, -0.4, 0.2);
        fillPattern();
    }

    void fillGlobals()
    {
        for (const char16_t *entry : {u"global_wobj.#0", u"global_wobj.#1"}) {
            Node &wobj = *plugin.ensure(entry);
            wobj.ensure(u"calibration_method")->setInt(1);
            wobj.ensure(u"towards")->setInt(0);
            makePoint(*wobj.ensure(u"left_origin_point"), 1, 0.5, 0.1);
            makePoint(*wobj.ensure(u"right_origin_point"), 1, -0.5, 0.1);
        }
        Node &settings = *plugin.ensure(u"global_tool.#3.waypoint_settings.put.left_offsets");
        for (const char16_t *key :
             {u"enter_x", u"enter_y", u"enter_h", u"ready_h", u"approach_h", u"retract_h", u"exit_h"})
            settings.ensure(key)->setDouble(50);
    }

    void fillPattern()
    {
        Node &pattern = *stack->ensure(u"patterns.A");
        for (int j = 0; j < kPerLayer; ++j) {
            Node &item = *pattern.add();
            const auto number = [&item](QStringView key, double value) { item.ensure(key)->setDouble(value); };
            number(u"x", 40 + 80 * (j % 10));
            number(u"y", 60 + 120 * (j / 10));
            number(u"w", 80);
            number(u"h", 120);
            item.ensure(u"r")->setInt(j % 2 ? 90 : 0);
            item.ensure(u"index")->setInt(j + 1);
            item.ensure(u"orient")->setInt(0);
            item.ensure(u"direction")->setString(QStringLiteral("TopRight"));
            number(u"dx", 30);
            number(u"dy", 30);
            number(u"dz", 0);
        }
        for (int i = 0; i < kLayers; ++i) {
            Node &layer = *stack->ensure(QStringLiteral("layers.#%1").arg(i));
            layer.ensure(u"pattern")->setString(QStringLiteral("A"));
            layer.ensure(u"h_offset")->setDouble(0);
        }
    }

    Node plugin;
    Node *stack;
};

void generate(benchmark::State &state)
{
    Recipe recipe(state.range(0) != 0);
    for (auto _ : state)
        palx::genStackWayPoints(*recipe.stack, recipe.plugin);
    state.SetItemsProcessed(state.iterations() * kProducts);
}
BENCHMARK(generate)->ArgName("one_point")->Arg(0)->Arg(1);

struct Point {
    double trans[3], rot[3], near[6], conf[8];
};
struct Item {
    double x, y, dx, dy, dz;
    int r;
};

/// The floor: every number of every point is computed and written.
void plainStructs(benchmark::State &state)
{
    std::vector<Item> items;
    for (int j = 0; j < kPerLayer; ++j)
        items.push_back({40.0 + 80 * (j % 10), 60.0 + 120 * (j / 10), 30, 30, 0, j % 2 ? 90 : 0});
    std::vector<Point> points(static_cast<std::size_t>(kProducts) * 6);
    const Point reference{{0.8, -0.4, 0.2}, {3.14159, 0, 0.3}, {}, {1, 0, 0, 0, 1, 0, 0, 0}};
    for (auto _ : state) {
        Point *out = points.data();
        for (int i = 0; i < kLayers; ++i) {
            for (const Item &item : items) {
                Point put = reference;
                put.trans[0] = item.y / 1000;
                put.trans[1] = item.x / 1000;
                put.trans[2] = reference.trans[2] + i * 90.0 / 1000;
                put.rot[2] += -item.r * 3.141592653589793 / 180;
                const double above[] = {0.2, 0.15, 0.05, 0, 0.06, 0.2};
                for (const double height : above) {
                    *out = put;
                    out->trans[2] += i == kLayers - 1 ? 0.02 : height;
                    ++out;
                }
                out[-5].trans[0] += item.dx / 1000;
                out[-5].trans[1] -= item.dy / 1000;
            }
        }
        benchmark::DoNotOptimize(points.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kProducts);
}
BENCHMARK(plainStructs);

/// Heap bytes per generated product, its share of lists and layers included; no handle may come up.
void memoryPerProduct(benchmark::State &state)
{
    Recipe recipe(false);
    double bytes = 0;
    for (auto _ : state) {
        recipe.stack->ensure(u"points")->reset(Node::Kind::Map);
        const auto before = mallinfo2().uordblks;
        palx::genStackWayPoints(*recipe.stack, recipe.plugin);
        bytes = static_cast<double>(mallinfo2().uordblks - before) / kProducts;
    }
    state.counters["bytes"] = bytes;
    state.counters["handles"] = recipe.stack->hasHandleBelow() ? 1 : 0;
}
BENCHMARK(memoryPerProduct);

void readByPath(benchmark::State &state)
{
    Recipe recipe(false);
    const auto handle = std::make_unique<orba::ModuleObject>();
    handle->copyFrom(*recipe.stack);
    for (auto _ : state)
        benchmark::DoNotOptimize(handle->getDouble("product_cfg.product.height"));
}
BENCHMARK(readByPath);

void readElementByPath(benchmark::State &state)
{
    Recipe recipe(false);
    const auto handle = std::make_unique<orba::ModuleObject>();
    handle->copyFrom(*recipe.stack);
    for (auto _ : state)
        benchmark::DoNotOptimize(handle->getDouble(u"put.put_p.trans.#2"));
}
BENCHMARK(readElementByPath);

void writeUnheard(benchmark::State &state)
{
    Recipe recipe(false);
    const auto handle = std::make_unique<orba::ModuleObject>();
    handle->copyFrom(*recipe.stack);
    double value = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(handle->set(nullptr, "put.ready_h", value += 1));
}
BENCHMARK(writeUnheard);

/// The floor of both: a plain look-up of one key in a short list.
void plainFieldFloor(benchmark::State &state)
{
    const std::vector<std::pair<QString, double>> fields{{QStringLiteral("length"), 1.0},
                                                         {QStringLiteral("width"), 2.0},
                                                         {QStringLiteral("height"), 3.0}};
    const QString key = QStringLiteral("height");
    for (auto _ : state)
        for (const auto &field : fields)
            if (field.first == key)
                benchmark::DoNotOptimize(field.second);
}
BENCHMARK(plainFieldFloor);

} // namespace

BENCHMARK_MAIN();

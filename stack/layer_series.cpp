#include "stack/layer_series.h"

#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"

#include <QCoreApplication>

#include <algorithm>

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

struct SeriesText
{
    Q_DECLARE_TR_FUNCTIONS(SeriesText)
};

int layerCount(const Node &stack)
{
    const Node *layers = stack.find(u"layers");
    return layers ? layers->size() : 0;
}

QString patternAt(const Node &stack, int layer)
{
    return stack.getString(QString(QStringLiteral("layers.#%1.pattern").arg(layer)));
}

double offsetAt(const Node &stack, int layer)
{
    return stack.getDouble(QString(QStringLiteral("layers.#%1.h_offset").arg(layer)));
}

LayerSet tidied(LayerSet layers, int count)
{
    std::sort(layers.begin(), layers.end());
    layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
    layers.erase(std::remove_if(layers.begin(), layers.end(),
                                [count](int layer) { return layer < 0 || layer >= count; }),
                 layers.end());
    return layers;
}

bool endsStack(const QString &pattern)
{
    return pattern.isEmpty() || pattern == kEmptyPattern;
}

bool holdsProducts(const QString &pattern)
{
    return !endsStack(pattern) && pattern != kSheetPattern;
}

void switchSheetsOn(ModuleObject *stack)
{
    const QString path = QStringLiteral("product_cfg.clapboard.enabled");
    if (stack->getInt(path) != 0)
        return;
    stack->ensure(path);
    stack->set(nullptr, path, 1);
}

void appendLayer(Node *layers, const QString &pattern)
{
    Node *layer = layers->add();
    layer->ensure(u"pattern")->setString(pattern);
    layer->ensure(u"h_offset")->setInt(0);
}

/// The layers of the series alone.
Node seriesAlone(const LayerSeries &series)
{
    Node layers;
    layers.reset(Node::Kind::List);
    for (int i = 0; i < series.count; ++i) {
        if (i > 0 && series.sheetEvery > 0 && i % series.sheetEvery == 0)
            appendLayer(&layers, kSheetPattern);
        appendLayer(&layers, series.patterns[i % series.patterns.size()]);
    }
    return layers;
}

int seriesBegin(const Node &stack, const LayerSeries &series)
{
    return series.from < 0 ? stackEnd(stack) : std::min(series.from, layerCount(stack));
}

/// Layers behind the series: those that end the stack stay when it goes on top.
int keptBehind(const Node &stack, const LayerSeries &series)
{
    return series.from < 0 ? layerCount(stack) - stackEnd(stack) : 0;
}

} // namespace

int stackEnd(const Node &stack)
{
    const int count = layerCount(stack);
    int end = 0;
    while (end < count && !endsStack(patternAt(stack, end)))
        ++end;
    return end;
}

int insertSheets(ModuleObject *stack, const LayerSet &layers)
{
    LayerSet under;
    for (const int layer : tidied(layers, layerCount(stack->node()))) {
        if (holdsProducts(patternAt(stack->node(), layer)) &&
            patternAt(stack->node(), layer + 1) != kSheetPattern)
            under.append(layer);
    }
    if (layerCount(stack->node()) + under.size() > kMaxLayers)
        return 0;
    for (int i = under.size() - 1; i >= 0; --i)
        insertLayer(stack, under[i] + 1, kSheetPattern);
    if (!under.isEmpty())
        switchSheetsOn(stack);
    return under.size();
}

int removeLayers(ModuleObject *stack, const LayerSet &layers)
{
    const LayerSet gone = tidied(layers, layerCount(stack->node()));
    for (int i = gone.size() - 1; i >= 0; --i)
        removeLayer(stack, gone[i]);
    return gone.size();
}

LayerSet moveLayers(ModuleObject *stack, const LayerSet &layers, bool up)
{
    const int count = layerCount(stack->node());
    LayerSet moved = tidied(layers, count);
    int edge = up ? count - 1 : 0; // the farthest place that is still free
    for (int i = 0; i < moved.size(); ++i) {
        int &place = moved[up ? moved.size() - 1 - i : i];
        if (place != edge) {
            const int target = place + (up ? 1 : -1);
            moveLayer(stack, place, target);
            place = target;
        }
        edge = place + (up ? -1 : 1);
    }
    return moved;
}

int repeatLayers(ModuleObject *stack, const LayerSet &layers)
{
    const LayerSet source = tidied(layers, layerCount(stack->node()));
    if (layerCount(stack->node()) + source.size() > kMaxLayers)
        return 0;
    const Node before = stack->node();
    const int end = stackEnd(before);
    for (int i = 0; i < source.size(); ++i)
        insertLayer(stack, end + i, patternAt(before, source[i]), offsetAt(before, source[i]));
    return source.size();
}

QString seriesProblem(const Node &stack, const LayerSeries &series)
{
    if (series.patterns.isEmpty() || series.count < 1)
        return SeriesText::tr("There is nothing to lay.");
    for (const QString &pattern : series.patterns) {
        if (!patternNames(stack).contains(pattern))
            return SeriesText::tr("This recipe has no pattern \"%1\".").arg(pattern);
    }
    const int sheets = series.sheetEvery > 0 ? (series.count - 1) / series.sheetEvery : 0;
    const int total = seriesBegin(stack, series) + series.count + sheets + keptBehind(stack, series);
    if (total > kMaxLayers)
        return SeriesText::tr("That makes %1 layers; a recipe holds at most %2.").arg(total).arg(kMaxLayers);
    return QString();
}

Node seriesLayers(const Node &stack, const LayerSeries &series)
{
    Node result;
    result.reset(Node::Kind::List);
    if (!seriesProblem(stack, series).isEmpty())
        return result;
    const Node alone = seriesAlone(series);
    const Node *layers = stack.find(u"layers");
    const int begin = seriesBegin(stack, series);
    for (int i = 0; i < begin; ++i)
        result.add()->assign(*layers->at(i));
    for (int i = 0; i < alone.size(); ++i)
        result.add()->assign(*alone.at(i));
    for (int i = layerCount(stack) - keptBehind(stack, series); i < layerCount(stack); ++i)
        result.add()->assign(*layers->at(i));
    return result;
}

bool laySeries(ModuleObject *stack, const LayerSeries &series)
{
    if (!seriesProblem(stack->node(), series).isEmpty())
        return false;
    const int begin = seriesBegin(stack->node(), series);
    const int behind = keptBehind(stack->node(), series);
    for (int i = layerCount(stack->node()) - behind - 1; i >= begin; --i)
        removeLayer(stack, i);
    const Node alone = seriesAlone(series);
    for (int i = 0; i < alone.size(); ++i)
        insertLayer(stack, begin + i, alone.at(i)->getString(u"pattern"));
    if (alone.size() > series.count)
        switchSheetsOn(stack);
    return true;
}

} // namespace palx

#include "stack/recipe_layers.h"

#include "stack/recipe_patterns.h"
#include "stack/stack_check.h"

#include <QCoreApplication>

namespace palx {

const QString kSheetPattern = QStringLiteral("clapboard");
const QString kEmptyPattern = QStringLiteral("empty");

namespace {

using orba::Node;

struct LayerText
{
    Q_DECLARE_TR_FUNCTIONS(LayerText)
};

int layerCount(const Node &stack)
{
    const Node *layers = stack.find(u"layers");
    return layers ? layers->size() : 0;
}

double layerHeight(const Node &stack, const LayerFacts &layer)
{
    if (layer.pattern == kEmptyPattern)
        return 0;
    return stack.getDouble(layer.pattern == kSheetPattern ? u"product_cfg.clapboard.height"
                                                          : u"product_cfg.product.height");
}

/// The first non-empty layer behind an empty one, or -1.
int layerBehindEmpty(const QVector<LayerFacts> &layers)
{
    bool ended = false;
    for (int i = 0; i < layers.size(); ++i) {
        if (layers[i].pattern == kEmptyPattern)
            ended = true;
        else if (ended && !layers[i].pattern.isEmpty())
            return i;
    }
    return -1;
}

QString sheetProblem(const Node &stack)
{
    if (stack.getInt(u"product_cfg.clapboard.enabled") == 0)
        return LayerText::tr("is a separator sheet, but the recipe has separator sheets switched off");
    if (stack.getDouble(u"product_cfg.clapboard.height") <= 0)
        return LayerText::tr("is a separator sheet, but the sheet has no height");
    return QString();
}

/// What is wrong with one layer on its own, as the rest of a sentence that begins with the layer.
QString layerProblem(const Node &stack, const LayerFacts &layer, bool afterEmpty)
{
    if (layer.pattern == kEmptyPattern || (layer.pattern.isEmpty() && afterEmpty))
        return QString();
    if (layer.pattern.isEmpty())
        return LayerText::tr("has no pattern; this layer and those above it get no points");
    if (layer.pattern == kSheetPattern)
        return sheetProblem(stack);
    if (!findPattern(stack, layer.pattern))
        return LayerText::tr("uses the pattern \"%1\", which this recipe does not have").arg(layer.pattern);
    if (layer.products == 0)
        return LayerText::tr("uses the pattern \"%1\", which holds no products").arg(layer.pattern);
    return QString();
}

} // namespace

QVector<LayerFacts> layerFacts(const Node &stack)
{
    const int count = layerCount(stack);
    QVector<LayerFacts> facts(count);
    double height = 0;
    bool reached = true;
    for (int i = 0; i < count; ++i) {
        const QString path = QStringLiteral("layers.#%1.").arg(i);
        LayerFacts &layer = facts[i];
        layer.pattern = stack.getString(QString(path + QLatin1String("pattern")));
        const Node *pattern = findPattern(stack, layer.pattern);
        layer.products = pattern ? pattern->size() : 0;
        reached = reached && !layer.pattern.isEmpty();
        layer.reached = reached;
        if (reached && layer.pattern != kEmptyPattern)
            height += stack.getDouble(QString(path + QLatin1String("h_offset")));
        layer.bottomMm = height;
        if (reached)
            height += layerHeight(stack, layer);
        layer.topMm = height;
    }
    return facts;
}

RecipeTotals recipeTotals(const Node &stack)
{
    RecipeTotals totals;
    for (const LayerFacts &layer : layerFacts(stack)) {
        if (!layer.reached || layer.pattern == kEmptyPattern)
            continue;
        const bool sheet = layer.pattern == kSheetPattern;
        totals.sheets += sheet ? 1 : 0;
        totals.layers += sheet ? 0 : 1;
        totals.products += sheet ? 0 : layer.products;
        totals.loadHeightMm = layer.topMm;
    }
    totals.heightMm = totals.loadHeightMm + stack.getDouble(u"product_cfg.pallet.height");
    totals.loadWeightKg = totals.products * stack.getDouble(u"product_cfg.product.weight") +
                          totals.sheets * stack.getDouble(u"product_cfg.clapboard.weight");
    totals.weightKg = totals.loadWeightKg + stack.getDouble(u"product_cfg.pallet.weight");
    return totals;
}

QStringList layerProblems(const Node &stack)
{
    QStringList problems;
    const QVector<LayerFacts> layers = layerFacts(stack);
    bool afterEmpty = false;
    for (int i = 0; i < layers.size(); ++i) {
        const QString what = layerProblem(stack, layers[i], afterEmpty);
        afterEmpty = afterEmpty || layers[i].pattern == kEmptyPattern;
        if (!what.isEmpty())
            problems << LayerText::tr("Layer %1 %2.").arg(i + 1).arg(what);
    }
    if (layers.isEmpty())
        problems << LayerText::tr("The recipe has no layers.");
    else if (!checkLayersName(*stack.find(u"layers")))
        problems.prepend(
            LayerText::tr("Layer %1 lies on an empty layer; the stack ends at its first empty layer, so "
                          "only empty layers may follow it.")
                .arg(layerBehindEmpty(layers) + 1));
    return problems;
}

orba::ModuleObject *insertLayer(orba::ModuleObject *stack, int index, const QString &pattern,
                                double heightOffsetMm)
{
    orba::ModuleObject *layers = stack->ensure("layers");
    const int count = layers->cmobjCount();
    const bool inside = index >= 0 && index < count;
    Node content;
    content.ensure(u"pattern")->setString(pattern);
    content.ensure(u"h_offset")
        ->setValue(heightOffsetMm == qint64(heightOffsetMm) ? QVariant(qint64(heightOffsetMm))
                                                            : QVariant(heightOffsetMm));
    orba::ModuleObject *layer = inside ? layers->insert(index) : layers->addUnnamed();
    layer->copyFrom(content);
    return layer;
}

bool setLayerPattern(orba::ModuleObject *stack, int index, const QString &pattern)
{
    const bool known =
        pattern == kSheetPattern || pattern == kEmptyPattern || findPattern(stack->node(), pattern);
    if (!known || index < 0 || index >= layerCount(stack->node()))
        return false;
    const QString path = QStringLiteral("layers.#%1.pattern").arg(index);
    stack->ensure(path);
    stack->set(nullptr, path, pattern);
    return true;
}

bool removeLayer(orba::ModuleObject *stack, int index)
{
    return index >= 0 && index < layerCount(stack->node()) &&
           stack->remove(QStringLiteral("layers.#%1").arg(index));
}

bool moveLayer(orba::ModuleObject *stack, int from, int to)
{
    const int count = layerCount(stack->node());
    if (from < 0 || to < 0 || from >= count || to >= count)
        return false;
    if (from != to)
        stack->r("layers")->move(from, to);
    return true;
}

} // namespace palx

#include "pattern/rules/stack_plan.h"

#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

using orba::Node;

const Node &nodeAt(const Node &parent, QStringView path)
{
    static const Node none{};
    const Node *found = parent.find(path);
    return found ? *found : none;
}

double readSide(const Node &record, QStringView key, double def, bool *repaired)
{
    ItemFaults faults;
    const double value = readMm(record, key, 0, &faults);
    if (value > 0 && value <= kMaxItemMm)
        return std::max(value, kMinItemMm);
    *repaired = true;
    return def;
}

/// Heights of 0 are common (a recipe under construction) and drawn flat.
double readHeight(const Node &record)
{
    return std::clamp(readMm(record, u"height", 0), 0.0, kMaxItemMm);
}

BoxSize readBox(const Node &record, double defLength, double defWidth, bool *repaired)
{
    BoxSize box;
    box.length = readSide(record, u"length", defLength, repaired);
    box.width = readSide(record, u"width", defWidth, repaired);
    box.height = readHeight(record);
    return box;
}

void readMargins(const Node &margins, StackPlan *plan)
{
    const auto read = [&](QStringView key) {
        return std::clamp(readMm(margins, key, 0), -kMaxItemMm, kMaxItemMm);
    };
    plan->marginLeft = read(u"left");
    plan->marginTop = read(u"top");
    plan->marginRight = read(u"right");
    plan->marginBottom = read(u"bottom");
}

LayerKind kindOf(const Node &stack, const LayerFacts &facts)
{
    if (!facts.reached)
        return facts.pattern.isEmpty() ? LayerKind::Blank : LayerKind::Unreached;
    if (facts.pattern == kEmptyPattern)
        return LayerKind::Empty;
    if (facts.pattern == kSheetPattern)
        return LayerKind::Sheet;
    return findPattern(stack, facts.pattern) ? LayerKind::Products : LayerKind::MissingPattern;
}

double drawableHeight(double mm)
{
    return std::isfinite(mm) ? std::clamp(mm, -kMaxStackMm, kMaxStackMm) : 0;
}

void readLayers(const Node &stack, StackPlan *plan)
{
    for (const LayerFacts &facts : layerFacts(stack)) {
        LayerPlan layer;
        layer.kind = kindOf(stack, facts);
        layer.pattern = facts.pattern;
        layer.products = facts.products;
        layer.bottomMm = drawableHeight(facts.bottomMm);
        layer.heightMm = std::max(0.0, drawableHeight(facts.topMm) - layer.bottomMm);
        plan->layers.append(layer);
    }
}

} // namespace

int StackPlan::layerBelow(int layer) const
{
    for (int i = std::min(layer, static_cast<int>(layers.size())) - 1; i >= 0; --i) {
        if (layers[i].isPlaced())
            return i;
    }
    return -1;
}

double StackPlan::heightMm() const
{
    double height = 0;
    for (const LayerPlan &layer : layers) {
        if (layer.isPlaced())
            height = std::max(height, layer.topMm());
    }
    return height;
}

StackPlan readStackPlan(const Node &stack)
{
    StackPlan plan;
    plan.name = stack.getString(u"name");
    const Node &config = nodeAt(stack, u"product_cfg");
    plan.product = readBox(nodeAt(config, u"product"), 200, 150, &plan.productRepaired);
    plan.pallet = readBox(nodeAt(config, u"pallet"), 1000, 800, &plan.palletRepaired);
    plan.sheet =
        readBox(nodeAt(config, u"clapboard"), plan.pallet.length, plan.pallet.width, &plan.sheetRepaired);
    plan.orient = static_cast<int>(std::clamp<qint64>(config.getInt(u"product.orient"), -1000000, 1000000));
    readMargins(nodeAt(stack, u"wobj_margin"), &plan);
    readLayers(stack, &plan);
    return plan;
}

QRectF sheetRect(const QSizeF &sheet, const QSizeF &pallet)
{
    return QRectF(QPointF((pallet.width() - sheet.width()) / 2, (pallet.height() - sheet.height()) / 2),
                  sheet);
}

QVector<PatternItem> layerItems(const Node &stack, const StackPlan &plan, int layer)
{
    if (layer < 0 || layer >= plan.layers.size() || plan.layers[layer].kind != LayerKind::Products)
        return {};
    const Node *pattern = findPattern(stack, plan.layers[layer].pattern);
    return pattern ? readPatternItems(*pattern, plan.product.width, plan.product.length)
                   : QVector<PatternItem>();
}

} // namespace palx

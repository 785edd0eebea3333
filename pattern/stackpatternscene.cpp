#include "pattern/stackpatternscene.h"

#include "orba/managers.h"
#include "pattern/node_follower.h"
#include "pattern/plan_style.h"

#include <algorithm>

namespace {

using orba::ModuleObject;
using palx::LayerKind;
using palx::LayerPlan;
using palx::PatternItem;
using palx::StackPlan;

// Both scenes stand for the same number, whichever of them is linked.
const bool kVersionRegistered = orba::versionManager().regist(
    mName(QStringLiteral("palx_workstation"), QStringLiteral("wizard.patternscene")), [] { return 1; });

LayerPlan layerAt(const StackPlan &plan, int layer)
{
    return layer >= 0 && layer < plan.layers.size() ? plan.layers[layer] : LayerPlan();
}

/// Whether some product covers just the same place; its outline then says all.
bool coversSame(const PatternItem &item, const QVector<PatternItem> &items)
{
    return std::any_of(items.begin(), items.end(), [&item](const PatternItem &other) {
        return palx::itemCorners(item) == palx::itemCorners(other);
    });
}

QString sheetText(const StackPlan &plan)
{
    using palx::plan_style::millimetres;
    if (plan.sheetRepaired)
        return StackPatternScene::tr("Separator sheet, its size is not set");
    return StackPatternScene::tr("Separator sheet %1 x %2 x %3 mm")
        .arg(millimetres(plan.sheet.length), millimetres(plan.sheet.width), millimetres(plan.sheet.height));
}

QString layerMessage(const StackPlan &plan, int layer)
{
    if (plan.layers.isEmpty())
        return StackPatternScene::tr("This recipe has no layers");
    if (layer < 0 || layer >= plan.layers.size())
        return StackPatternScene::tr("There is no layer %1; the recipe has %2")
            .arg(layer + 1)
            .arg(plan.layers.size());
    switch (plan.layers[layer].kind) {
    case LayerKind::Products:
        return QString();
    case LayerKind::Sheet:
        return sheetText(plan);
    case LayerKind::MissingPattern:
        return StackPatternScene::tr("The recipe has no pattern \"%1\"").arg(plan.layers[layer].pattern);
    case LayerKind::Empty:
        return StackPatternScene::tr("Empty layer: it is left out");
    case LayerKind::Blank:
        return StackPatternScene::tr("No pattern is chosen for this layer: the stack ends below it");
    case LayerKind::Unreached:
        return StackPatternScene::tr("Not placed: the stack ends at a layer below");
    }
    return QString();
}

} // namespace

void StackPatternScene::setLayer(int layer)
{
    if (layer == layer_)
        return;
    layer_ = layer;
    markStale(true);
}

int StackPatternScene::layerCount()
{
    return plan().layers.size();
}

LayerPlan StackPatternScene::layerPlan()
{
    return layerAt(plan(), layer_);
}

void StackPatternScene::setGhostShown(bool shown)
{
    if (shown == ghostShown_)
        return;
    ghostShown_ = shown;
    markStale(true);
}

PatternScene::Content StackPatternScene::readContent(const StackPlan &plan) const
{
    Content content;
    content.items = palx::layerItems(stackNode(), plan, layer_);
    content.sheet = layerAt(plan, layer_).kind == LayerKind::Sheet;
    content.message = layerMessage(plan, layer_);
    if (content.message.isEmpty() && content.items.isEmpty())
        content.message = tr("The pattern \"%1\" is empty").arg(layerAt(plan, layer_).pattern);
    if (ghostShown_ && layerAt(plan, layer_).isPlaced())
        addGhost(plan, &content);
    return content;
}

void StackPatternScene::addGhost(const StackPlan &plan, Content *content) const
{
    const int below = plan.layerBelow(layer_);
    for (const PatternItem &item : palx::layerItems(stackNode(), plan, below)) {
        if (!coversSame(item, content->items))
            content->ghost.append(item);
    }
    content->ghostSheet = layerAt(plan, below).kind == LayerKind::Sheet;
}

ModuleObject *StackPatternScene::targetPattern() const
{
    if (!stackMobj())
        return nullptr;
    const QString name = stackMobj()->r("layers")->c(layer_)->getString("pattern");
    ModuleObject *pattern = stackMobj()->r("patterns")->c(name);
    return pattern->isEmptyMobj() ? nullptr : pattern;
}

QList<ModuleObject *> StackPatternScene::shownPatterns() const
{
    QList<ModuleObject *> patterns;
    if (!stackMobj())
        return patterns;
    const StackPlan plan = palx::readStackPlan(stackMobj()->node());
    for (const int layer : {layer_, ghostShown_ ? plan.layerBelow(layer_) : -1}) {
        if (layerAt(plan, layer).kind == LayerKind::Products)
            patterns.append(stackMobj()->r("patterns")->c(plan.layers[layer].pattern));
    }
    return patterns;
}

void StackPatternScene::followChoice(palx::NodeFollower *follower) const
{
    if (!stackMobj())
        return;
    follower->followTree(stackMobj()->r("layers"));
    follower->follow(stackMobj()->r("patterns"));
}

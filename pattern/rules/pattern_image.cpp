#include "pattern/rules/pattern_image.h"

#include "pattern/rules/edit_turn.h"
#include "pattern/rules/edit_write.h"
#include "pattern/rules/stack_plan.h"
#include "stack/recipe_patterns.h"

#include <algorithm>

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

QVector<PatternItem> itemsOf(const Node &stack, const StackPlan &plan, const QString &name)
{
    const Node *pattern = findPattern(stack, name);
    return pattern ? readPatternItems(*pattern, plan.product.width, plan.product.length)
                   : QVector<PatternItem>();
}

bool liesAlike(const PatternItem &a, const PatternItem &b)
{
    return std::abs(a.x - b.x) < kPositionStepMm && std::abs(a.y - b.y) < kPositionStepMm && a.w == b.w &&
           a.h == b.h && (a.r - b.r) % 360 == 0 && a.orient == b.orient && a.direction == b.direction &&
           a.dx == b.dx && a.dy == b.dy && a.dz == b.dz;
}

bool areAlike(const QVector<PatternItem> &a, const QVector<PatternItem> &b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), liesAlike);
}

/// "A" leads to "A_m", then "A_m2", "A_m3", ...; shortened to fit.
QString imageName(const Node &stack, const QString &pattern)
{
    for (int number = 1;; ++number) {
        const QString end = number == 1 ? QStringLiteral("_m") : QStringLiteral("_m%1").arg(number);
        const QString name = pattern.left(kMaxPatternName - end.size()) + end;
        if (patternNameProblem(stack, name).isEmpty())
            return name;
    }
}

} // namespace

QVector<PatternItem> imageItems(QVector<PatternItem> items, PatternImage image, const QSizeF &pallet)
{
    switch (image) {
    case PatternImage::LeftRight:
        mirrorPattern(&items, PlanAxis::Across, pallet);
        break;
    case PatternImage::FrontBack:
        mirrorPattern(&items, PlanAxis::Along, pallet);
        break;
    case PatternImage::HalfTurn:
        turnPattern(&items, pallet);
        break;
    }
    return items;
}

QString imageOfPattern(ModuleObject *stack, const QString &pattern, PatternImage image)
{
    const StackPlan plan = readStackPlan(stack->node());
    if (!findPattern(stack->node(), pattern))
        return QString();
    const QVector<PatternItem> wanted =
        imageItems(itemsOf(stack->node(), plan, pattern), image, plan.pallet.plan());
    for (const QString &name : patternNames(stack->node())) {
        if (areAlike(itemsOf(stack->node(), plan, name), wanted))
            return name;
    }
    const QString name = imageName(stack->node(), pattern);
    ModuleObject *copy = addPattern(stack, name, pattern);
    writeItems(copy, itemsOf(stack->node(), plan, name), wanted);
    return name;
}

int imageLayers(ModuleObject *stack, const QVector<int> &layers, PatternImage image)
{
    int changed = 0;
    for (const int layer : layers) {
        const QString path = QStringLiteral("layers.#%1.pattern").arg(layer);
        const QString was = stack->getString(path);
        const QString is = layer < 0 ? QString() : imageOfPattern(stack, was, image);
        if (is.isEmpty() || is == was)
            continue;
        stack->set(nullptr, path, is);
        ++changed;
    }
    return changed;
}

bool layImageSeries(ModuleObject *stack, LayerSeries series, PatternImage image)
{
    const QString first = series.patterns.value(0);
    series.patterns = QStringList{first};
    if (!seriesProblem(stack->node(), series).isEmpty())
        return false;
    series.patterns << imageOfPattern(stack, first, image);
    return laySeries(stack, series);
}

} // namespace palx

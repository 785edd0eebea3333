#include "ui/pattern_problems.h"

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/stack_plan.h"
#include "stack/recipe_patterns.h"

#include <QCoreApplication>

#include <algorithm>

namespace palx {

namespace {

struct ProblemText
{
    Q_DECLARE_TR_FUNCTIONS(ProblemText)
};

double worstEdge(const Overhang &overhang)
{
    return std::max({overhang.left, overhang.top, overhang.right, overhang.bottom});
}

QStringList overlapProblems(const LayoutFindings &findings)
{
    QStringList problems;
    for (const Overlap &overlap : findings.overlaps)
        problems << ProblemText::tr("Products %1 and %2 overlap by %3 mm.")
                        .arg(overlap.first + 1)
                        .arg(overlap.second + 1)
                        .arg(overlap.depthMm, 0, 'f', 1);
    return problems;
}

QStringList overhangProblems(const LayoutFindings &findings)
{
    QStringList problems;
    for (int i = 0; i < findings.overhangs.size(); ++i) {
        if (findings.overhangs[i].any())
            problems << ProblemText::tr("Product %1 reaches %2 mm over the pallet.")
                            .arg(i + 1)
                            .arg(worstEdge(findings.overhangs[i]), 0, 'f', 1);
    }
    return problems;
}

QString sizeProblem(const orba::Node &stack, const QString &pattern, int items)
{
    const int others = otherSizedItems(stack, pattern);
    return others == 0 ? QString()
                       : ProblemText::tr("%1 of %2 products have another size than the recipe's product.")
                             .arg(others)
                             .arg(items);
}

QStringList storedProblems(const QVector<PatternItem> &items)
{
    const ItemFaults unusable = ItemFault::MissingValue | ItemFault::BadValue | ItemFault::ClampedSize |
                                ItemFault::ClampedPosition | ItemFault::ClampedOffset;
    QStringList problems;
    for (int i = 0; i < items.size(); ++i) {
        if (items[i].faults & unusable)
            problems << ProblemText::tr("Product %1 was stored with a value that cannot be used.").arg(i + 1);
    }
    return problems;
}

} // namespace

QStringList patternProblems(const orba::Node &stack, const QString &name)
{
    const orba::Node *pattern = findPattern(stack, name);
    if (!pattern)
        return {};
    const StackPlan plan = readStackPlan(stack);
    const QVector<PatternItem> items = readPatternItems(*pattern, plan.product.width, plan.product.length);
    const LayoutFindings findings = judgeLayout(items, plan.pallet.plan());
    QStringList problems = overlapProblems(findings) + overhangProblems(findings) + storedProblems(items);
    if (const QString size = sizeProblem(stack, name, items.size()); !size.isEmpty())
        problems << size;
    return problems;
}

} // namespace palx

#include "ui/pattern_problems.h"

#include "pattern/rules/stack_plan.h"
#include "stack/recipe_patterns.h"

#include <QCoreApplication>

#include <algorithm>

namespace palx {

namespace {

constexpr int kMostDirection = 32; // letters of a foreign word

struct ProblemText
{
    Q_DECLARE_TR_FUNCTIONS(ProblemText)
};

double worstEdge(const Overhang &overhang)
{
    return std::max({overhang.left, overhang.top, overhang.right, overhang.bottom});
}

QString shownMm(double mm)
{
    return QString::number(mm, 'f', 1);
}

void addOverlaps(const QVector<PatternItem> &items, const LayoutFindings &findings,
                 QVector<PatternProblem> *problems)
{
    for (const Overlap &overlap : findings.overlaps) {
        const bool same = itemBounds(items[overlap.first]) == itemBounds(items[overlap.second]);
        const QString text = same ? ProblemText::tr("Products %1 and %2 lie in the same place.")
                                  : ProblemText::tr("Products %1 and %2 overlap by %3 mm.");
        const QString numbered = text.arg(overlap.first + 1).arg(overlap.second + 1);
        problems->append(
            {same ? numbered : numbered.arg(shownMm(overlap.depthMm)), {overlap.first, overlap.second}});
    }
}

void addReaches(const QVector<Overhang> &reaches, const QString &text, QVector<PatternProblem> *problems)
{
    for (int i = 0; i < reaches.size(); ++i) {
        if (reaches[i].any())
            problems->append({text.arg(i + 1).arg(shownMm(worstEdge(reaches[i]))), {i}});
    }
}

void addHits(const OrderFindings &order, QVector<PatternProblem> *problems)
{
    for (const OrderHit &hit : order.hits)
        problems->append({ProblemText::tr("Product %1 hits product %2 on its way in, by %3 mm.")
                              .arg(hit.item + 1)
                              .arg(hit.placed + 1)
                              .arg(shownMm(hit.depthMm)),
                          {hit.placed, hit.item}});
}

void addGaps(const EditFindings &findings, const EditRules &rules, QVector<PatternProblem> *problems)
{
    for (const NarrowGap &gap : findings.narrow)
        problems->append({ProblemText::tr("Products %1 and %2 are %3 mm apart, less than %4 mm.")
                              .arg(gap.first + 1)
                              .arg(gap.second + 1)
                              .arg(shownMm(gap.gapMm), shownMm(rules.spacingMm)),
                          {gap.first, gap.second}});
}

void addFaults(const QVector<PatternItem> &items, QVector<PatternProblem> *problems)
{
    const ItemFaults unusable = ItemFault::MissingValue | ItemFault::BadValue | ItemFault::ClampedSize |
                                ItemFault::ClampedPosition | ItemFault::ClampedOffset;
    Selection misnumbered;
    for (int i = 0; i < items.size(); ++i) {
        if (items[i].faults & unusable)
            problems->append(
                {ProblemText::tr("Product %1 was stored with a value that cannot be used.").arg(i + 1), {i}});
        if (items[i].faults & ItemFault::UnknownDirection)
            problems->append(
                {ProblemText::tr("Product %1 has the unknown direction \"%2\": it comes from above.")
                     .arg(i + 1)
                     .arg(items[i].directionText.left(kMostDirection)),
                 {i}});
        if (items[i].faults & ItemFault::NumberOutOfOrder)
            misnumbered.append(i);
    }
    if (!misnumbered.isEmpty())
        problems->append({ProblemText::tr("The numbers of %1 products do not follow the order of placing.")
                              .arg(misnumbered.size()),
                          misnumbered});
}

} // namespace

QVector<PatternProblem> problemsOf(const QVector<PatternItem> &items, const EditFindings &findings,
                                   const EditRules &rules)
{
    QVector<PatternProblem> problems;
    addOverlaps(items, findings.layout, &problems);
    addReaches(findings.layout.overhangs, ProblemText::tr("Product %1 reaches %2 mm over the pallet."),
               &problems);
    addHits(findings.order, &problems);
    addReaches(findings.margins, ProblemText::tr("Product %1 reaches %2 mm into the margin."), &problems);
    addGaps(findings, rules, &problems);
    addFaults(items, &problems);
    return problems;
}

QVector<PatternProblem> countProblems(const orba::Node &stack, const QString &name)
{
    const orba::Node *pattern = findPattern(stack, name);
    const int count = pattern ? pattern->size() : 0;
    QVector<PatternProblem> problems;
    if (const int others = otherSizedItems(stack, name))
        problems.append({ProblemText::tr("%1 of %2 products have another size than the recipe's product.")
                             .arg(others)
                             .arg(count),
                         {}});
    if (count > kMaxItems)
        problems.append(
            {ProblemText::tr("There are %1 products; the controller takes at most %2 in a pattern.")
                 .arg(count)
                 .arg(kMaxItems),
             {}});
    if (count > kMaxShownItems)
        problems.append({ProblemText::tr("Only the first %1 products are shown.").arg(kMaxShownItems), {}});
    return problems;
}

QVector<PatternProblem> patternProblemList(const orba::Node &stack, const QString &name)
{
    const orba::Node *pattern = findPattern(stack, name);
    if (!pattern)
        return {};
    const StackPlan plan = readStackPlan(stack);
    const QVector<PatternItem> items = readPatternItems(*pattern, plan.product.width, plan.product.length);
    const EditRules rules = readEditRules(stack);
    return problemsOf(items, judgeEdit(items, rules), rules) + countProblems(stack, name);
}

QStringList patternProblems(const orba::Node &stack, const QString &name)
{
    QStringList texts;
    for (const PatternProblem &problem : patternProblemList(stack, name))
        texts << problem.text;
    return texts;
}

} // namespace palx

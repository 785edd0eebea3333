#include "pattern/rules/edit_findings.h"

#include "pattern/rules/shadows.h"
#include "pattern/rules/stack_plan.h"

namespace palx {

namespace {

void findNarrowGaps(const QVector<PatternItem> &items, double spacingMm, EditFindings *findings)
{
    QVector<Corners> corners;
    QVector<QRectF> bounds;
    for (const PatternItem &item : items) {
        corners.append(itemCorners(item));
        bounds.append(boundsOf(corners.last()));
        findings->tight.append(false);
    }
    const double least = spacingMm - kContactMm;
    if (least <= 0)
        return;
    eachNearPair(bounds, least, [&](int first, int second) {
        const double gap = gapMm(corners[first], corners[second]);
        if (gap >= least || gap < -kContactMm || findings->narrow.size() >= kMaxListedOverlaps)
            return;
        findings->narrow.append({first, second, std::max(gap, 0.0)});
        findings->tight[first] = findings->tight[second] = true;
    });
    std::sort(findings->narrow.begin(), findings->narrow.end(), [](const NarrowGap &a, const NarrowGap &b) {
        return a.first != b.first ? a.first < b.first : a.second < b.second;
    });
}

/// Over an edge of the pallet the margin has nothing more to say.
double intoMargin(double overMargin, double overPallet)
{
    return overPallet > 0 || overMargin <= kContactMm ? 0 : overMargin;
}

Overhang intoMargins(const QRectF &bounds, const QRectF &inside, const Overhang &overPallet)
{
    return {intoMargin(inside.left() - bounds.left(), overPallet.left),
            intoMargin(inside.top() - bounds.top(), overPallet.top),
            intoMargin(bounds.right() - inside.right(), overPallet.right),
            intoMargin(bounds.bottom() - inside.bottom(), overPallet.bottom)};
}

} // namespace

EditRules readEditRules(const orba::Node &stack)
{
    const StackPlan plan = readStackPlan(stack);
    EditRules rules;
    rules.pallet = plan.pallet.plan();
    rules.inside =
        QRectF(QPointF(plan.marginLeft, plan.marginTop),
               QPointF(rules.pallet.width() - plan.marginRight, rules.pallet.height() - plan.marginBottom));
    if (const orba::Node *stacker = stack.find(u"automatic_stacker"))
        rules.spacingMm = std::clamp(readMm(*stacker, u"min_product_spacing", 0), 0.0, kMaxItemMm);
    rules.frame = readApproachFrame(stack);
    return rules;
}

bool EditFindings::any() const
{
    const auto reaches = [](const Overhang &o) { return o.any(); };
    return !layout.overlaps.isEmpty() || layout.overhangCount() > 0 || !narrow.isEmpty() ||
           !order.hits.isEmpty() || std::any_of(margins.begin(), margins.end(), reaches);
}

EditFindings judgeEdit(const QVector<PatternItem> &items, const EditRules &rules)
{
    EditFindings findings;
    findings.layout = judgeLayout(items, rules.pallet);
    findNarrowGaps(items, rules.spacingMm, &findings);
    for (int i = 0; i < items.size(); ++i)
        findings.margins.append(
            intoMargins(itemBounds(items[i]), rules.inside, findings.layout.overhangs[i]));
    findings.order = checkOrder(items, rules.frame);
    return findings;
}

} // namespace palx

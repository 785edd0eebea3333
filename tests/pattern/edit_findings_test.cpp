#include "pattern/rules/edit_findings.h"

#include "pattern/plan_recipe.h"

#include <gtest/gtest.h>

using palx::EditFindings;
using palx::EditRules;
using palx::PatternItem;

namespace {

EditRules rulesOf(double spacingMm, const QRectF &inside = QRectF(0, 0, 800, 1200))
{
    EditRules rules;
    rules.pallet = QSizeF(800, 1200);
    rules.inside = inside;
    rules.spacingMm = spacingMm;
    rules.frame = namedSides();
    return rules;
}

std::string narrowOf(const EditFindings &findings)
{
    QStringList texts;
    for (const palx::NarrowGap &gap : findings.narrow)
        texts << QStringLiteral("%1-%2:%3").arg(gap.first).arg(gap.second).arg(gap.gapMm, 0, 'g', 6);
    return texts.join(QLatin1Char(' ')).toStdString();
}

std::string text(const palx::Overhang &over)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(over.left)
        .arg(over.top)
        .arg(over.right)
        .arg(over.bottom)
        .toStdString();
}

} // namespace

TEST(EditFindings, GapsBelowTheLeastSpacing)
{
    const PatternItem first = planItem(50, 100, 100, 200);
    struct
    {
        const char *what;
        PatternItem second;
        double spacing;
        const char *narrow;
    } const cases[] = {
        {"touching", planItem(150, 100, 100, 200), 1, "0-1:0"},
        {"none asked for", planItem(150, 100, 100, 200), 0, ""},
        {"past a corner, too near", planItem(153, 302, 100, 200), 5, "0-1:3"},
        {"a turned corner", planItem(100 + 73, 100, 100, 100, 45), 5, "0-1:2.28932"},
    };
    for (const auto &one : cases) {
        const EditFindings findings = palx::judgeEdit({first, one.second}, rulesOf(one.spacing));
        EXPECT_EQ(narrowOf(findings), one.narrow) << one.what;
        EXPECT_EQ(findings.tight, QVector<bool>(2, *one.narrow != 0)) << one.what;
    }
}

TEST(EditFindings, MarginsCountWhereThePalletDoesNot)
{
    const EditRules rules = rulesOf(1, QRectF(QPointF(20, 30), QPointF(790, 1200)));
    struct
    {
        PatternItem item;
        const char *margins, *pallet;
    } const cases[] = {
        {planItem(65, 105, 100, 200), "5 25 0 0", "0 0 0 0"},
        {planItem(40, 80, 100, 200), "0 0 0 0", "10 20 0 0"},
        {planItem(770, 110, 100, 200), "0 20 0 0", "0 0 20 0"},
    };
    for (const auto &one : cases) {
        const EditFindings findings = palx::judgeEdit({one.item}, rules);
        EXPECT_EQ(text(findings.margins[0]), one.margins) << one.item.x << ',' << one.item.y;
        EXPECT_EQ(text(findings.layout.overhangs[0]), one.pallet) << one.item.x << ',' << one.item.y;
    }
}

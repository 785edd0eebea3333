#pragma once

#include "pattern/rules/edit_findings.h"
#include "pattern/rules/edit_move.h"

#include <QStringList>

namespace palx {

/// One thing that is wrong with a pattern, as a sentence, and the products concerned.
struct PALX_API PatternProblem
{
    QString text;
    Selection items; ///< places from 0
};
inline bool operator==(const PatternProblem &a, const PatternProblem &b)
{
    return a.text == b.text && a.items == b.items;
}

/// What is wrong with items that are shown or edited: overlaps, products over the pallet or in a margin, narrow
/// gaps, ways that are blocked, stored values that cannot be used.
PALX_API QVector<PatternProblem> problemsOf(const QVector<PatternItem> &items, const EditFindings &findings,
                                            const EditRules &rules);
/// Whether a stored pattern has products of another size than the recipe's, or too many.
PALX_API QVector<PatternProblem> countProblems(const orba::Node &stack, const QString &pattern);
/// Both for a stored pattern.
PALX_API QVector<PatternProblem> patternProblemList(const orba::Node &stack, const QString &pattern);
/// Only the sentences.
PALX_API QStringList patternProblems(const orba::Node &stack, const QString &pattern);

} // namespace palx

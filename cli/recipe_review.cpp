#include "recipe_review.h"

#include "orba/module_manager.h"
#include "stack/put_points.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"
#include "stack/recipe_points.h"
#include "ui/pattern_problems.h"
#include "workstation/plugin_node.h"

namespace cli {
namespace {

using orba::Node;

/// Work objects that look in different directions give no positions.
QStringList mixedTowards(orba::ModuleObject *recipe, const Node &plugin)
{
    const qint64 first = plugin.getInt(u"global_wobj.#0.towards");
    const qint64 second = plugin.getInt(u"global_wobj.#1.towards");
    const bool usable = first == second && (first == 0 || first == 1);
    if (usable || !palx::isGlobalWObjCalibrationMethodOne(recipe))
        return {};
    return {QStringLiteral("\"towards\" of the two work objects is %1 and %2; only both 0 or both 1 give "
                           "positions on the pallet.")
                .arg(first)
                .arg(second)};
}

/// Kind, texts.
using Findings = QVector<QPair<QString, QStringList>>;

Findings findings(const RecipeReview &review)
{
    return {{QStringLiteral("repair"), review.repairs},
            {QStringLiteral("refusal"), review.refusals},
            {QStringLiteral("warning"), review.warnings}};
}

} // namespace

QStringList recipeWarnings(orba::ModuleObject *recipe)
{
    const Node &stack = recipe->node();
    QStringList warnings;
    if (const QString size = palx::sizeWarning(stack); !size.isEmpty())
        warnings.append(size);
    for (const QString &pattern : palx::patternNames(stack)) {
        for (const QString &problem : palx::patternProblems(stack, pattern))
            warnings.append(QStringLiteral("Pattern \"%1\": %2").arg(pattern, problem));
    }
    const Node &plugin = palx::pluginNodeOf(stack);
    return warnings + palx::layerProblems(stack) + palx::untaughtPoints(stack, plugin) +
           palx::lowWaypoints(stack, plugin) + mixedTowards(recipe, plugin);
}

QByteArray reviewsJson(const QVector<RecipeReview> &reviews)
{
    Node root;
    Node &stacks = *root.ensureChild(orba::Name(u"stacks"));
    stacks.reset(Node::Kind::List);
    for (const RecipeReview &review : reviews) {
        Node &stack = *stacks.add();
        stack.ensureChild(orba::Name(u"name"))->setString(review.name);
        for (const auto &kind : findings(review)) {
            Node &list = *stack.ensureChild(orba::Name(kind.first + QLatin1Char('s')));
            list.reset(Node::Kind::List);
            for (const QString &text : kind.second)
                list.add()->setString(text);
        }
    }
    return orba::ModuleManager::toJson(root, true) + '\n';
}

QByteArray reviewsText(const QVector<RecipeReview> &reviews)
{
    QString text;
    for (const RecipeReview &review : reviews) {
        text += QStringLiteral("%1: repairs %2, refusals %3, warnings %4\n")
                    .arg(review.name)
                    .arg(review.repairs.size())
                    .arg(review.refusals.size())
                    .arg(review.warnings.size());
        for (const auto &kind : findings(review)) {
            for (const QString &finding : kind.second)
                text += QStringLiteral("  %1: %2\n").arg(kind.first, finding);
        }
    }
    return text.toUtf8();
}

} // namespace cli

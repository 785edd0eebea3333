#pragma once

#include "orba/module_object.h"

#include <QStringList>

namespace cli {

/// What the checks and a look at the whole recipe say about it.
struct RecipeReview
{
    QString name;
    QStringList repairs;  ///< values that the checks set to something usable
    QStringList refusals; ///< what no check can repair
    QStringList warnings; ///< plain mistakes that the checks leave alone
};

/// Mistakes in patterns, layers and taught points as the set-up page shows them, and settings of the work
/// objects that give no positions.
QStringList recipeWarnings(orba::ModuleObject *recipe);

QByteArray reviewsJson(const QVector<RecipeReview> &reviews);
/// One line per recipe, one indented line per finding.
QByteArray reviewsText(const QVector<RecipeReview> &reviews);

} // namespace cli

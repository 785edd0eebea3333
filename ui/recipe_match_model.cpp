#include "ui/recipe_match_model.h"

#include <QIcon>

using ix::xtheme::Glyph;
using palx::RecipeMatch;
using palx::RecipePlace;

namespace {

ix::xtheme::State lookOf(const RecipeMatch &match)
{
    return match.place == RecipePlace::Same ? ix::xtheme::State::Running : ix::xtheme::State::Attention;
}

/// Dark enough to be read on the light ground of a table.
QColor inkOf(const RecipeMatch &match)
{
    return ix::xtheme::color(lookOf(match)).darker(160);
}

} // namespace

void RecipeMatchModel::setMatches(const std::vector<RecipeMatch> &matches)
{
    const bool isOther = matches.size() != matches_.size();
    if (isOther)
        beginResetModel();
    matches_ = matches;
    if (isOther)
        endResetModel();
    else if (!matches_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int RecipeMatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(matches_.size());
}

int RecipeMatchModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : State + 1;
}

QVariant RecipeMatchModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const RecipeMatch &match = matches_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return text(match, index.column());
    if (role == Qt::TextAlignmentRole)
        return int((index.column() == Place ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (index.column() != State)
        return QVariant();
    if (role == Qt::ForegroundRole)
        return inkOf(match);
    if (role == Qt::DecorationRole)
        return ix::xtheme::icon(match.place == RecipePlace::Same ? Glyph::Check : Glyph::Warning,
                                inkOf(match));
    return QVariant();
}

QVariant RecipeMatchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return QStringList({tr("No."), tr("Recipe"), tr("Panel"), tr("Controller"), tr("State")}).value(section);
}

QString RecipeMatchModel::text(const RecipeMatch &match, int column) const
{
    const auto figures = [](const host::RecipeSummary &summary) {
        return tr("%1 places, %2 layers").arg(summary.products).arg(summary.layers);
    };
    const QString none(QChar(0x2013));
    switch (column) {
    case Place:
        return match.panelIndex < 0 ? none : QString::number(match.panelIndex + 1);
    case Name:
        return match.name;
    case Panel:
        return match.panelIndex < 0 ? none : figures(match.panel);
    case Controller:
        return match.controllerIndex < 0 ? none : figures(match.controller);
    default:
        break;
    }
    switch (match.place) {
    case RecipePlace::Same:
        return tr("The same");
    case RecipePlace::Moved:
        return tr("At place %1").arg(match.controllerIndex + 1);
    case RecipePlace::Other:
        return tr("Other points");
    case RecipePlace::Missing:
        return tr("Missing there");
    case RecipePlace::Extra:
        break;
    }
    return tr("Only there");
}

#include "ui/im_export_model.h"

#include "ix/xtheme.h"

#include <QIcon>

#include <algorithm>

using ix::xtheme::Glyph;
using palx::ImportStep;

namespace {

/// What operators call the parts that older recipes lack.
QString partText(const QString &key)
{
    const struct
    {
        QLatin1String key;
        QString text;
    } parts[] = {{QLatin1String("get"), ImExportModel::tr("pick points")},
                 {QLatin1String("bollard"), ImExportModel::tr("corner posts")},
                 {QLatin1String("pallet_position"), ImExportModel::tr("pallet side")},
                 {QLatin1String("use_global_tool"), ImExportModel::tr("choice of tool")},
                 {QLatin1String("use_global_wobj"), ImExportModel::tr("choice of work object")},
                 {QLatin1String("automatic_stacker"), ImExportModel::tr("automatic layout")},
                 {QLatin1String("wobj_margin"), ImExportModel::tr("margins")}};
    for (const auto &part : parts)
        if (key == part.key)
            return part.text;
    return key;
}

QString partsText(const QStringList &keys)
{
    QStringList parts;
    for (const QString &key : keys)
        parts.append(partText(key));
    return parts.join(QStringLiteral(", "));
}

} // namespace

void ImExportModel::setRecipes(const orba::Node &list, const std::vector<QStringList> &added)
{
    beginResetModel();
    rows_.clear();
    for (const int child : palx::recipeIndexes(list)) {
        const orba::Node &recipe = *list.at(child);
        const QStringList parts = rows_.size() < added.size() ? added[rows_.size()] : QStringList();
        rows_.push_back({recipe.getString(u"name"), recipe.getString(u"desc"), parts});
    }
    ticked_.assign(rows_.size(), true);
    steps_.clear();
    endResetModel();
    Q_EMIT tickedChanged();
}

void ImExportModel::setSteps(const std::vector<ImportStep> &steps)
{
    steps_ = steps;
    if (!rows_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Outcome));
}

int ImExportModel::tickedCount() const
{
    return static_cast<int>(std::count(ticked_.begin(), ticked_.end(), true));
}

void ImExportModel::toggle(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    ticked_[static_cast<std::size_t>(row)].flip();
    Q_EMIT dataChanged(index(row, 0), index(row, Outcome));
    Q_EMIT tickedChanged();
}

void ImExportModel::tickAll(bool isTicked)
{
    ticked_.assign(rows_.size(), isTicked);
    if (!rows_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Outcome));
    Q_EMIT tickedChanged();
}

int ImExportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ImExportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Outcome + 1;
}

const ImportStep *ImExportModel::step(int row) const
{
    const auto at = static_cast<std::size_t>(row);
    return at < steps_.size() ? &steps_[at] : nullptr;
}

QVariant ImExportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const int row = index.row();
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(row, index.column());
    if (role == Qt::CheckStateRole && index.column() == Tick)
        return ticked_[static_cast<std::size_t>(row)] ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::AccessibleTextRole && index.column() == Tick)
        return ticked_[static_cast<std::size_t>(row)] ? tr("ticked") : tr("not ticked");
    return index.column() == Outcome ? look(row, role) : QVariant();
}

QVariant ImExportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section + 1;
    return QStringList({QString(), tr("Recipe"), tr("Description"), tr("What happens")}).value(section);
}

QString ImExportModel::text(int row, int column) const
{
    const Row &shown = rows_[static_cast<std::size_t>(row)];
    switch (column) {
    case Name:
        return shown.name.trimmed().isEmpty() ? tr("(no name)") : shown.name;
    case Description:
        return shown.desc;
    case Outcome:
        return outcome(row);
    default:
        return QString();
    }
}

QString ImExportModel::outcome(int row) const
{
    const ImportStep *what = step(row);
    if (!what)
        return QString();
    const int other = what->sameAs + 1;
    QString text;
    switch (what->arrival) {
    case ImportStep::Unticked:
        return tr("Is left out");
    case ImportStep::Skipped:
        return other > 0 ? tr("Skipped: row %1 has the name").arg(other) : tr("Skipped: the name is taken");
    case ImportStep::Overtaken:
        return tr("Skipped: row %1 replaces it").arg(other);
    case ImportStep::New:
        text = tr("New recipe");
        break;
    case ImportStep::Renamed:
        text = other > 0 ? tr("Row %1 has the name: becomes \"%2\"").arg(other).arg(what->name)
                         : tr("Renamed to \"%1\"").arg(what->name);
        break;
    case ImportStep::Replacing:
        text = tr("Replaces no. %1 and stands at no. %2").arg(what->replacedPlace + 1).arg(what->place + 1);
        break;
    }
    const QStringList &added = rows_[static_cast<std::size_t>(row)].added;
    return added.isEmpty() ? text
                           : text + QStringLiteral(". ") + tr("Usual values for: %1").arg(partsText(added));
}

QVariant ImExportModel::look(int row, int role) const
{
    const ImportStep *what = step(row);
    if (!what)
        return QVariant();
    const bool isReplacing = what->arrival == ImportStep::Replacing;
    const QColor ink = !what->arrives() ? QColor(Qt::darkGray)
                                        : ix::xtheme::color(isReplacing ? ix::xtheme::State::Attention
                                                                        : ix::xtheme::State::Running)
                                              .darker(160); // dark enough for the light ground of a table
    if (role == Qt::ForegroundRole)
        return ink;
    if (role == Qt::DecorationRole)
        return ix::xtheme::icon(isReplacing       ? Glyph::Warning
                                : what->arrives() ? Glyph::Check
                                                  : Glyph::Remove,
                                ink);
    return QVariant();
}

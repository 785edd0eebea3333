#include "ui/exchange_table_model.h"

#include "ix/xtheme.h"

#include <QColor>
#include <QIcon>

#include <algorithm>

using ix::xtheme::Glyph;
using ix::xtheme::State;

namespace {

/// Dark enough for the light ground of a table.
QColor ink(ExchangeFate::Kind fate)
{
    constexpr int kDarker = 160;
    switch (fate) {
    case ExchangeFate::Comes:
        return ix::xtheme::color(State::Running).darker(kDarker);
    case ExchangeFate::Replaces:
        return ix::xtheme::color(State::Attention).darker(kDarker);
    case ExchangeFate::Impossible:
        return ix::xtheme::color(State::Fault).darker(kDarker);
    default:
        return QColor(Qt::darkGray);
    }
}

Glyph glyph(ExchangeFate::Kind fate)
{
    return fate == ExchangeFate::Comes   ? Glyph::Check
           : fate == ExchangeFate::Stays ? Glyph::Remove
                                         : Glyph::Warning;
}

QVariant tickData(const ExchangeTableModel::Row &row, int role)
{
    if (role == Qt::CheckStateRole)
        return row.isTicked ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::AccessibleTextRole)
        return row.isTicked ? ExchangeTableModel::tr("ticked") : ExchangeTableModel::tr("not ticked");
    return QVariant();
}

QVariant fateData(const ExchangeFate &fate, int role)
{
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return fate.text;
    if (role == Qt::ForegroundRole && fate.kind != ExchangeFate::Untold)
        return ink(fate.kind);
    if (role == Qt::DecorationRole && fate.kind != ExchangeFate::Untold)
        return ix::xtheme::icon(glyph(fate.kind), ink(fate.kind));
    return QVariant();
}

} // namespace

void ExchangeTableModel::setTitles(const QStringList &titles)
{
    if (titles.size() == titles_.size()) { // in another language
        titles_ = titles;
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, fateColumn());
        return;
    }
    beginResetModel();
    titles_ = titles;
    endResetModel();
}

void ExchangeTableModel::setRows(const QVector<Row> &rows)
{
    beginResetModel();
    rows_ = rows;
    fates_ = QVector<ExchangeFate>(rows.size());
    endResetModel();
    Q_EMIT tickedChanged();
}

void ExchangeTableModel::setFates(const QVector<ExchangeFate> &fates)
{
    fates_ = fates;
    fates_.resize(rows_.size());
    noteChange();
}

void ExchangeTableModel::noteChange()
{
    if (!rows_.isEmpty())
        Q_EMIT dataChanged(index(0, kTick), index(rows_.size() - 1, fateColumn()));
}

void ExchangeTableModel::toggle(int row)
{
    if (row < 0 || row >= rows_.size() || !rows_.at(row).problem.isEmpty())
        return;
    rows_[row].isTicked = !rows_.at(row).isTicked;
    Q_EMIT dataChanged(index(row, kTick), index(row, fateColumn()));
    Q_EMIT tickedChanged();
}

void ExchangeTableModel::tickAll(bool isTicked)
{
    for (Row &row : rows_)
        row.isTicked = isTicked && row.problem.isEmpty();
    noteChange();
    Q_EMIT tickedChanged();
}

std::vector<bool> ExchangeTableModel::ticked() const
{
    std::vector<bool> ticked;
    for (const Row &row : rows_)
        ticked.push_back(row.isTicked);
    return ticked;
}

int ExchangeTableModel::tickedCount() const
{
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const Row &row) { return row.isTicked; }));
}

QStringList ExchangeTableModel::tickedItems() const
{
    QStringList items;
    for (const Row &row : rows_)
        if (row.isTicked)
            items.append(row.item);
    return items;
}

int ExchangeTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_.size();
}

int ExchangeTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : titles_.size();
}

QVariant ExchangeTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows_.size())
        return QVariant();
    if (index.column() == kTick)
        return tickData(rows_.at(index.row()), role);
    if (index.column() == fateColumn())
        return fateData(fates_.at(index.row()), role);
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isText ? rows_.at(index.row()).texts.value(index.column() - kName) : QVariant();
}

QVariant ExchangeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    return orientation == Qt::Vertical ? QVariant(section + 1) : titles_.value(section);
}

#include "ui/exchange_table_model.h"

#include <QColor>

using ix::xtheme::State;

void ExchangeTableModel::setTitles(const QStringList &titles)
{
    titles_ = titles;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, kBecomes);
}

void ExchangeTableModel::setRows(const QVector<Row> &rows)
{
    beginResetModel();
    rows_ = rows;
    endResetModel();
    Q_EMIT chosen();
}

void ExchangeTableModel::setBecomes(int row, const QString &text, State state)
{
    rows_[row].becomes = text;
    rows_[row].state = state;
    Q_EMIT dataChanged(index(row, kChosen), index(row, kBecomes));
}

void ExchangeTableModel::toggle(int row)
{
    if (row < 0 || row >= rows_.size() || !rows_.at(row).problem.isEmpty())
        return;
    rows_[row].isChecked = !rows_.at(row).isChecked;
    Q_EMIT dataChanged(index(row, kChosen), index(row, kBecomes));
    Q_EMIT chosen();
}

void ExchangeTableModel::checkAll(bool isChecked)
{
    for (Row &row : rows_)
        row.isChecked = isChecked && row.problem.isEmpty();
    if (!rows_.isEmpty())
        Q_EMIT dataChanged(index(0, kChosen), index(rows_.size() - 1, kBecomes));
    Q_EMIT chosen();
}

QStringList ExchangeTableModel::checked() const
{
    QStringList items;
    for (const Row &row : rows_)
        if (row.isChecked)
            items.append(row.item);
    return items;
}

int ExchangeTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_.size();
}

int ExchangeTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kBecomes + 1;
}

QVariant ExchangeTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row &row = rows_.at(index.row());
    const bool isColored = index.column() == kBecomes && row.state != State::None;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return index.column() == kChosen ? QVariant() : index.column() == kName ? row.name : row.becomes;
    case Qt::AccessibleTextRole:
        return index.column() == kChosen ? QVariant(row.isChecked ? tr("chosen") : tr("not chosen"))
                                         : QVariant();
    case Qt::CheckStateRole:
        return index.column() == kChosen ? QVariant(row.isChecked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::BackgroundRole:
        return isColored ? QVariant(ix::xtheme::color(row.state)) : QVariant();
    case Qt::ForegroundRole:
        return isColored ? QVariant(ix::xtheme::textColor(row.state)) : QVariant();
    default:
        return QVariant();
    }
}

QVariant ExchangeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? titles_.value(section) : QVariant();
}

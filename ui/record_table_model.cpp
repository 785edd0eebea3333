#include "ui/record_table_model.h"

void RecordTableModel::setStack(orba::ModuleObject *stack)
{
    stack_ = stack;
    refresh();
}

const orba::Node *RecordTableModel::stack() const
{
    return stack_ ? &stack_->node() : nullptr;
}

void RecordTableModel::refresh()
{
    const int rows = readRows();
    if (rows != rows_) {
        beginResetModel();
        rows_ = rows;
        endResetModel();
    } else if (rows > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
    }
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int RecordTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int RecordTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns().size();
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows_)
        return QVariant();
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return int((isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return QVariant();
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return columns().value(section);
    return QVariant();
}

QString shownNumber(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

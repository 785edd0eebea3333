#pragma once

#include "orba/export.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

#include <vector>

/// What will become of a row.
struct ExchangeFate
{
    enum Kind { Untold, Stays, Comes, Replaces, Impossible };

    Kind kind = Untold;
    QString text;
};

/// What can be ticked to be imported or exported, and what will become of it: a tick, texts, and the fate.
class PALX_API ExchangeTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kTick, kName }; // and more texts as there are titles; the fate is last

    struct Row
    {
        QStringList texts; ///< as they are shown, from the name on
        QString item;      ///< project or archive
        QString problem;   ///< why it cannot be ticked; empty for nothing
        bool isTicked = false;
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Of all columns.
    void setTitles(const QStringList &titles);
    int fateColumn() const { return titles_.size() - 1; }
    void setRows(const QVector<Row> &rows);
    const QVector<Row> &rows() const { return rows_; }
    /// Row by row; sends no `tickedChanged`.
    void setFates(const QVector<ExchangeFate> &fates);
    const ExchangeFate &fate(int row) const { return fates_.at(row); }
    void toggle(int row);
    void tickAll(bool isTicked);
    std::vector<bool> ticked() const;
    int tickedCount() const;
    QStringList tickedItems() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// Ticks, or rows, have changed.
    void tickedChanged();

private:
    void noteChange();

    QStringList titles_;
    QVector<Row> rows_;
    QVector<ExchangeFate> fates_; ///< as many as rows
};

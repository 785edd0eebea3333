#pragma once

#include "ix/xtheme.h"
#include "orba/export.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

/// What is chosen to be imported or exported, and what becomes of it.
class PALX_API ExchangeTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kChosen, kName, kBecomes };

    struct Row
    {
        QString name;    ///< as it is shown
        QString item;    ///< project or archive
        QString problem; ///< why it cannot be chosen; empty for nothing
        bool isChecked = false;
        QString becomes; ///< what will happen, or why nothing can
        ix::xtheme::State state = ix::xtheme::State::None;
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setTitles(const QStringList &titles);
    void setRows(const QVector<Row> &rows);
    const QVector<Row> &rows() const { return rows_; }
    /// What will happen to each row; sends no `chosen`.
    void setBecomes(int row, const QString &text, ix::xtheme::State state);
    void toggle(int row);
    void checkAll(bool isChecked);
    /// The items of checked rows.
    QStringList checked() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    /// Other rows are checked now.
    void chosen();

private:
    QStringList titles_;
    QVector<Row> rows_;
};

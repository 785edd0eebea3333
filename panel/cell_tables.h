#pragma once

#include "ix/xtheme.h"
#include "orba/node.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

namespace panel {

/// One row of a table of the cell: its texts, what it is known by, and whether it wants attention.
struct CellRow
{
    QStringList cells;
    QString key;
    ix::xtheme::State state = ix::xtheme::State::None;
};
bool operator==(const CellRow &a, const CellRow &b);
inline bool operator!=(const CellRow &a, const CellRow &b)
{
    return !(a == b);
}

/// Rows that are made anew whenever the controller tells something; only what differs is told to the view, so that the
/// choice and the place of a table stay.
class CellTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTitles(const QStringList &titles);
    void setRows(const QVector<CellRow> &rows);
    const QVector<CellRow> &rows() const { return rows_; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QStringList titles_;
    QVector<CellRow> rows_;
};

/// "task0", "moving", "main.mod:12"
QVector<CellRow> taskRows(const orba::Node &cell);
/// "DI2_0", "start button", "on"; known by the name of the signal.
QVector<CellRow> signalRows(const orba::Node &cell);
/// The latest first, in two lines: task, and file with line; "2 / 5" for layer and piece; the two bodies. Known by what
/// happened.
QVector<CellRow> violationRows(const orba::Node &cell);
/// The variables whose name or description holds a text: "currentLayerL", "3", "int"; known by the name. Those that cannot
/// be set, because they are not persistent, have their type in brackets.
QVector<CellRow> variableRows(const orba::Node &list, const QString &search);

/// The value that a text stands for, for a variable of that type; a text that is none stays a text, which the controller
/// refuses with a reason.
orba::Node variableValue(const QString &type, const QString &text);

} // namespace panel

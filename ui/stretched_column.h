#pragma once

#include <QObject>

class QTableView;

/// Gives a column of a table the width that the others leave, and never less than its contents need; the table
/// then scrolls sideways instead. The header's own way of stretching cuts the contents off.
class StretchedColumn : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the table, whose model is set already and stays.
    StretchedColumn(QTableView *table, int column);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void stretch();

    QTableView *table_;
    int column_;
    bool stretching_ = false;
};

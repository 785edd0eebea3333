#pragma once

#include "orba/export.h"

#include <QObject>

class QTableView;

namespace ix {

/// Gives a column of a table the width that the others leave, and never less than its contents or its title need; the table
/// then scrolls sideways instead. The header's own way of stretching cuts both off.
class PALX_API StretchedColumn : public QObject
{
    Q_OBJECT

public:
    /// What is shown whole; longer contents than a title are elided.
    enum class Least { Contents, Title };

    /// Belongs to the table, whose model is set already and stays.
    StretchedColumn(QTableView *table, int column, Least least = Least::Contents);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void stretch();

    QTableView *table_;
    int column_;
    Least least_;
    bool stretching_ = false;
};

} // namespace ix

#include "ix/stretched_column.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>

namespace ix {

StretchedColumn::StretchedColumn(QTableView *table, int column, Least least)
    : QObject(table), table_(table), column_(column), least_(least)
{
    QHeaderView *header = table->horizontalHeader();
    table->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionResized, this, &StretchedColumn::stretch);
    connect(header, &QHeaderView::sectionCountChanged, this, &StretchedColumn::stretch);
    const QAbstractItemModel *model = table->model();
    Q_ASSERT(model);
    connect(model, &QAbstractItemModel::modelReset, this, &StretchedColumn::stretch);
    connect(model, &QAbstractItemModel::dataChanged, this, &StretchedColumn::stretch);
    connect(model, &QAbstractItemModel::headerDataChanged, this, &StretchedColumn::stretch);
}

void StretchedColumn::stretch()
{
    QHeaderView *header = table_->horizontalHeader();
    if (stretching_ || column_ >= header->count())
        return;
    const QScopedValueRollback<bool> stretching(stretching_, true);
    if (header->sectionResizeMode(column_) != QHeaderView::Fixed) // a model that was reset has forgotten it
        header->setSectionResizeMode(column_, QHeaderView::Fixed);
    const QAbstractItemView *view = table_;
    const int contents = least_ == Least::Contents ? view->sizeHintForColumn(column_) : 0;
    const int least = std::max(contents, header->sectionSizeHint(column_));
    const int others = header->length() - header->sectionSize(column_);
    header->resizeSection(column_, std::max(least, table_->viewport()->width() - others));
}

bool StretchedColumn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        stretch();
    return QObject::eventFilter(watched, event);
}

} // namespace ix

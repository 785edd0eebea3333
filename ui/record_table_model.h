#pragma once

#include "orba/module_object.h"

#include <QAbstractTableModel>
#include <QPointer>

/// A table that is read from a recipe when it is asked to: a number of rows, and texts. Subclasses say which.
///
/// `refresh` keeps selection and scrolling while the number of rows stays.
class PALX_API RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setStack(orba::ModuleObject *stack);
    void refresh();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

protected:
    /// The recipe's storage, or null.
    const orba::Node *stack() const;
    /// The recipe, or null.
    orba::ModuleObject *stackMobj() const { return stack_; }
    /// Reads what the rows need; returns their number.
    virtual int readRows() = 0;
    virtual QStringList columns() const = 0;
    virtual QString text(int row, int column) const = 0;
    virtual bool isNumber(int) const { return true; }

private:
    QPointer<orba::ModuleObject> stack_;
    int rows_ = 0;
};

/// Millimetres, kilograms, degrees as operators read them: without needless decimals.
PALX_API QString shownNumber(double value, int decimals = 1);

#pragma once

#include "stack/recipe_layers.h"
#include "ui/record_table_model.h"

#include <QVector>

/// The layers of a recipe from the pallet up: number, pattern, products, bottom and top above the pallet's
/// deck. A layer's pattern can be written, to one that the recipe has, the separator sheet or the empty layer.
class PALX_API LayerTableModel : public RecordTableModel
{
    Q_OBJECT

public:
    static constexpr int kPattern = 1; ///< column
    static constexpr int kBottom = 3;  ///< column

    using RecordTableModel::RecordTableModel;

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// The name of the pattern for Qt::EditRole in the pattern's column.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Writes the pattern; false for one that the recipe does not have.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

protected:
    int readRows() override;
    QStringList columns() const override;
    QString text(int row, int column) const override;
    bool isNumber(int column) const override { return column != kPattern; }

private:
    QVector<palx::LayerFacts> layers_;
};

/// The products of one pattern in placing order, with their places and the sides they come from.
class PALX_API ItemTableModel : public RecordTableModel
{
    Q_OBJECT

public:
    static constexpr int kDirection = 4; ///< column

    using RecordTableModel::RecordTableModel;

    void setPattern(const QString &name);

protected:
    int readRows() override;
    QStringList columns() const override;
    QString text(int row, int column) const override;
    bool isNumber(int column) const override { return column != kDirection; }

private:
    const orba::Node *pattern() const;
    QString name_;
};

/// What a layer's pattern name says to the operator.
PALX_API QString shownPattern(const QString &pattern);
/// What a direction name says to the operator; unknown names as they stand.
PALX_API QString shownDirection(const QString &direction);

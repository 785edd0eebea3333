#pragma once

#include "ui/record_table_model.h"

#include <QVector>

/// Every generated point of a recipe in millimetres and degrees: the pick side, then layer by layer and
/// product by product. Reads the points where they are; a filter chooses the rows.
class PALX_API PointTableModel : public RecordTableModel
{
    Q_OBJECT

public:
    static constexpr int kAll = -1;
    static constexpr int kPickSide = -2;

    using RecordTableModel::RecordTableModel;

    /// A layer from 0, kAll or kPickSide; a point's key ("put_p") or an empty text for all.
    void setFilter(int layer, const QString &point);
    /// Number of layers that have points.
    int layerCount() const;
    /// Where the point record of a row lies below the recipe; an empty path when there is none.
    QString pointPath(int row) const;
    /// Header and shown rows, cells parted by tabs, numbers with a point: for spreadsheets.
    QString toText() const;

    static QStringList putPoints();
    static QStringList getPoints();
    static QString pointTitle(const QString &key);

protected:
    int readRows() override;
    QStringList columns() const override;
    QString text(int row, int column) const override;
    bool isNumber(int column) const override { return column != 2; }

private:
    struct Row
    {
        int layer; ///< kPickSide for the pick side
        int item;
        QString key;
    };
    void addRows(int layer, int item, const QStringList &keys);
    const orba::Node *point(const Row &row) const;

    QVector<Row> rows_;
    int layer_ = kAll;
    QString key_;
};

#pragma once

#include "pattern/rules/approach.h"
#include "pattern/rules/item_geometry.h"

#include <QGraphicsItem>

namespace palx {

/// What is wrong with a product, for its looks.
struct ItemFlaws
{
    bool overlaps = false;  ///< reaches into another
    bool overhangs = false; ///< reaches over the pallet
    bool cramped = false;   ///< too near to another, or in a margin
    bool blocked = false;   ///< cannot come to its place in its order

    bool operator==(const ItemFlaws &o) const
    {
        return overlaps == o.overlaps && overhangs == o.overhangs && cramped == o.cramped &&
               blocked == o.blocked;
    }
};

/// One product on the plan: a view of an item's record, in the plan's millimetres, placed at the item's
/// centre. Every attribute has its own update; an equal value repaints nothing.
class ItemView : public QGraphicsItem
{
public:
    explicit ItemView(const PatternItem &item);

    const PatternItem &item() const { return item_; }
    void setCentre(const QPointF &centre);
    void setSize(const QSizeF &size);
    void setTurn(int degrees);
    void setNumber(int number);
    void setOrient(int orient);
    void setApproach(const Approach &approach);
    void setFlaws(const ItemFlaws &flaws, ItemFaults faults);
    void setOffsets(double dx, double dy, double dz);
    void setOffsetsShown(bool shown);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
    /// Number and approach arrow, which lie over all products. The painter is set to the plan.
    void paintMarks(QPainter *painter) const;

private:
    QPolygonF outline() const;
    void paintFill(QPainter *painter, const QPolygonF &outline) const;
    void paintLabelSide(QPainter *painter, const QPolygonF &outline) const;
    void paintOutline(QPainter *painter, const QPolygonF &outline) const;
    void paintNumber(QPainter *painter, double scale) const;
    void paintOffsets(QPainter *painter, double scale, double numberPixels) const;
    void paintApproach(QPainter *painter, double scale) const;

    PatternItem item_;
    Approach approach_;
    ItemFlaws flaws_;
    bool offsetsShown_ = false;
};

} // namespace palx

#include "pattern/rules/edit_paste.h"

#include "pattern/rules/edit_move.h"

#include <algorithm>

namespace palx {

namespace {

QVector<PatternItem> moved(QVector<PatternItem> items, const QPointF &shift)
{
    for (PatternItem &item : items)
        shiftItem(&item, shift);
    return items;
}

bool isFree(const QVector<PatternItem> &pasted, const QVector<PatternItem> &items, const EditRules &rules)
{
    const QRectF area = itemsBounds(pasted);
    const QRectF &room = rules.inside;
    if (area.left() < room.left() - kContactMm || area.right() > room.right() + kContactMm ||
        area.top() < room.top() - kContactMm || area.bottom() > room.bottom() + kContactMm)
        return false;
    return std::none_of(items.begin(), items.end(), [&](const PatternItem &item) {
        const Corners corners = itemCorners(item);
        return std::any_of(pasted.begin(), pasted.end(), [&](const PatternItem &one) {
            return gapMm(corners, itemCorners(one)) < rules.spacingMm - kContactMm;
        });
    });
}

} // namespace

QVector<PatternItem> pastedItems(const QVector<PatternItem> &items, const QVector<PatternItem> &copied,
                                 const EditRules &rules)
{
    const QSizeF step = itemsBounds(copied).size() + QSizeF(rules.spacingMm, rules.spacingMm);
    QVector<PatternItem> pasted = moved(copied, QPointF(kPasteAsideMm, kPasteAsideMm));
    for (const QPointF &side : {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)}) {
        const QVector<PatternItem> there =
            moved(copied, QPointF(side.x() * step.width(), side.y() * step.height()));
        if (!isFree(there, items, rules))
            continue;
        pasted = there;
        break;
    }
    for (int i = 0; i < pasted.size(); ++i) {
        pasted[i].index = items.size() + i + 1;
        pasted[i].faults.setFlag(ItemFault::NumberOutOfOrder, false);
    }
    return pasted;
}

} // namespace palx

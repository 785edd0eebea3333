#include "pattern/order_tool.h"

#include "pattern/rules/edit_pick.h"

namespace palx {

OrderTool::OrderTool(PatternEditing *editing) : QObject(editing), editing_(editing)
{
    connect(editing, &PatternEditing::previewDropped, this, &OrderTool::drop);
    connect(editing, &PatternEditing::edited, this, &OrderTool::drop); // by another tool
    connect(editing->scene(), &PatternScene::planChanged, this, [this] {
        if (active_ && taps_.isEmpty() && editing_->items() != before_)
            drop();
    });
}

void OrderTool::start()
{
    editing_->cancelPreview();
    editing_->select({});
    before_ = editing_->items();
    order_ = orderByTaps(before_.size(), {});
    taps_.clear();
    active_ = editing_->canEdit() && !before_.isEmpty();
    Q_EMIT changed();
}

void OrderTool::press(const QPointF &at, double pixelMm, bool)
{
    const auto &items = editing_->items();
    const QVector<int> under = itemsAt(items, at, fingerReachMm(items, pixelMm));
    if (!active_ || under.isEmpty() || under.first() < taps_.size()) // that one has its number
        return;
    taps_.append(order_[under.first()]);
    order_ = orderByTaps(before_.size(), taps_);
    editing_->preview(reordered(before_, order_));
    Selection numbered;
    for (int i = 0; i < taps_.size(); ++i)
        numbered.append(i);
    editing_->select(numbered);
    if (taps_.size() + 1 >= before_.size())
        finish();
    else
        Q_EMIT changed();
}

void OrderTool::finish()
{
    if (!active_)
        return;
    const QVector<int> order = order_;
    end();
    editing_->reorder(order);
}

void OrderTool::drop()
{
    if (active_)
        end();
}

void OrderTool::end()
{
    active_ = false;
    editing_->cancelPreview();
    editing_->select({});
    Q_EMIT changed();
}

} // namespace palx

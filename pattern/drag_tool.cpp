#include "pattern/drag_tool.h"

#include "pattern/edit_overlay.h"
#include "pattern/rules/edit_pick.h"

#include <cmath>

namespace palx {

namespace {

constexpr double kStartPixels = 8; ///< a tap may tremble by so much
constexpr double kSnapPixels = 12;
constexpr double kMostSnapMm = 30; ///< on a plan shown small, snapping must not throw products about

} // namespace

bool DragTool::isOver(const QPointF &at, double pixelMm) const
{
    const auto &items = editing_->items();
    return !itemsAt(items, at, fingerReachMm(items, pixelMm)).isEmpty();
}

void DragTool::press(const QPointF &at, double pixelMm, bool adding)
{
    pressed_ = at;
    pixelMm_ = pixelMm;
    adding_ = adding;
    dragging_ = false;
    under_ = itemsAt(editing_->items(), at, fingerReachMm(editing_->items(), pixelMm));
    if (under_.isEmpty())
        return;
    const Selection chosen = editing_->selection();
    wasOnly_ = chosen.size() == 1 && under_.contains(chosen.first());
    if (wasOnly_ && under_.first() != chosen.first()) // the one that was tapped through to stays in hand
        return;
    if (!adding && !chosen.contains(under_.first()))
        editing_->select({under_.first()});
}

void DragTool::begin()
{
    if (adding_ && !editing_->selection().contains(under_.first()))
        editing_->select(toggled(editing_->selection(), under_.first()));
    dragging_ = true;
    before_ = editing_->items();
    const EditRules &rules = editing_->scene()->rules();
    field_ = snapField(before_, editing_->selection(), rules.pallet, rules.inside, rules.spacingMm);
}

void DragTool::move(const QPointF &at)
{
    if (under_.isEmpty() || !editing_->canEdit())
        return;
    const QPointF way = at - pressed_;
    if (!dragging_ && std::hypot(way.x(), way.y()) < kStartPixels * pixelMm_)
        return;
    if (!dragging_)
        begin();
    const double reach = snapping_ ? std::min(kSnapPixels * pixelMm_, kMostSnapMm) : 0;
    snap_ = Snap{QPointF(std::round(way.x()), std::round(way.y())), {}}; // free drags go by whole millimetres
    if (snapping_)
        snap_ = snapMove(field_, snap_.shift, reach);
    QVector<PatternItem> items = before_;
    moveItems(&items, editing_->selection(), snap_.shift);
    editing_->preview(items);
}

void DragTool::release(const QPointF &)
{
    if (std::exchange(dragging_, false))
        editing_->commitPreview();
    else
        tap();
    under_.clear();
}

void DragTool::tap()
{
    if (under_.isEmpty())
        return;
    const Selection chosen = editing_->selection();
    if (adding_)
        editing_->select(toggled(chosen, under_.first()));
    else if (wasOnly_)
        editing_->select({under_[(under_.indexOf(chosen.value(0)) + 1) % under_.size()]});
    else
        editing_->select({under_.first()});
}

void DragTool::cancel()
{
    under_.clear();
    if (std::exchange(dragging_, false))
        editing_->cancelPreview();
}

void DragTool::paint(QPainter *painter) const
{
    if (!dragging_)
        return;
    paintSideGaps(painter, gapsAround(field_, snap_.shift));
    paintGuides(painter, snap_.guides);
}

} // namespace palx

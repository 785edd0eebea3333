#include "pattern/pattern_editing.h"

#include "pattern/rules/edit_paste.h"
#include "pattern/rules/edit_pick.h"
#include "pattern/rules/edit_turn.h"
#include "pattern/rules/edit_write.h"
#include "pattern/rules/feeding_direction.h"
#include "stack/recipe_patterns.h"

#include <numeric>

namespace palx {

namespace {

/// What was copied last, wherever in the process.
QVector<PatternItem> &clipboard()
{
    static QVector<PatternItem> copied;
    return copied;
}

QVector<int> identity(int count)
{
    QVector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

} // namespace

PatternEditing::PatternEditing(PatternScene *scene, QObject *parent) : QObject(parent), scene_(scene)
{
    scene->setHandEditing(true);
    connect(scene, &PatternScene::planChanged, this, &PatternEditing::planChanged);
}

// ---------------------------------------------------------------- selection

void PatternEditing::select(const Selection &selection)
{
    const Selection tidy = tidied(selection, items().size());
    if (tidy == selection_)
        return;
    selection_ = tidy;
    Q_EMIT selectionChanged();
}

void PatternEditing::selectAll()
{
    select(identity(items().size()));
}

/// Another pattern has a selection of its own; the same one may have fewer products now.
void PatternEditing::planChanged()
{
    if (previewing_ && !scene_->hasPreview()) {
        previewing_ = false;
        Q_EMIT previewDropped();
    }
    const bool same = scene_->editedPattern() == shownPattern_;
    shownPattern_ = scene_->editedPattern();
    select(same ? selection_ : Selection());
}

// ---------------------------------------------------------------- edits

void PatternEditing::change(const Change &change)
{
    if (!canEdit())
        return;
    cancelPreview();
    QVector<PatternItem> items = this->items();
    change(&items);
    write(items, identity(items.size()), selection_);
}

void PatternEditing::write(const QVector<PatternItem> &items, const QVector<int> &origin,
                           const Selection &selection)
{
    const QVector<PatternItem> was = this->items();
    if (!canEdit() || (items == was && origin == identity(was.size())))
        return;
    writeItems(scene_->editedPattern(), was, items, origin);
    select(selection);
    Q_EMIT edited();
}

void PatternEditing::move(const QPointF &shiftMm)
{
    change([&](auto *items) { moveItems(items, selection_, shiftMm); });
}

void PatternEditing::turn(int degrees)
{
    change([&](auto *items) { turnItems(items, selection_, degrees); });
}

void PatternEditing::align(Alignment alignment)
{
    const QRectF inside = scene_->rules().inside;
    change([&](auto *items) { alignItems(items, selection_, alignment, inside); });
}

void PatternEditing::distribute(PlanAxis axis)
{
    if (selection_.size() < 3) {
        Q_EMIT refused(tr("Choose at least three products to space them evenly."));
        return;
    }
    change([&](auto *items) { distributeItems(items, selection_, axis); });
}

void PatternEditing::mirror(PlanAxis axis)
{
    const QSizeF pallet = scene_->rules().pallet;
    change([&](auto *items) { mirrorPattern(items, axis, pallet); });
}

void PatternEditing::turnPattern()
{
    const QSizeF pallet = scene_->rules().pallet;
    change([&](auto *items) { palx::turnPattern(items, pallet); });
}

void PatternEditing::proposeSides()
{
    const QVector<Feeding> proposals = proposeFeeding(items(), scene_->rules().frame);
    const Selection meant = selection_.size() < 2 ? identity(proposals.size()) : selection_;
    change([&](auto *items) {
        for (const int i : meant)
            applyFeeding(&(*items)[i], proposals[i]);
    });
}

void PatternEditing::feed(const FeedingEdit &edit)
{
    const Selection meant = selection_.isEmpty() ? identity(items().size()) : selection_;
    change([&](auto *items) {
        for (const int i : meant)
            editFeeding(&(*items)[i], edit);
    });
}

void PatternEditing::remove()
{
    if (!canEdit() || selection_.isEmpty())
        return;
    cancelPreview();
    QVector<int> origin;
    for (int i = 0; i < items().size(); ++i) {
        if (!selection_.contains(i))
            origin.append(i);
    }
    write(reordered(items(), origin), origin, {});
}

void PatternEditing::copy()
{
    if (selection_.isEmpty())
        return;
    clipboard().clear();
    for (const int i : qAsConst(selection_))
        clipboard().append(items()[i]);
    Q_EMIT selectionChanged(); // there is something to paste now
}

bool PatternEditing::canPaste() const
{
    return canEdit() && !clipboard().isEmpty();
}

void PatternEditing::paste()
{
    if (!canPaste())
        return;
    cancelPreview();
    QVector<PatternItem> all = items();
    const int count = all.size();
    if (count + clipboard().size() > kMaxItems) {
        Q_EMIT refused(tr("A pattern holds at most %1 products; there would be %2.")
                           .arg(kMaxItems)
                           .arg(count + clipboard().size()));
        return;
    }
    all += pastedItems(all, clipboard(), scene_->rules());
    QVector<int> origin = identity(count);
    origin.insert(count, clipboard().size(), -1);
    write(all, origin, identity(all.size()).mid(count));
}

void PatternEditing::reorder(const QVector<int> &order)
{
    if (!canEdit() || order.size() != items().size())
        return;
    cancelPreview();
    Selection chosen;
    for (int i = 0; i < order.size(); ++i) {
        if (selection_.contains(order[i]))
            chosen.append(i);
    }
    write(reordered(items(), order), order, chosen);
}

// ---------------------------------------------------------------- preview

void PatternEditing::preview(const QVector<PatternItem> &items)
{
    if (!canEdit())
        return;
    previewing_ = true;
    scene_->showPreview(items);
}

void PatternEditing::commitPreview()
{
    if (!previewing_)
        return;
    const QVector<PatternItem> shown = items();
    cancelPreview();
    write(shown, identity(shown.size()), selection_);
}

void PatternEditing::cancelPreview()
{
    if (!previewing_)
        return;
    previewing_ = false;
    scene_->endPreview();
}

} // namespace palx

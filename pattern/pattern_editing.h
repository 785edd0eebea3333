#pragma once

#include "pattern/patternscene.h"
#include "pattern/rules/edit_move.h"
#include "pattern/rules/edit_order.h"
#include "pattern/rules/feeding_direction.h"

#include <functional>

namespace palx {

/// Hand editing of the pattern that a scene shows: the selection, and edits of the selected products as one
/// step each. What an edit does is a rule of pattern/rules; here it is applied and written.
///
/// An edit that changes something is written to the pattern's node at once and then told by `edited`, which is
/// where undo makes its step. An edit that cannot be done changes nothing and says why by `refused`; one
/// without a selection or a pattern does nothing. Undo, other pages and other editors may change the pattern at
/// any time: a preview is dropped then, and the selection keeps the places that are still there. The
/// clipboard is shared by all editors of the process. GUI thread only.
class PALX_API PatternEditing : public QObject
{
    Q_OBJECT

public:
    /// Turns on the scene's hand editing. The scene must outlive the editing.
    explicit PatternEditing(PatternScene *scene, QObject *parent = nullptr);

    PatternScene *scene() const { return scene_; }
    bool canEdit() const { return scene_->editedPattern() != nullptr; }
    const QVector<PatternItem> &items() const { return scene_->shownItems(); }

    // --- selection, places from 0
    const Selection &selection() const { return selection_; }
    void select(const Selection &selection);
    void selectAll();

    // --- edits of the selected products
    void move(const QPointF &shiftMm);
    void turn(int degrees);
    void align(Alignment alignment);
    void distribute(PlanAxis axis);
    void remove();
    void copy();
    bool canPaste() const;
    void paste();
    // --- edits of the whole pattern
    void mirror(PlanAxis axis);
    void turnPattern();
    /// As by the functions of edit_order.
    void reorder(const QVector<int> &order);
    /// Sides from which products come, by `proposeFeeding`: of the selected ones when there are several, else of
    /// all.
    void proposeSides();
    /// Direction and offsets of the selected products, or of all when none is selected.
    void feed(const FeedingEdit &edit);

    // --- an edit that goes on, as a drag: shown on the plan, written by `commitPreview`
    void preview(const QVector<PatternItem> &items);
    void commitPreview();
    void cancelPreview();

Q_SIGNALS:
    void selectionChanged();
    void edited();
    void refused(const QString &reason);
    /// A preview was taken away by a change from elsewhere; whoever made it gives up.
    void previewDropped();

private:
    using Change = std::function<void(QVector<PatternItem> *)>;
    void change(const Change &change);
    void write(const QVector<PatternItem> &items, const QVector<int> &origin, const Selection &selection);
    void planChanged();

    PatternScene *scene_;
    orba::ModuleObject *shownPattern_ = nullptr; // only compared: it may have ended
    Selection selection_;
    bool previewing_ = false;
};

} // namespace palx

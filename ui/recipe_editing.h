#pragma once

#include "ui/recipe_history.h"

#include <QObject>

/// One recipe under edit: what the set-up page and every wizard do around their fields.
///
/// Opening repairs what must not be (each repair is recorded) and adds keys that recipes of older versions
/// lack; the lists of tools and work objects that it shares are made where they lack something. A step raises "refresh_data", "refresh_pallet_data" and "refresh_margin_data" for what was changed,
/// and "reset_margin_data" when margins leave no room on a smaller pallet; "refresh_table" is raised when the
/// operator leaves the recipe or a wizard goes on.
class PALX_API RecipeEditing : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Null: no recipe. Whoever opened one before leaves it first.
    void open(orba::ModuleObject *stack);
    /// Null also once the recipe has ended.
    orba::ModuleObject *stack() const { return stack_; }

    /// Makes a step of what was edited. Returns a sentence for the operator when something was put right with
    /// it.
    QString commit();
    /// What was changed by somebody else is a step of its own and nothing to be sent from here.
    void takeOver() { history_.commit(); }
    bool undo();
    bool redo();
    bool canUndo() const { return history_.canUndo(); }
    bool canRedo() const { return history_.canRedo(); }

    /// Edits since the points were last made and sent.
    bool isEdited() const { return isEdited_; }
    /// Whether edits made the recipe another one than was opened; repairs, and layers that generation drops, do
    /// not count.
    bool differsFromOpened() const;
    /// Makes the points anew and sends the recipe when it was edited; when what recipes share was edited, those of all that
    /// share it.
    void save();
    /// The same in any case, recorded for the operator when it was edited; then raises "refresh_table".
    void saveAndTell();
    /// Saves and raises "refresh_table", as lists of recipes show what was edited.
    void leave();
    /// Back to what was opened; sent again when edits were sent.
    void revert();

private:
    void announce() const;
    bool stepped(bool made);
    void generate(bool report);
    void generateOthers() const;

    QPointer<orba::ModuleObject> stack_;
    RecipeHistory history_;
    RecipeState opened_;
    bool isEdited_ = false;
    bool isSharedEdited_ = false;
    bool isTouched_ = false; ///< something was edited since the recipe was opened
    bool isSent_ = false;    ///< edits were sent since the recipe was opened
};

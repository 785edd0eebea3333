#pragma once

#include "ui/recipe_editing.h"

#include <QDialog>
#include <QList>

#include <memory>

class RecipeFrame;
namespace Ui {
class RecipeWizard;
}

/// Leads the operator through some frames of one recipe, page by page, over the whole panel.
///
/// Opening validates the recipe; repairs are recorded and stay even when the wizard is cancelled. Going on to
/// the next page and finishing make the points anew, send the recipe and raise "refresh_table"; a page that
/// has something against it keeps the wizard where it is. Cancelling takes every edit back, after a question
/// when there are some. Only one wizard or other dialog of the plug-in is open at a time.
class PALX_API RecipeWizard : public QDialog
{
    Q_OBJECT

public:
    ~RecipeWizard() override;

    const QList<RecipeFrame *> &pages() const { return pages_; }
    int page() const;
    orba::ModuleObject *stack() const { return editing_.stack(); }
    /// Shows it over the window of `parent` and makes it the only one.
    void openUnique();

public Q_SLOTS:
    /// To the next page, or from the last one to the end.
    void next();
    void back();
    void undo();
    void redo();
    void reject() override;

protected:
    /// The recipe's node is not owned.
    RecipeWizard(orba::ModuleObject *stack, QWidget *parent);
    /// In the order of the pages; each frame becomes the wizard's child.
    void addPage(RecipeFrame *frame);
    /// Shows the first page; after the last `addPage`.
    void start();
    virtual QString titleText() const = 0;
    virtual QString pageTitle(int page) const = 0;
    /// Whether the operator may go on from the page; says why not.
    virtual bool tryNext();
    void changeEvent(QEvent *event) override;

private:
    void connectButtons();
    void showPage(int index);
    void onEdited();
    void afterStep();
    void step(bool (RecipeEditing::*wind)());
    void retranslate();

    std::unique_ptr<Ui::RecipeWizard> ui_;
    RecipeEditing editing_;
    QList<RecipeFrame *> pages_;
};

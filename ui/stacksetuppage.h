#pragma once

#include "bwaf/bmodule.h"
#include "ui/recipe_editing.h"

#include <QPointer>

#include <memory>

class QAbstractButton;
class QAction;
class RecipeFrame;
enum class WizardKind;
namespace Ui {
class StackSetupPage;
}

/// The plug-in's set-up page: edits the current recipe in frames for product, pallet, patterns, layers,
/// calibration, waypoints and points, with undo and redo.
///
/// `RecipeEditing` says what opening, editing and leaving a recipe do besides.
class PALX_API StackSetupPage : public bwaf::BModule
{
    Q_OBJECT

public:
    /// The page's widget becomes a child of `parent`, which owns it; the page belongs to `module`.
    StackSetupPage(QWidget *parent, bwaf::BModule *module);
    ~StackSetupPage() override;

    QString name() const override;
    QWidget *wgt() override;

    /// The recipe that is shown, or null.
    orba::ModuleObject *stack() const { return editing_.stack(); }
    /// The frames in the order of their buttons.
    const QList<RecipeFrame *> &frames() const { return frames_; }
    void showFrame(int index);

public Q_SLOTS:
    /// Shows the current recipe, which may be another one, renamed or gone.
    void pageDateRefresh();
    void undo();
    void redo();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeFrames();
    void connectHeader();
    void makeWizardMenu();
    void openWizard(WizardKind kind);
    void setStack(orba::ModuleObject *stack);
    void fillRecipes();
    void showNotice(const QString &putRight);
    void onEdited();
    void afterStep();
    void step(bool (RecipeEditing::*wind)());
    void updateHeader();
    void retranslate();

    bwaf::BModule *module_;
    QPointer<QWidget> wgt_;
    std::unique_ptr<Ui::StackSetupPage> ui_;
    QList<RecipeFrame *> frames_;
    QList<QAbstractButton *> buttons_; ///< one for each frame
    QList<QAction *> wizards_;         ///< entries of the menu, in the order of their kinds
    RecipeEditing editing_;
};

#pragma once

#include "bwaf/bmodule.h"
#include "stack/recipe_edit.h"

#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class HomeParts;
class LayerTableModel;
class QModelIndex;
class QSortFilterProxyModel;
class RecipeListModel;
class RunFrame;
class SubPageStack;
namespace palx {
class ControllerRecipes;
}
namespace Ui {
class StackHomePage;
}

/// The plug-in's home page, in two parts: the line while it produces, and the list of recipes with names, pictures and
/// figures, what can be done with them, and whether the controller holds them. Opens with the recipes, and with the line as
/// soon as a project is in use; what the operator chose stays.
///
/// Reloads its list on the trigger "refresh_table" and when the list of stacks changes, and raises
/// "refresh_cmb" when the names have become others; shows its choice again on "refresh_cmb". Raises
/// "refresh_table" after it made or brought back a recipe. Pictures are drawn after the page is shown.
class PALX_API StackHomePage : public bwaf::BModule
{
    Q_OBJECT

public:
    /// The page's widget becomes a child of `parent`, which owns it; the page belongs to `module`.
    StackHomePage(QWidget *parent, bwaf::BModule *module);
    ~StackHomePage() override;

    QString name() const override;
    QWidget *wgt() override;
    /// This page's sub-pages: "project_manager".
    SubPageStack *subPages() const;

    /// The chosen recipe; the empty node when there is none.
    orba::ModuleObject *chosenStack() const;
    void chooseRecipe(const QString &name);
    RunFrame *run() const { return run_; }

Q_SIGNALS:
    /// The current recipe is another one, or has another name.
    void reFreshPageDate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *setupParts();
    void setupList();
    void connectActions();
    void followTriggers();
    void reload();
    void showChoice();
    void showDetails(orba::ModuleObject *stack);
    void retranslate();

    void newRecipe();
    void copyRecipe();
    bool refused(const QString &why);
    void renameRecipe();
    void deleteRecipe();
    void undoDelete();
    void openRecipe();
    void openImport();
    void openExport();
    void undoImport();
    void importChanged();
    void openProjects();
    void listChanged(const QString &choose);
    void showController();
    void openController();

    bwaf::BModule *module_;
    QPointer<QWidget> wgt_;
    std::unique_ptr<Ui::StackHomePage> ui_;
    RecipeListModel *recipes_;
    QSortFilterProxyModel *found_;
    LayerTableModel *layers_;
    palx::ControllerRecipes *onController_;
    HomeParts *parts_ = nullptr;
    RunFrame *run_ = nullptr;
    QStringList names_; ///< as last announced by "refresh_cmb"
    palx::RemovedStack removed_;
    std::function<void()> undo_; ///< what the message at the foot takes back
};

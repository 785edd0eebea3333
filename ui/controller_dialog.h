#pragma once

#include "ix/xtheme.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class RecipeMatchModel;
namespace palx {
class ControllerRecipes;
}
namespace Ui {
class ControllerDialog;
}

/// What the controller holds of the panel's recipes, sending them all, and the choice of the active tool. Follows the
/// connection, the edits and the tool.
class PALX_API ControllerDialog : public QDialog
{
    Q_OBJECT

public:
    /// `recipes` may end before the dialog.
    explicit ControllerDialog(palx::ControllerRecipes *recipes, QWidget *parent = nullptr);
    ~ControllerDialog() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow();
    void showRecipes();
    void showTool();
    void fillTools();
    void pushAll();
    void switchTool();
    void showWaiting(const QString &text);

    QPointer<palx::ControllerRecipes> recipes_;
    std::unique_ptr<Ui::ControllerDialog> ui_;
    RecipeMatchModel *model_;
};

/// What the comparison says, in one sentence, and how it looks.
PALX_API QString controllerRecipesText(const palx::ControllerRecipes &recipes);
PALX_API ix::xtheme::State controllerRecipesLook(const palx::ControllerRecipes &recipes);
/// The same for a small button: "= 7", "≠ 3" or "–".
PALX_API QString controllerRecipesSign(const palx::ControllerRecipes &recipes);

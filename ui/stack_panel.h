#pragma once

#include "orba/module_object.h"
#include "pattern/rules/stack_courses.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace Ui {
class StackPanel;
}
class StackView;

/// The stack of a recipe with buttons to turn and enlarge it and a slider that says how much of it is laid.
class PALX_API StackPanel : public QWidget
{
    Q_OBJECT

public:
    explicit StackPanel(QWidget *parent = nullptr);
    ~StackPanel() override;

    /// The recipe is not owned; null shows nothing. Another recipe is shown whole.
    void setStack(orba::ModuleObject *stack);
    /// Reads the recipe again after an edit; what is laid and marked stays as far as it is still there.
    void refresh();
    /// Without the slider and the buttons to enlarge: the whole stack beside other things.
    void setCompact();

    int pieces() const;
    void setPieces(int pieces);
    palx::Piece marked() const { return marked_; }
    /// With item -1 a whole layer.
    void markPiece(const palx::Piece &piece);
    StackView *view() const;

Q_SIGNALS:
    /// The operator touched a piece, or laid another one last.
    void pieceChosen(const palx::Piece &piece);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectButtons();
    void stepTo(int pieces);
    void piecesChanged();
    void showPlace();

    std::unique_ptr<Ui::StackPanel> ui_;
    QPointer<orba::ModuleObject> stack_;
    palx::Piece marked_;
};

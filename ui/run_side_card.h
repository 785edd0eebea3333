#pragma once

#include "orba/module_object.h"
#include "project/rules/run_side.h"

#include <QFrame>
#include <QPointer>

#include <memory>

namespace Ui {
class RunSideCard;
}

/// One side of the line while it produces: state, recipe, counters, the growing stack, and what may be done. Shows what it
/// is given, which is what the controller says, and asks its owner for the rest.
class PALX_API RunSideCard : public QFrame
{
    Q_OBJECT

public:
    explicit RunSideCard(palx::LineSide side, QWidget *parent = nullptr);
    ~RunSideCard() override;

    palx::LineSide side() const { return which_; }
    /// `stack` is the recipe of the side, or null; `why` stands with the states that have a reason.
    void showSide(const palx::RunSide &side, palx::RunState state, const QString &why,
                  const orba::Node *stack);
    const palx::RunSide &shown() const { return shown_; }
    /// A request is under way: nothing else can be asked for.
    void setWaiting(bool waits);
    bool isWaiting() const { return waits_; }
    /// The recipe was edited: the picture is drawn anew.
    void forgetPicture() { pictured_.clear(); }

Q_SIGNALS:
    void recipeWanted(int index);
    void enableWanted(bool on);
    void startWanted();
    void resetWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState();
    void showFigures();
    void showRecipes();
    void showPicture(const orba::Node *stack);
    void showButtons();

    palx::LineSide which_;
    std::unique_ptr<Ui::RunSideCard> ui_;
    palx::RunSide shown_;
    palx::RunState state_ = palx::RunState::NoController;
    QString why_;
    QString pictured_; ///< name of the recipe in the picture
    bool waits_ = false;
};

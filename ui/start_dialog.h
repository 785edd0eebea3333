#pragma once

#include "orba/node.h"
#include "project/rules/run_recovery.h"

#include <QDialog>

#include <memory>

namespace Ui {
class StartDialog;
}

/// What an operator is asked for before a side goes on at a layer and piece.
struct PALX_API StartRequest
{
    QString title, text, accept; ///< `accept` stands on the button
    int side = 0;                ///< 0 left, 1 right
    orba::Node stack;            ///< the recipe with its points
    palx::PalletPiece piece;     ///< proposed
    bool mustClear = false;      ///< the operator has to confirm that the gripper is empty
};

/// Asks for layer and piece to go on with, and shows what would lie on the pallet then. Only what the recipe has can be
/// confirmed, and nothing while something hangs at the gripper: its confirmation tells the controller that it was cleared.
/// Follows the controller as long as it is open.
class PALX_API StartDialog : public QDialog
{
    Q_OBJECT

public:
    explicit StartDialog(StartRequest request, QWidget *parent = nullptr);
    ~StartDialog() override;

    palx::PalletPiece piece() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectFields();
    void showChoice();
    void confirmClear(bool isClear);
    QString problem() const;

    std::unique_ptr<Ui::StartDialog> ui_;
    StartRequest request_;
    QString clearProblem_; ///< why the controller does not take the gripper for empty
};

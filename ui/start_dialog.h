#pragma once

#include "orba/node.h"
#include "project/rules/run_side.h"

#include <QDialog>

#include <memory>

namespace Ui {
class StartDialog;
}

/// What an operator is asked for before a side goes on at a layer and piece.
struct PALX_API StartRequest
{
    QString title, text;
    palx::RunSide side;
    orba::Node stack; ///< the recipe with its points
    int layer = 1, piece = 1;
    bool mustClear = false; ///< the operator has to confirm that the gripper is empty
};

/// Asks for layer and piece to go on with, and shows what would lie on the pallet then. Only what the recipe has can be
/// confirmed.
class PALX_API StartDialog : public QDialog
{
    Q_OBJECT

public:
    explicit StartDialog(StartRequest request, QWidget *parent = nullptr);
    ~StartDialog() override;

    int layer() const;
    int piece() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectFields();
    void showChoice();
    QString problem() const;

    std::unique_ptr<Ui::StartDialog> ui_;
    StartRequest request_;
};

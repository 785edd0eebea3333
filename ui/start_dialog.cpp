#include "ui/start_dialog.h"

#include "ix/xtheme.h"
#include "orba/module_object.h"
#include "project/rules/run_side.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui_start_dialog.h"

#include <QEvent>

using ix::xtheme::Glyph;
using ix::xtheme::State;

namespace {

bool holdsSomething()
{
    const palx::RunRecovery run = palx::currentRunRecovery();
    return run.holdsProduct || run.isSuctionOn;
}

} // namespace

StartDialog::StartDialog(StartRequest request, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::StartDialog>()), request_(std::move(request))
{
    ui_->setupUi(this);
    setWindowTitle(request_.title);
    ui_->lblTitle->setText(request_.title);
    ui_->lblText->setText(request_.text);
    ui_->btnOk->setText(request_.accept);
    ui_->btnOk->setAccessibleName(request_.accept);
    request_.mustClear = request_.mustClear || holdsSomething();
    ui_->chkClear->setVisible(request_.mustClear);
    ui_->view->showStack(&request_.stack);
    ui_->spnLayer->setMaximum(std::max(1, palx::pointLayers(request_.stack)));
    ui_->spnLayer->setValue(request_.piece.layer);
    showChoice(); // the pieces of that layer
    ui_->spnPiece->setValue(request_.piece.piece);
    connectFields();
    setFieldMargins(this);
    new KeypadOpener(this);
    showChoice();
}

StartDialog::~StartDialog() = default;

void StartDialog::connectFields()
{
    const struct
    {
        QPushButton *button;
        Glyph glyph;
        QSpinBox *field;
        int step;
    } steps[] = {{ui_->btnLayerLess, Glyph::Remove, ui_->spnLayer, -1},
                 {ui_->btnLayerMore, Glyph::Add, ui_->spnLayer, 1},
                 {ui_->btnPieceLess, Glyph::Remove, ui_->spnPiece, -1},
                 {ui_->btnPieceMore, Glyph::Add, ui_->spnPiece, 1}};
    for (const auto &step : steps) {
        step.button->setIcon(ix::xtheme::icon(step.glyph));
        step.button->setAutoRepeat(true);
        connect(step.button, &QPushButton::clicked, this,
                [field = step.field, by = step.step] { field->setValue(field->value() + by); });
    }
    for (QSpinBox *field : {ui_->spnLayer, ui_->spnPiece})
        connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, &StartDialog::showChoice);
    connect(ui_->chkClear, &QCheckBox::clicked, this, &StartDialog::confirmClear);
    for (const char *path : {"nexo.cell.program.state", "nexo.cell.gripper.carries",
                             "nexo.cell.pallets.#0.count", "nexo.cell.pallets.#1.count", "nexo.r.connected"})
        connect(m(path), &orba::ModuleObject::changed, this, &StartDialog::showChoice);
    connect(ui_->btnOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

palx::PalletPiece StartDialog::piece() const
{
    return {ui_->spnLayer->value(), ui_->spnPiece->value()};
}

void StartDialog::confirmClear(bool isClear)
{
    clearProblem_ = isClear && holdsSomething() ? palx::clearGripper() : QString();
    if (!clearProblem_.isEmpty())
        ui_->chkClear->setChecked(false);
    showChoice();
}

QString StartDialog::problem() const
{
    if (!clearProblem_.isEmpty())
        return clearProblem_;
    if (request_.mustClear && !ui_->chkClear->isChecked())
        return tr("Take the product out of the gripper and confirm that it is empty.");
    return palx::whyNotConfirm(palx::currentRunRecovery(), request_.side, piece());
}

void StartDialog::showChoice()
{
    const orba::Node &stack = request_.stack;
    ui_->spnPiece->setMaximum(std::max(1, palx::layerPieces(stack, ui_->spnLayer->value())));
    const palx::PalletPiece next = piece();
    ui_->view->setPieces(palx::piecesBefore(stack, next.layer, next.piece, true));
    ui_->lblCount->setText(tr("%1 of %2 boxes lie on the pallet.")
                               .arg(palx::piecesBefore(stack, next.layer, next.piece, false))
                               .arg(palx::piecesBefore(stack, palx::pointLayers(stack) + 1, 1, false)));
    const QString reason = problem();
    ui_->lblReason->setText(reason);
    ix::xtheme::setState(ui_->lblReason, reason.isEmpty() ? State::None : State::Attention);
    ui_->btnOk->setEnabled(reason.isEmpty());
}

void StartDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        ui_->btnOk->setText(request_.accept);
        showChoice();
    }
    QDialog::changeEvent(event);
}

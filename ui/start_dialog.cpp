#include "ui/start_dialog.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui_start_dialog.h"

#include <QEvent>

using ix::xtheme::Glyph;
using ix::xtheme::State;

StartDialog::StartDialog(StartRequest request, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::StartDialog>()), request_(std::move(request))
{
    ui_->setupUi(this);
    setWindowTitle(request_.title);
    ui_->lblTitle->setText(request_.title);
    ui_->lblText->setText(request_.text);
    ui_->chkClear->setVisible(request_.mustClear);
    ui_->view->showStack(&request_.stack);
    ui_->spnLayer->setMaximum(std::max(1, palx::pointLayers(request_.stack)));
    ui_->spnLayer->setValue(request_.layer);
    showChoice(); // the pieces of that layer
    ui_->spnPiece->setValue(request_.piece);
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
    connect(ui_->chkClear, &QCheckBox::toggled, this, &StartDialog::showChoice);
    connect(ui_->btnOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

int StartDialog::layer() const
{
    return ui_->spnLayer->value();
}

int StartDialog::piece() const
{
    return ui_->spnPiece->value();
}

QString StartDialog::problem() const
{
    const QString wrong = palx::startProblem(request_.side, &request_.stack, layer(), piece());
    if (!wrong.isEmpty() || !request_.mustClear || ui_->chkClear->isChecked())
        return wrong;
    return tr("Take the product out of the gripper and confirm that it is empty.");
}

void StartDialog::showChoice()
{
    ui_->spnPiece->setMaximum(std::max(1, palx::layerPieces(request_.stack, layer())));
    ui_->view->setPieces(palx::piecesBefore(request_.stack, layer(), piece(), true));
    ui_->lblCount->setText(tr("%1 of %2 boxes lie on the pallet.")
                               .arg(palx::piecesBefore(request_.stack, layer(), piece(), false))
                               .arg(request_.side.expected));
    const QString reason = problem();
    ui_->lblReason->setText(reason);
    ix::xtheme::setState(ui_->lblReason, reason.isEmpty() ? State::None : State::Attention);
    ui_->btnOk->setEnabled(reason.isEmpty());
}

void StartDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showChoice();
    }
    QDialog::changeEvent(event);
}

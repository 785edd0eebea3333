#include "ui/name_dialog.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui_name_dialog.h"

#include <QEvent>

NameDialog::NameDialog(const QString &title, Check check, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::NameDialog>()), title_(title), check_(std::move(check))
{
    ui_->setupUi(this);
    setWindowTitle(title_);
    ui_->lblTitle->setText(title_);
    ui_->lblDesc->hide();
    ui_->edtDesc->hide();
    connect(ui_->edtName, &QLineEdit::textChanged, this, &NameDialog::showReason);
    connect(ui_->btnOk, &QPushButton::clicked, this, &NameDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &NameDialog::reject);
    setFieldMargins(this);
    showReason();
}

NameDialog::~NameDialog() = default;

void NameDialog::setName(const QString &name)
{
    ui_->edtName->setText(name);
    ui_->edtName->selectAll();
    ui_->edtName->setFocus();
}

QString NameDialog::name() const
{
    return ui_->edtName->text().trimmed();
}

void NameDialog::setDescription(const QString &desc)
{
    ui_->lblDesc->show();
    ui_->edtDesc->show();
    ui_->edtDesc->setText(desc);
}

QString NameDialog::description() const
{
    return ui_->edtDesc->text().trimmed();
}

void NameDialog::showReason()
{
    const QString reason = check_(name());
    ui_->lblReason->setText(reason);
    ix::xtheme::setState(ui_->lblReason,
                         reason.isEmpty() ? ix::xtheme::State::None : ix::xtheme::State::Attention);
    ui_->btnOk->setEnabled(reason.isEmpty());
}

void NameDialog::accept()
{
    showReason(); // the list may have changed since the last key
    if (ui_->btnOk->isEnabled())
        QDialog::accept();
}

void NameDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        ui_->lblTitle->setText(title_);
        showReason();
    }
    QDialog::changeEvent(event);
}

#include "ui/long_work_dialog.h"

#include "ui_long_work_dialog.h"

#include <QEvent>

LongWorkDialog::LongWorkDialog(const QString &title, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::LongWorkDialog>())
{
    ui_->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(title);
    ui_->lblTitle->setText(title);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &LongWorkDialog::reject);
}

LongWorkDialog::~LongWorkDialog() = default;

void LongWorkDialog::showStep(int done, int total, const QString &text)
{
    ui_->barDone->setRange(0, total);
    ui_->barDone->setValue(done);
    ui_->lblStep->setText(text);
}

void LongWorkDialog::setCanCancel(bool can)
{
    ui_->btnCancel->setEnabled(can);
}

void LongWorkDialog::hideCancel()
{
    setCanCancel(false);
    ui_->btnCancel->hide();
}

void LongWorkDialog::reject()
{
    if (ui_->btnCancel->isEnabled())
        Q_EMIT cancelWanted();
}

void LongWorkDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const QString title = windowTitle();
        const QString step = ui_->lblStep->text();
        ui_->retranslateUi(this);
        setWindowTitle(title);
        ui_->lblTitle->setText(title);
        ui_->lblStep->setText(step);
    }
    QDialog::changeEvent(event);
}

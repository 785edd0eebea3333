#pragma once

#include "orba/export.h"

#include <QDialog>

#include <memory>

namespace Ui {
class LongWorkDialog;
}

/// How far long work has come, with a way to cancel it. Modal for the whole panel. Closing it is cancelling.
class PALX_API LongWorkDialog : public QDialog
{
    Q_OBJECT

public:
    LongWorkDialog(const QString &title, QWidget *parent);
    ~LongWorkDialog() override;

    /// `total` 0 shows that something is going on.
    void showStep(int done, int total, const QString &text);
    void setCanCancel(bool can);
    /// For work that can never be cancelled. It cannot be closed then.
    void hideCancel();

public Q_SLOTS:
    void reject() override;

Q_SIGNALS:
    void cancelWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::LongWorkDialog> ui_;
};

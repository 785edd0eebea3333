#pragma once

#include "orba/export.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class NameDialog;
}

/// Asks for a name and, for recipes, a description. Says at once why a name is refused; only a good one can
/// be confirmed.
class PALX_API NameDialog : public QDialog
{
    Q_OBJECT

public:
    /// The reason why the name is refused, or an empty text.
    using Check = std::function<QString(const QString &name)>;

    NameDialog(const QString &title, Check check, QWidget *parent);
    ~NameDialog() override;

    void setName(const QString &name);
    /// Without blanks around it.
    QString name() const;
    /// Shows the second field.
    void setDescription(const QString &desc);
    QString description() const;

public Q_SLOTS:
    void accept() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showReason();

    std::unique_ptr<Ui::NameDialog> ui_;
    QString title_;
    Check check_;
};

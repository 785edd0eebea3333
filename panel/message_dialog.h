#pragma once

#include "nexo/manager_helper.h"

#include <QDialog>
#include <QPointer>

namespace panel {

/// A message with buttons for fingers. `exec` answers Accepted or Rejected; a message that cannot be refused
/// is always accepted, closing it included.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MessageDialog(const nexo::Message &message, QWidget *parent = nullptr);
    void reject() override;

private:
    bool refusable_;
};

/// Shows the host's messages as dialogs over a window and passes notices on.
class PanelPresenter : public QObject, public nexo::MessagePresenter
{
    Q_OBJECT

public:
    /// Installs itself for its lifetime.
    PanelPresenter();
    ~PanelPresenter() override;
    /// Over which window dialogs stand; notices that came before are sent now.
    void setWindow(QWidget *window);
    bool ask(const nexo::Message &message) override;
    void notify(const QString &level, const QString &text) override;

Q_SIGNALS:
    void noticed(const QString &level, const QString &text);

private:
    QPointer<QWidget> window_;
    QList<QPair<QString, QString>> waiting_; // notices, level and text, while there is no window yet
};

} // namespace panel

#pragma once

#include "ix/xtheme.h"

#include <QFrame>

#include <memory>

namespace Ui {
class MessageBar;
}

/// One line at the foot of a page: a refusal, a hint, or what was just done together with the button that
/// takes it back. Hidden while it has nothing to say; it blocks nothing.
class PALX_API MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);
    ~MessageBar() override;

    /// Stays until another message, `clearMessage` or the operator's close.
    void showMessage(const QString &text, ix::xtheme::State state);
    /// The same with a button "Undo"; pressing it sends `undoWanted`.
    void showUndo(const QString &text, ix::xtheme::State state);
    void clearMessage();
    QString text() const;

Q_SIGNALS:
    void undoWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void show(const QString &text, ix::xtheme::State state, bool undo);

    std::unique_ptr<Ui::MessageBar> ui_;
};

#include "ui/message_bar.h"

#include "ui_message_bar.h"

#include <QEvent>

using namespace ix;

MessageBar::MessageBar(QWidget *parent) : QFrame(parent), ui_(std::make_unique<Ui::MessageBar>())
{
    ui_->setupUi(this);
    connect(ui_->btnClose, &QPushButton::clicked, this, &MessageBar::clearMessage);
    connect(ui_->btnAction, &QPushButton::clicked, this, [this] {
        clearMessage(); // first, because the action may bring a message of its own
        Q_EMIT undoWanted();
    });
    hide();
}

MessageBar::~MessageBar() = default;

void MessageBar::showMessage(const QString &text, xtheme::State state)
{
    show(text, state, false);
}

void MessageBar::showUndo(const QString &text, xtheme::State state)
{
    show(text, state, true);
}

void MessageBar::show(const QString &text, xtheme::State state, bool undo)
{
    const bool isTrouble = state == xtheme::State::Fault || state == xtheme::State::Attention;
    const auto glyph = isTrouble                         ? xtheme::Glyph::Warning
                       : state == xtheme::State::Running ? xtheme::Glyph::Check
                                                         : xtheme::Glyph::Info;
    xtheme::setState(this, state);
    ui_->lblIcon->setPixmap(xtheme::pixmap(glyph, 32, xtheme::textColor(state)));
    ui_->lblText->setText(text);
    ui_->btnAction->setVisible(undo);
    setVisible(true);
}

void MessageBar::clearMessage()
{
    ui_->lblText->clear();
    hide();
}

QString MessageBar::text() const
{
    return ui_->lblText->text();
}

void MessageBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui_->retranslateUi(this); // the message stays as it was told
    QFrame::changeEvent(event);
}

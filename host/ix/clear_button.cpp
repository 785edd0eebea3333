#include "ix/clear_button.h"

#include "ix/xtheme.h"

#include <QEvent>
#include <QLineEdit>

namespace ix {

ClearButton::ClearButton(QLineEdit *field) : QToolButton(field), field_(field)
{
    setObjectName(QStringLiteral("btnClear"));
    setIcon(xtheme::icon(xtheme::Glyph::Close));
    setIconSize(QSize(24, 24));
    setAutoRaise(true);
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus); // keys clear a field anyway
    setStyleSheet(QStringLiteral("border: none; background: transparent;"));
    setAccessibleName(tr("Empty the field"));
    field->installEventFilter(this);
    connect(this, &QToolButton::clicked, field, &QLineEdit::clear);
    connect(field, &QLineEdit::textChanged, this, &ClearButton::follow);
    follow(field->text());
    place();
}

bool ClearButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == field_ && event->type() == QEvent::Resize)
        place();
    if (watched == field_ && event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Empty the field"));
    return QToolButton::eventFilter(watched, event);
}

void ClearButton::place()
{
    const int side = field_->height();
    setGeometry(field_->width() - side, 0, side, side);
}

void ClearButton::follow(const QString &text)
{
    setVisible(!text.isEmpty());
    const int left = field_->textMargins().left(); // is the form's business
    field_->setTextMargins(left, 0, text.isEmpty() ? left : field_->height(), 0);
}

} // namespace ix

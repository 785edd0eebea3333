#include "ui/form_checks.h"

#include "ix/xtheme.h"
#include "support/test_support.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

Looks::Looks() : font(QApplication::font()), palette(QApplication::palette())
{
    ix::xtheme::apply(qApp);
}

Looks::~Looks()
{
    qApp->setStyleSheet(QString());
    QApplication::setFont(font);
    QApplication::setPalette(palette);
}

namespace {

bool isControl(const QWidget *widget)
{
    const bool partOfAnother = widget->objectName().startsWith(QLatin1String("qt_"));
    return !partOfAnother &&
           (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
            qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
            qobject_cast<const QAbstractItemView *>(widget));
}

} // namespace

QList<QWidget *> controls(const QWidget *form)
{
    QList<QWidget *> found;
    for (QWidget *widget : form->findChildren<QWidget *>()) {
        const QWidget *parent = widget->parentWidget();
        const bool inner = qobject_cast<const QAbstractItemView *>(parent) ||
                           qobject_cast<const QLineEdit *>(parent) || widget->inherits("QComboBoxListView") ||
                           widget->inherits("QHeaderView");
        if (isControl(widget) && !inner)
            found << widget;
    }
    return found;
}

void expectReadable(const QWidget *form, const QString &where)
{
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        if (!label->isVisible() || label->text().isEmpty() || label->wordWrap())
            continue;
        EXPECT_GE(label->width(), label->sizeHint().width()) << where << label->objectName() << label->text();
    }
    for (const QAbstractButton *button : form->findChildren<QAbstractButton *>()) {
        if (!button->isVisible() || button->text().isEmpty())
            continue;
        EXPECT_GE(button->width(), button->minimumSizeHint().width())
            << where << button->objectName() << button->text();
    }
}

void expectTouchable(const QWidget *form, const QString &where)
{
    for (const QWidget *control : controls(form)) {
        if (!control->isVisible() || qobject_cast<const QAbstractItemView *>(control))
            continue;
        EXPECT_GE(control->height(), 56) << where << control->objectName();
    }
}

int expectNamed(const QWidget *form, const QString &where)
{
    const QList<QWidget *> all = controls(form);
    for (const QWidget *control : all) {
        const QString parent = control->parentWidget()->objectName();
        EXPECT_FALSE(control->objectName().isEmpty())
            << where << control->metaObject()->className() << parent;
        EXPECT_FALSE(control->accessibleName().isEmpty()) << where << control->objectName() << parent;
    }
    return all.size();
}

#pragma once

#include <QFont>
#include <QList>
#include <QPalette>
#include <QString>

class QWidget;

/// The panel's looks for the time of a test.
struct Looks
{
    Looks();
    ~Looks();
    QFont font;
    QPalette palette;
};

/// Controls of a form; parts of other controls (the popup of a combo box, a corner button) are not meant.
QList<QWidget *> controls(const QWidget *form);
/// No visible text of a label or button is cut off.
void expectReadable(const QWidget *form, const QString &where);
/// Every visible control is as high as a finger needs.
void expectTouchable(const QWidget *form, const QString &where);
/// Every control has a name for tests and one for readers. Returns how many there are.
int expectNamed(const QWidget *form, const QString &where);

#include "ui/home_parts.h"

#include "ix/xtheme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>

namespace {

enum Part { kRecipes, kRun };

} // namespace

HomeParts::HomeParts(QWidget *parent)
    : QWidget(parent), row_(new QHBoxLayout), btnRun_(addPart(QStringLiteral("btnRun"), kRun)),
      btnRecipes_(addPart(QStringLiteral("btnRecipes"), kRecipes)), parts_(new QStackedWidget),
      recipes_(new QWidget)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addLayout(row_);
    column->addWidget(parts_, 1);
    row_->addStretch();
    parts_->addWidget(recipes_);
    btnRecipes_->setChecked(true);
    nameParts();
}

QPushButton *HomeParts::addPart(const QString &name, int part)
{
    auto *button = new QPushButton;
    button->setObjectName(name);
    button->setCheckable(true);
    button->setAutoExclusive(true);
    ix::xtheme::setRole(button, QStringLiteral("tab"));
    row_->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, part] {
        isChosen_ = true;
        parts_->setCurrentIndex(part);
    });
    return button;
}

void HomeParts::setRun(QWidget *run)
{
    parts_->addWidget(run);
}

void HomeParts::addButton(QPushButton *button)
{
    row_->addWidget(button);
}

void HomeParts::proposeRun()
{
    if (isChosen_)
        return;
    btnRun_->setChecked(true);
    parts_->setCurrentIndex(kRun);
}

void HomeParts::nameParts()
{
    btnRun_->setText(tr("Production"));
    btnRecipes_->setText(tr("Recipes"));
    for (QPushButton *button : {btnRun_, btnRecipes_})
        button->setAccessibleName(button->text());
}

void HomeParts::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        nameParts();
}

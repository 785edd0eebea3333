#include "ui/recipe_wizard.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui/recipe_frame.h"
#include "ui_recipe_wizard.h"
#include "workstation/unique_widget.h"

#include <QEvent>
#include <QKeySequence>
#include <QShortcut>

using ix::xtheme::Glyph;
using ix::xtheme::State;

RecipeWizard::RecipeWizard(orba::ModuleObject *stack, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::RecipeWizard>())
{
    ui_->setupUi(this);
    editing_.open(stack);
    if (editing_.stack()) // without its recipe a wizard has nothing left to show
        connect(editing_.stack(), &QObject::destroyed, this, [this] { done(Rejected); });
    connectButtons();
}

/// Another dialog may take its place while it is open; what was edited stays then and is sent.
RecipeWizard::~RecipeWizard()
{
    editing_.save();
}

void RecipeWizard::connectButtons()
{
    ui_->btnBack->setIcon(ix::xtheme::icon(Glyph::Back));
    connect(ui_->btnCancel, &QPushButton::clicked, this, &RecipeWizard::reject);
    connect(ui_->btnBack, &QPushButton::clicked, this, &RecipeWizard::back);
    connect(ui_->btnNext, &QPushButton::clicked, this, &RecipeWizard::next);
    connect(ui_->btnUndo, &QPushButton::clicked, this, &RecipeWizard::undo);
    connect(ui_->btnRedo, &QPushButton::clicked, this, &RecipeWizard::redo);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this, &RecipeWizard::undo);
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, this, &RecipeWizard::redo);
}

void RecipeWizard::addPage(RecipeFrame *frame)
{
    pages_.append(frame);
    ui_->stkPages->addWidget(scrollingForm(frame));
    connect(frame, &RecipeFrame::edited, this, &RecipeWizard::onEdited);
    connect(frame, &RecipeFrame::refused, this,
            [this](const QString &reason) { ui_->message->showMessage(reason, State::Attention); });
    frame->setStack(editing_.stack());
}

void RecipeWizard::start()
{
    new KeypadOpener(this);
    setFieldMargins(this);
    showPage(0);
}

void RecipeWizard::openUnique()
{
    palx::makeUniqueDialog(this);
    if (parentWidget())
        setGeometry(parentWidget()->window()->geometry());
    open();
}

int RecipeWizard::page() const
{
    return ui_->stkPages->currentIndex();
}

void RecipeWizard::showPage(int index)
{
    ui_->stkPages->setCurrentIndex(index);
    ui_->message->clearMessage();
    retranslate();
    afterStep();
}

bool RecipeWizard::tryNext()
{
    const QString problem = pages_[page()]->blockingProblem();
    if (!problem.isEmpty())
        nexo::ManagerHelper::instance()->execMsgOk(titleText(), problem, QStringLiteral("_"));
    return problem.isEmpty();
}

void RecipeWizard::next()
{
    finishField(this);
    if (!stack() || !tryNext())
        return;
    editing_.saveAndTell();
    if (page() + 1 < pages_.size())
        showPage(page() + 1);
    else
        accept();
}

void RecipeWizard::back()
{
    finishField(this);
    if (page() > 0)
        showPage(page() - 1);
}

void RecipeWizard::reject()
{
    finishField(this);
    const bool lost = editing_.differsFromOpened();
    if (lost && !nexo::ManagerHelper::instance()->execMsgOk(titleText(), tr("Take back all edits?")))
        return;
    editing_.revert();
    QDialog::reject();
}

void RecipeWizard::onEdited()
{
    const QString putRight = editing_.commit();
    if (putRight.isEmpty())
        ui_->message->clearMessage();
    else
        ui_->message->showMessage(putRight, State::Attention);
    afterStep();
}

void RecipeWizard::afterStep()
{
    pages_[page()]->refresh();
    ui_->btnUndo->setEnabled(editing_.canUndo());
    ui_->btnRedo->setEnabled(editing_.canRedo());
}

void RecipeWizard::undo()
{
    step(&RecipeEditing::undo);
}

void RecipeWizard::redo()
{
    step(&RecipeEditing::redo);
}

void RecipeWizard::step(bool (RecipeEditing::*wind)())
{
    finishField(this);
    if (!(editing_.*wind)())
        return;
    ui_->message->clearMessage();
    afterStep();
}

void RecipeWizard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        retranslate();
    }
    QDialog::changeEvent(event);
}

void RecipeWizard::retranslate()
{
    if (pages_.isEmpty())
        return;
    const bool last = page() + 1 == pages_.size();
    const QString recipe = stack() ? stack()->getString("name") : QString();
    setWindowTitle(titleText());
    ui_->lblTitle->setText(titleText());
    ui_->lblRecipe->setText(recipe);
    ui_->lblStep->setText(tr("%1 of %2: %3").arg(page() + 1).arg(pages_.size()).arg(pageTitle(page())));
    ui_->btnNext->setText(last ? tr("Finish") : tr("Next"));
    ui_->btnNext->setAccessibleName(ui_->btnNext->text());
    ui_->btnBack->setEnabled(page() > 0);
}

#include "ui/run_side_card.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"
#include "ui_run_side_card.h"

#include <QEvent>
#include <QLocale>

using ix::xtheme::State;
using palx::LineSide;
using palx::RunState;

namespace {

struct Look
{
    State state;
    const char *text;
};

/// Colour and text of a state together.
Look lookOf(RunState state)
{
    switch (state) {
    case RunState::NoController:
        return {State::Stopped, QT_TRANSLATE_NOOP("RunSideCard", "No controller")};
    case RunState::Absent:
        return {State::Stopped, QT_TRANSLATE_NOOP("RunSideCard", "Not in this project")};
    case RunState::Fault:
        return {State::Fault, QT_TRANSLATE_NOOP("RunSideCard", "Fault")};
    case RunState::Unconfirmed:
        return {State::Attention, QT_TRANSLATE_NOOP("RunSideCard", "Broken off: confirm layer and piece")};
    case RunState::Full:
        return {State::Attention, QT_TRANSLATE_NOOP("RunSideCard", "Pallet full: exchange and confirm it")};
    case RunState::Paused:
        return {State::Attention, QT_TRANSLATE_NOOP("RunSideCard", "Paused")};
    case RunState::Standing:
        return {State::Attention, QT_TRANSLATE_NOOP("RunSideCard", "Enabled, no program runs")};
    case RunState::MovedByHand:
        return {State::Manual, QT_TRANSLATE_NOOP("RunSideCard", "Robot is moved by hand")};
    case RunState::Stacking:
        return {State::Running, QT_TRANSLATE_NOOP("RunSideCard", "Stacking")};
    case RunState::Waiting:
        return {State::Stopped, QT_TRANSLATE_NOOP("RunSideCard", "Enabled, waits for its turn")};
    case RunState::Disabled:
        break;
    }
    return {State::Stopped, QT_TRANSLATE_NOOP("RunSideCard", "Disabled")};
}

QString ofAll(int number, int all)
{
    return all > 0 ? QStringLiteral("%1 / %2").arg(number).arg(all) : QString(QChar(0x2013));
}

} // namespace

RunSideCard::RunSideCard(LineSide side, QWidget *parent)
    : QFrame(parent), which_(side), ui_(std::make_unique<Ui::RunSideCard>())
{
    ui_->setupUi(this);
    keepFromWheel(this); // another recipe would be asked for at once
    setObjectName(side == LineSide::Left ? QStringLiteral("crdLeft") : QStringLiteral("crdRight"));
    ui_->btnReset->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::TurnLeft));
    ui_->btnReset->setIconSize(QSize(32, 32));
    connect(ui_->cmbRecipe, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        showRecipes(); // what the controller says, until it says otherwise
        if (index != shown_.recipe)
            Q_EMIT recipeWanted(index);
    });
    connect(ui_->btnEnable, &QPushButton::clicked, this, [this] { Q_EMIT enableWanted(!shown_.isEnabled); });
    connect(ui_->btnStartAt, &QPushButton::clicked, this, &RunSideCard::startWanted);
    connect(ui_->btnReset, &QPushButton::clicked, this, &RunSideCard::resetWanted);
    showSide(shown_, state_, why_, nullptr);
}

RunSideCard::~RunSideCard() = default;

void RunSideCard::showSide(const palx::RunSide &side, RunState state, const QString &why,
                           const orba::Node *stack)
{
    shown_ = side;
    state_ = state;
    why_ = why;
    showState();
    showRecipes();
    showFigures();
    showPicture(stack);
    showButtons();
}

void RunSideCard::setWaiting(bool waits)
{
    waits_ = waits;
    showButtons();
}

void RunSideCard::showState()
{
    const Look look = lookOf(state_);
    const QString text = tr(look.text);
    ui_->lblSide->setText(which_ == LineSide::Left ? tr("Left") : tr("Right"));
    ui_->lblState->setText(why_.isEmpty() ? text : text + QStringLiteral(": ") + why_);
    ix::xtheme::setState(ui_->lblState, look.state);
}

void RunSideCard::showRecipes()
{
    QStringList entries = shown_.recipes;
    if (entries.isEmpty())
        entries = QStringList(tr("empty"));
    QStringList there;
    for (int i = 0; i < ui_->cmbRecipe->count(); ++i)
        there.append(ui_->cmbRecipe->itemText(i));
    if (there != entries) {
        ui_->cmbRecipe->clear();
        ui_->cmbRecipe->addItems(entries);
    }
    ui_->cmbRecipe->setCurrentIndex(shown_.recipe < shown_.recipes.size() ? shown_.recipe : -1);
}

void RunSideCard::showFigures()
{
    const QString none(QChar(0x2013));
    const bool hasCycle = shown_.cycleSeconds > 0;
    ui_->lblBoxes->setText(ofAll(shown_.piled, shown_.expected));
    ui_->lblLayer->setText(ofAll(std::min(shown_.layer, shown_.layers), shown_.layers));
    ui_->lblPiece->setText(ofAll(std::min(shown_.piece, shown_.pieces), shown_.pieces));
    ui_->lblPallets->setText(QString::number(shown_.pallets));
    ui_->lblCycle->setText(hasCycle ? tr("%1 s").arg(shown_.cycleSeconds, 0, 'f', 1) : none);
    ui_->lblRate->setText(hasCycle ? QString::number(qRound(shown_.boxesPerHour())) : none);
}

void RunSideCard::showPicture(const orba::Node *stack)
{
    const QString name = stack ? shown_.recipeName() : QString();
    if (name != pictured_) {
        ui_->view->showStack(stack);
        pictured_ = name;
    }
    if (!stack)
        return;
    const int layer = shown_.isFull ? shown_.layers + 1 : shown_.layer;
    ui_->view->setPieces(palx::piecesBefore(*stack, layer, shown_.piece, true));
}

void RunSideCard::showButtons()
{
    const bool isThere = !waits_ && state_ != RunState::NoController && state_ != RunState::Absent;
    for (QWidget *control : {static_cast<QWidget *>(ui_->btnEnable), static_cast<QWidget *>(ui_->btnStartAt),
                             static_cast<QWidget *>(ui_->btnReset), static_cast<QWidget *>(ui_->cmbRecipe)})
        control->setEnabled(isThere);
    ui_->btnEnable->setText(shown_.isEnabled ? tr("Disable") : tr("Enable"));
    ui_->btnEnable->setAccessibleName(ui_->btnEnable->text() + QLatin1Char(' ') + ui_->lblSide->text());
}

void RunSideCard::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui_->retranslateUi(this);
    showState();
    showRecipes();
    showFigures();
    showButtons();
}

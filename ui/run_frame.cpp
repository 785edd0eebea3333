#include "ui/run_frame.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "pattern/node_follower.h"
#include "project/rules/first_project.h"
#include "project/rules/project_record.h"
#include "project/rules/run_recovery.h"
#include "ui/run_side_card.h"
#include "ui/start_dialog.h"
#include "ui_run_frame.h"
#include "workstation/controller_recipes.h"
#include "workstation/plugin_node.h"
#include "workstation/unique_widget.h"

#include <QDateTime>
#include <QEvent>

#include <algorithm>

using ix::xtheme::State;
using orba::ModuleObject;
using palx::LineSide;

namespace {

QString whyOf(palx::RunState state, const palx::RunRecovery &run)
{
    const QString blocked = state == palx::RunState::Paused ? palx::whyNotGoOn(run) : QString();
    if (!blocked.isEmpty())
        return blocked;
    const bool hasReason = state == palx::RunState::Fault || state == palx::RunState::Paused;
    return hasReason ? m("nexo.cell.program")->getString("why") : QString();
}

int numberOf(const RunSideCard *card)
{
    return static_cast<int>(card->side());
}

palx::RunCircumstances circumstances(const palx::RunRecovery &run, const RunSideCard *card)
{
    return {m("nexo.r")->getBool("connected"), m("nexo.robot")->getBool("moving"),
            palx::needsConfirmation(run, numberOf(card))};
}

/// A confirmation as changes of variables.
palx::VariableChanges changesOf(const orba::Node &values)
{
    palx::VariableChanges changes;
    for (int i = 0; i < values.size(); ++i)
        changes.append({values.at(i)->name().toString(), values.at(i)->toString()});
    return changes;
}

} // namespace

RunFrame::RunFrame(const palx::ControllerRecipes *recipes, QWidget *parent)
    : QWidget(parent), ui_(std::make_unique<Ui::RunFrame>()), recipes_(recipes)
{
    ui_->setupUi(this);
    QSizePolicy room = ui_->message->sizePolicy(); // or every press would move the buttons under the finger
    room.setRetainSizeWhenHidden(true);
    ui_->message->setSizePolicy(room);
    for (const LineSide side : palx::kLineSides)
        addCard(side);
    ui_->btnMake->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Add));
    connect(ui_->btnMake, &QPushButton::clicked, this, &RunFrame::makeProject);
    if (recipes_)
        connect(recipes_, &palx::ControllerRecipes::changed, this, &RunFrame::dropMismatch);
    refresh_.setSingleShot(true);
    connect(&refresh_, &QTimer::timeout, this, &RunFrame::refresh);
    for (const char *path : {"quill.project.cur_project", "nexo.r.connected",
                             "nexo.cell.program.state"}) // also while it is not seen
        connect(m(path), &ModuleObject::changed, &refresh_, [this] { refresh_.start(); });
    refresh();
}

RunFrame::~RunFrame() = default;

void RunFrame::addCard(LineSide side)
{
    auto *card = new RunSideCard(side);
    cards_[static_cast<std::size_t>(side)] = card;
    ui_->laySides->addWidget(card, 1);
    connect(card, &RunSideCard::enableWanted, this, [this, card](bool on) { setEnabledSide(card, on); });
    connect(card, &RunSideCard::recipeWanted, this, [this, card](int index) { chooseRecipe(card, index); });
    connect(card, &RunSideCard::startWanted, this, [this, card] { startAt(card); });
    connect(card, &RunSideCard::resetWanted, this, [this, card] { reset(card); });
}

// ---------------------------------------------------------------- what the controller says

void RunFrame::follow()
{
    follower_ = std::make_unique<palx::NodeFollower>();
    isStale_ = false;
    const ModuleObject *variables = m("quill.project.var._list");
    follower_->follow(variables);
    for (const ModuleObject *variable : variables->cmobjs())
        follower_->follow(variable->r("value.[0][0][0]"));
    const ModuleObject *cell = m("nexo.cell");
    for (const char *path : {"program.state", "program.why", "program.fault", "gripper.carries", "pallets"})
        follower_->follow(cell->r(path));
    for (const ModuleObject *pallet : cell->r("pallets")->cmobjs())
        for (const char *key : {"count", "recipe", "layer", "piece"})
            follower_->follow(pallet->c(key));
    for (const ModuleObject *node : {m("nexo.robot.moving"), palx::stacksNode(), palx::projectsNode()})
        follower_->follow(node);
    connect(follower_.get(), &palx::NodeFollower::valueTouched, &refresh_, [this] { refresh_.start(); });
    connect(follower_.get(), &palx::NodeFollower::structureTouched, &refresh_, [this] {
        isStale_ = true;
        for (RunSideCard *card : cards_)
            card->forgetPicture();
        refresh_.start();
    });
    for (const char *trigger : {"refresh_table", "refresh_data", "refresh_cmb"})
        connect(palx::triggerNode()->c(trigger), &ModuleObject::changed, follower_.get(),
                &palx::NodeFollower::structureTouched);
}

void RunFrame::refresh()
{
    if (follower_ && isStale_)
        follow();
    const palx::RunSource source = palx::currentRunSource();
    const palx::RunRecovery run = palx::currentRunRecovery();
    bool hasLine = false;
    for (RunSideCard *card : cards_) {
        const palx::RunSide side = palx::readRunSide(source, card->side());
        const palx::RunState state = palx::runState(side, source.program, circumstances(run, card));
        card->setVisible(side.isPart);
        if (side.isPart)
            card->showSide(side, state, whyOf(state, run),
                           palx::recipeOfSide(source.stacks, card->side(), side.recipe));
        hasLine = hasLine || side.isPart;
    }
    ui_->stkRun->setCurrentWidget(hasLine ? ui_->pagSides : ui_->pagNone);
    showNone();
    if (!std::exchange(hasLine_, hasLine) && hasLine)
        Q_EMIT lineCame();
    holdBack(run);
    if (follower_)
        askWhatBrokeOff(run);
}

/// What has to come before anything can be produced.
void RunFrame::showNone()
{
    const bool isConnected = m("nexo.r")->getBool("connected");
    const bool hasRecipes = palx::stacksNode()->cmobjCount() > 0;
    ui_->btnMake->setVisible(isConnected && hasRecipes);
    if (!isConnected)
        ui_->lblNone->setText(tr("There is no connection to the controller."));
    else if (!hasRecipes)
        ui_->lblNone->setText(tr("There are no recipes yet. Make one on the page \"Recipes\"."));
    else
        ui_->lblNone->setText(
            tr("No robot project is in use. Make one here, or choose one on the page \"Projects\"."));
}

void RunFrame::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    follow();
    refresh();
}

void RunFrame::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    follower_.reset();
}

// ---------------------------------------------------------------- what is asked of it

const orba::Node *RunFrame::recipeOf(const RunSideCard *card) const
{
    return palx::recipeOfSide(palx::stacksNode()->node(), card->side(), card->shown().recipe);
}

void RunFrame::refuse(const QString &why)
{
    refused_ = nullptr;
    ui_->message->showMessage(why, State::Fault);
}

/// Until the answer comes, nothing else can be asked of that side, and the page says that it waits.
void RunFrame::ask(RunSideCard *card, const palx::VariableChanges &changes)
{
    card->setWaiting(true);
    refused_ = nullptr;
    ui_->message->showMessage(tr("Waiting for the controller."), State::Manual);
    palx::setValueOfPERSVar(changes, card, [this, card](const XReply &reply) {
        card->setWaiting(false);
        if (reply.isOk())
            ui_->message->clearMessage();
        else
            refuse(tr("The controller did not take it: %1").arg(reply.error));
        refresh();
    });
}

void RunFrame::setEnabledSide(RunSideCard *card, bool on)
{
    if (!on)
        return ask(card, palx::enableChanges(card->side(), false));
    if (const QString problem = recipeProblem(card); !problem.isEmpty()) {
        refuse(problem);
        refused_ = card;
        return;
    }
    const palx::RunRecovery run = palx::currentRunRecovery();
    if (palx::needsConfirmation(run, numberOf(card)))
        return recover(card, true);
    const QString problem = palx::whyNotEnable(run, numberOf(card));
    if (problem.isEmpty())
        ask(card, enablingChanges(card));
    else
        refuse(problem);
}

/// What was refused because of the recipes may be true no more.
void RunFrame::dropMismatch()
{
    if (!refused_ || !recipeProblem(refused_).isEmpty())
        return;
    refused_ = nullptr;
    ui_->message->clearMessage();
}

/// Why the side's recipe cannot be stacked.
QString RunFrame::recipeProblem(const RunSideCard *card) const
{
    const QString problem = palx::enableProblem(card->shown(), recipeOf(card));
    return problem.isEmpty() ? recipeMismatch(card->shown().recipeName()) : problem;
}

palx::VariableChanges RunFrame::enablingChanges(const RunSideCard *card)
{
    return palx::enableChanges(card->side(), true) +
           palx::heightChanges(palx::currentRunSource(), card->side());
}

/// Programs take points and place of a recipe from the controller.
QString RunFrame::recipeMismatch(const QString &name) const
{
    if (!recipes_ || recipes_->state() != palx::ControllerRecipes::State::Known)
        return QString();
    const auto &all = recipes_->matches();
    const bool isSame = std::any_of(all.begin(), all.end(), [&name](const palx::RecipeMatch &match) {
        return match.name == name && match.place == palx::RecipePlace::Same;
    });
    return isSame ? QString()
                  : tr("The controller holds the recipe \"%1\" otherwise. Send the recipes first.").arg(name);
}

void RunFrame::chooseRecipe(RunSideCard *card, int index)
{
    const orba::Node *stack = palx::recipeOfSide(palx::stacksNode()->node(), card->side(), index);
    QString problem = palx::recipeChangeProblem(card->shown());
    if (problem.isEmpty())
        problem = palx::enableProblem(card->shown(), stack);
    if (problem.isEmpty())
        ask(card, palx::recipeChanges(card->side(), *stack, index));
    else
        refuse(problem);
}

void RunFrame::startAt(RunSideCard *card)
{
    const palx::RunRecovery run = palx::currentRunRecovery();
    if (palx::needsConfirmation(run, numberOf(card)))
        return recover(card, false);
    const orba::Node *stack = recipeOf(card);
    const QString problem = palx::enableProblem(card->shown(), stack);
    if (!problem.isEmpty())
        return refuse(problem);
    StartRequest request;
    request.title = numberOf(card) == 0 ? tr("Start the left side at") : tr("Start the right side at");
    request.accept = tr("Start here");
    request.text = tr("Recipe \"%1\"").arg(card->shown().recipeName());
    request.piece = run.sides[static_cast<std::size_t>(numberOf(card))].counted;
    askForPiece(card, request, {});
}

/// What broke off goes on only when somebody looked at it.
void RunFrame::recover(RunSideCard *card, bool thenEnable)
{
    StartRequest request;
    request.title = numberOf(card) == 0 ? tr("The left side broke off") : tr("The right side broke off");
    request.text =
        tr("Clear the gripper, look at the pallet, and confirm the box to go on with. It is proposed by the "
           "counters and by what lies there.");
    request.piece = palx::currentRunRecovery().sides[static_cast<std::size_t>(numberOf(card))].proposed;
    request.accept = tr("Confirm");
    request.mustClear = true;
    const bool isHeldBack = brokenOff_[static_cast<std::size_t>(numberOf(card))].isHeldBack;
    const bool isEnabling = (thenEnable || isHeldBack) && recipeProblem(card).isEmpty();
    askForPiece(card, request, isEnabling ? enablingChanges(card) : palx::VariableChanges());
}

void RunFrame::askForPiece(RunSideCard *card, const StartRequest &request,
                           const palx::VariableChanges &further)
{
    const orba::Node *stack = recipeOf(card);
    if (!stack)
        return refuse(palx::enableProblem(card->shown(), stack));
    StartRequest whole = request;
    whole.side = numberOf(card);
    whole.stack = *stack;
    auto *dialog = new StartDialog(whole, window());
    dialog_ = dialog;
    palx::makeUniqueDialog(dialog);
    connect(dialog, &QDialog::accepted, card, [this, card, dialog, further] {
        const orba::Node values =
            palx::confirmedVariables(palx::currentRunRecovery(), numberOf(card), dialog->piece());
        ask(card, changesOf(values) + further);
    });
    connect(dialog, &QDialog::finished, &refresh_, [this] { refresh_.start(); }); // the other side may wait
    dialog->open();
}

/// Nothing is to start with counters that nobody compared with what lies there.
void RunFrame::holdBack(const palx::RunRecovery &run)
{
    for (RunSideCard *card : cards_) {
        BrokenOff &state = brokenOff_[static_cast<std::size_t>(numberOf(card))];
        const palx::RunSide &side = card->shown();
        if (!side.isPart || !palx::needsConfirmation(run, numberOf(card))) {
            state = BrokenOff();
        } else if (side.isEnabled && !state.isHeldBack && m("nexo.r")->getBool("connected")) {
            state.isHeldBack = true;
            ask(card, palx::enableChanges(card->side(), false));
        }
    }
}

/// Once for each time that a side breaks off, one side after the other.
void RunFrame::askWhatBrokeOff(const palx::RunRecovery &run)
{
    for (RunSideCard *card : cards_) {
        bool &wasAsked = brokenOff_[static_cast<std::size_t>(numberOf(card))].wasAsked;
        const bool isDue = card->shown().isPart && palx::needsConfirmation(run, numberOf(card)) && !wasAsked;
        if (!isDue || card->isWaiting() || (dialog_ && dialog_->isVisible()))
            continue;
        wasAsked = true;
        return recover(card, false);
    }
}

void RunFrame::reset(RunSideCard *card)
{
    const QString text =
        card->side() == LineSide::Left
            ? tr("Set pallets and cycle time of the left side to 0? Layer and piece stay as they are.")
            : tr("Set pallets and cycle time of the right side to 0? Layer and piece stay as they are.");
    if (nexo::ManagerHelper::instance()->execMsgOk(tr("Reset counters"), text))
        ask(card, palx::resetChanges(card->side()));
}

void RunFrame::makeProject()
{
    const QString name = QStringLiteral("Palletizing_") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyy_MMdd_HHmm"));
    palx::makeFirstProject(name, [this](bool isRunning) { // says itself what went wrong
        if (isRunning)
            ui_->message->showMessage(tr("Waiting for the controller."), State::Manual);
        else
            ui_->message->clearMessage();
        repaint(); // what follows handles no events
    });
    refresh();
}

void RunFrame::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui_->retranslateUi(this);
    refresh();
}

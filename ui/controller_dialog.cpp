#include "ui/controller_dialog.h"

#include "project/rules/recipe_places.h"
#include "ui/form_style.h"
#include "ui/recipe_match_model.h"
#include "ui_controller_dialog.h"
#include "workstation/controller_recipes.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using orba::ModuleObject;
using palx::ControllerRecipes;

namespace {

bool isConnected()
{
    return m("nexo.r")->getBool("connected");
}

/// What the controller works with; a controller that does not tell it has what was chosen last.
QString activeTool()
{
    const QString told = m("quill.body.toolset")->getString();
    return told.isEmpty() ? m("quill.toolpage.toolset")->getString() : told;
}

} // namespace

QString controllerRecipesText(const ControllerRecipes &recipes)
{
    switch (recipes.state()) {
    case ControllerRecipes::State::NoConnection:
        return ControllerDialog::tr(
            "There is no connection to the controller. Editing goes on; send the recipes when it "
            "is back.");
    case ControllerRecipes::State::Asking:
        return ControllerDialog::tr("The controller is being asked for its recipes.");
    case ControllerRecipes::State::Unknown:
        return ControllerDialog::tr("The controller does not tell its recipes: %1").arg(recipes.error());
    case ControllerRecipes::State::Known:
        break;
    }
    const int all = static_cast<int>(recipes.matches().size());
    return recipes.differing() == 0
               ? ControllerDialog::tr("The controller holds all %1 recipes as they are here.").arg(all)
               : ControllerDialog::tr(
                     "%1 of %2 recipes differ. Send everything to make the controller's the same.")
                     .arg(recipes.differing())
                     .arg(all);
}

State controllerRecipesLook(const ControllerRecipes &recipes)
{
    switch (recipes.state()) {
    case ControllerRecipes::State::NoConnection:
        return State::Stopped;
    case ControllerRecipes::State::Asking:
        return State::None;
    case ControllerRecipes::State::Unknown:
        return State::Fault;
    case ControllerRecipes::State::Known:
        break;
    }
    return recipes.differing() == 0 ? State::Running : State::Attention;
}

QString controllerRecipesSign(const ControllerRecipes &recipes)
{
    if (recipes.state() != ControllerRecipes::State::Known)
        return QString(QChar(0x2013));
    const int differing = recipes.differing();
    return differing == 0 ? QStringLiteral("= %1").arg(recipes.matches().size())
                          : QString(QChar(0x2260)) + QStringLiteral(" %1").arg(differing);
}

ControllerDialog::ControllerDialog(ControllerRecipes *recipes, QWidget *parent)
    : QDialog(parent), recipes_(recipes), ui_(std::make_unique<Ui::ControllerDialog>()),
      model_(new RecipeMatchModel(this))
{
    ui_->setupUi(this);
    ui_->tblRecipes->setModel(model_);
    setupTable(ui_->tblRecipes, RecipeMatchModel::Name, false);
    ui_->tblRecipes->setSelectionMode(QAbstractItemView::NoSelection);
    ui_->btnPush->setIcon(ix::xtheme::icon(Glyph::Up, Qt::white));
    ui_->btnPush->setIconSize(QSize(28, 28));
    connect(ui_->btnPush, &QPushButton::clicked, this, &ControllerDialog::pushAll);
    connect(ui_->btnTool, &QPushButton::clicked, this, &ControllerDialog::switchTool);
    connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::accept);
    follow();
    fillTools();
    showRecipes();
    showTool();
    recipes_->ask();
}

ControllerDialog::~ControllerDialog() = default;

void ControllerDialog::follow()
{
    connect(recipes_, &ControllerRecipes::changed, this, &ControllerDialog::showRecipes);
    for (const char *path : {"quill.body.toolset", "quill.toolpage.toolset", "nexo.r.connected"})
        connect(m(path), &ModuleObject::changed, this, &ControllerDialog::showTool);
    connect(palx::stacksNode(), &ModuleObject::structureChanged, this, &ControllerDialog::fillTools);
}

void ControllerDialog::showRecipes()
{
    if (!recipes_)
        return;
    model_->setMatches(recipes_->matches());
    ui_->lblState->setText(controllerRecipesText(*recipes_));
    ix::xtheme::setState(ui_->lblState, controllerRecipesLook(*recipes_));
    showTool();
}

void ControllerDialog::showTool()
{
    const bool connected = isConnected();
    const QString tool = activeTool();
    ui_->lblTool->setText(tr("Active tool: %1").arg(tool.isEmpty() ? tr("unknown") : tool));
    ui_->btnPush->setEnabled(connected);
    ui_->btnTool->setEnabled(connected && ui_->cmbTool->count() > 0);
    ui_->cmbTool->setEnabled(ui_->btnTool->isEnabled());
    ui_->lblReason->setText(connected ? QString() : tr("Not possible without a connection."));
}

namespace {

/// A record that nobody filled would be sent as zeros, and the flange taken for the tool.
bool hasOwnTool(const orba::Node &stack)
{
    const orba::Node *toolset = stack.find(u"toolset");
    return !stack.getBool(u"use_global_tool") && toolset && toolset->isContainer() && toolset->size() > 0;
}

} // namespace

/// The shared tool and the recipes' own; keeps the choice.
void ControllerDialog::fillTools()
{
    const QVariant chosen = ui_->cmbTool->currentData();
    ui_->cmbTool->clear();
    const ModuleObject *shared = palx::pluginNode()->c("global_tool")->cmobj(0);
    if (!shared->isEmptyMobj())
        ui_->cmbTool->addItem(tr("Shared tool %1").arg(shared->getString("name")), QString());
    for (const ModuleObject *stack : palx::stacksNode()->cmobjs())
        if (hasOwnTool(stack->node()))
            ui_->cmbTool->addItem(tr("Tool of %1").arg(stack->getString("name")), stack->getString("name"));
    ui_->cmbTool->setCurrentIndex(std::max(0, ui_->cmbTool->findData(chosen)));
    showTool();
}

/// The call that follows handles no events, so what is said now must be on the screen first.
void ControllerDialog::showWaiting(const QString &text)
{
    ui_->message->showMessage(text, State::Manual);
    QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
    repaint();
}

void ControllerDialog::pushAll()
{
    const QString problem =
        recipes_ ? palx::whyNotSend(palx::currentRunRecovery(), recipes_->matches()) : QString();
    if (!problem.isEmpty())
        return ui_->message->showMessage(problem, State::Fault);
    showWaiting(tr("The recipes are being sent."));
    const XReply reply = palx::sendAllStacks();
    if (reply.isOk())
        ui_->message->showMessage(
            tr("The controller took all %1 recipes.").arg(palx::stacksNode()->cmobjCount()), State::Running);
    else
        ui_->message->showMessage(tr("The recipes were not taken: %1").arg(reply.error), State::Fault);
}

void ControllerDialog::switchTool()
{
    showWaiting(tr("The tool is being switched."));
    const QString name = ui_->cmbTool->currentData().toString();
    const bool done = name.isEmpty()
                          ? palx::switchToTool()
                          : palx::switchToToolset(palx::getStack(name)->c("toolset"), false, false, false);
    if (done)
        ui_->message->showMessage(tr("The controller works with the tool %1.").arg(activeTool()),
                                  State::Running);
    else
        ui_->message->showMessage(tr("The controller did not take the tool. The log may say why."),
                                  State::Fault);
    showTool();
}

void ControllerDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        fillTools();
        showRecipes();
    }
    QDialog::changeEvent(event);
}

#include "ui/stacksetuppage.h"

#include "ix/xtheme.h"
#include "orba/managers.h"
#include "project/rules/run_recovery.h"
#include "ui/calibration_frame.h"
#include "ui/cell_wizards.h"
#include "ui/current_recipe.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui/layers_frame.h"
#include "ui/pallet_frame.h"
#include "ui/patterns_frame.h"
#include "ui/points_frame.h"
#include "ui/product_frame.h"
#include "ui/waypoints_frame.h"
#include "ui_stacksetuppage.h"
#include "workstation/plugin_node.h"

#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <QShortcut>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using orba::ModuleObject;

namespace {

constexpr int kPageVersion = 14;

// Runs while the library is loaded; the host asks for the versions of the plug-in's parts.
const bool registered = orba::versionManager().regist(
    mName(QStringLiteral("palx_workstation"), QStringLiteral("stack.page")), [] { return kPageVersion; });

QString pageKey(const char *page)
{
    return mName(palx::getPluginName(), QLatin1String(page));
}

} // namespace

StackSetupPage::StackSetupPage(QWidget *parent, bwaf::BModule *module)
    : BModule(module), module_(module), wgt_(new QWidget(parent)), ui_(std::make_unique<Ui::StackSetupPage>())
{
    ui_->setupUi(wgt_);
    wgt_->installEventFilter(this);
    makeFrames();
    connectHeader();
    makeWizardMenu();
    new KeypadOpener(wgt_);
    setFieldMargins(wgt_);
    setStack(nullptr);
}

StackSetupPage::~StackSetupPage()
{
    delete wgt_; // still there only when the page ends before its centre widget
}

QString StackSetupPage::name() const
{
    return pageKey("setup_page");
}

QWidget *StackSetupPage::wgt()
{
    return wgt_;
}

void StackSetupPage::makeFrames()
{
    frames_ = {new ProductFrame(wgt_), new PalletFrame(wgt_),      new PatternsFrame(wgt_),
               new LayersFrame(wgt_),  new CalibrationFrame(wgt_), new WaypointsFrame(wgt_),
               new PointsFrame(wgt_)};
    buttons_ = {ui_->btnProduct,     ui_->btnPallet,    ui_->btnPatterns, ui_->btnLayers,
                ui_->btnCalibration, ui_->btnWaypoints, ui_->btnPoints};
    for (int i = 0; i < frames_.size(); ++i) {
        ui_->stkFrames->addWidget(scrollingForm(frames_[i]));
        connect(buttons_[i], &QAbstractButton::clicked, wgt_, [this, i] { showFrame(i); });
        connect(frames_[i], &RecipeFrame::edited, wgt_, [this] { onEdited(); });
        connect(frames_[i], &RecipeFrame::refused, wgt_,
                [this](const QString &reason) { ui_->message->showMessage(reason, State::Attention); });
    }
    ui_->btnProduct->setChecked(true);
}

void StackSetupPage::connectHeader()
{
    ui_->btnBack->setIcon(ix::xtheme::icon(Glyph::Back));
    connect(ui_->btnBack, &QPushButton::clicked, wgt_,
            [this] { bwaf::instantiatedCenterWidget(module_)->setCurrentPage(pageKey("home_page")); });
    connect(ui_->cmbRecipe, QOverload<int>::of(&QComboBox::activated), wgt_, [this] {
        currentRecipe(module_)->setValue(ui_->cmbRecipe->currentText());
        pageDateRefresh();
    });
    connect(ui_->btnUndo, &QPushButton::clicked, wgt_, [this] { undo(); });
    connect(ui_->btnRedo, &QPushButton::clicked, wgt_, [this] { redo(); });
    connect(new QShortcut(QKeySequence::Undo, wgt_), &QShortcut::activated, wgt_, [this] { undo(); });
    connect(new QShortcut(QKeySequence::Redo, wgt_), &QShortcut::activated, wgt_, [this] { redo(); });
    connect(palx::triggerNode()->c("refresh_cmb"), &ModuleObject::changed, wgt_, [this] { fillRecipes(); });
}

void StackSetupPage::makeWizardMenu()
{
    auto *menu = new QMenu(wgt_);
    menu->setObjectName(QStringLiteral("mnuWizard"));
    const struct
    {
        WizardKind kind;
        const char *name;
    } entries[] = {{WizardKind::Parameters, "wizard-parameters"},
                   {WizardKind::Patterns, "wizard-patterns"},
                   {WizardKind::Directions, "wizard-directions"},
                   {WizardKind::Layers, "wizard-layers"},
                   {WizardKind::Waypoints, "wizard-waypoints"}};
    for (const auto &entry : entries) {
        const WizardKind kind = entry.kind;
        wizards_ << menu->addAction(QString(), wgt_.data(), [this, kind] { openWizard(kind); });
        wizards_.last()->setObjectName(QLatin1String(entry.name));
    }
    ui_->btnWizard->setMenu(menu);
    retranslate();
}

void StackSetupPage::openWizard(WizardKind kind)
{
    finishField(wgt_);
    editing_.save(); // a wizard that is cancelled goes back to what stands here now
    RecipeWizard *wizard = openRecipeWizard(kind, stack(), wgt_);
    connect(wizard, &QDialog::finished, wgt_, [this] { pageDateRefresh(); });
    // Also when another takes its place; queued, because it ends with the page too.
    connect(
        wizard, &QObject::destroyed, wgt_, [this] { pageDateRefresh(); }, Qt::QueuedConnection);
}

void StackSetupPage::showFrame(int index)
{
    if (index != ui_->stkFrames->currentIndex())
        editing_.save();
    buttons_.value(index)->setChecked(true);
    ui_->stkFrames->setCurrentIndex(index);
}

void StackSetupPage::pageDateRefresh()
{
    ModuleObject *stack = palx::getStack(currentRecipe(module_)->value());
    fillRecipes();
    if (stack->isEmptyMobj())
        setStack(nullptr);
    else if (stack != this->stack())
        setStack(stack);
    else {
        editing_.takeOver();
        afterStep();
    }
}

void StackSetupPage::setStack(ModuleObject *stack)
{
    editing_.leave();
    if (editing_.stack())
        editing_.stack()->disconnect(wgt_);
    editing_.open(stack);
    if (stack)
        connect(stack, &QObject::destroyed, wgt_, [this] { setStack(nullptr); });
    for (RecipeFrame *frame : frames_)
        frame->setStack(stack);
    ui_->stkPage->setCurrentWidget(stack ? ui_->pagRecipe : ui_->pagNone);
    showNotice(QString());
    fillRecipes();
    updateHeader();
}

void StackSetupPage::fillRecipes()
{
    const orba::Node &stacks = palx::stacksNode()->node();
    ui_->cmbRecipe->clear();
    for (int i = 0; i < stacks.size(); ++i)
        ui_->cmbRecipe->addItem(stacks.getString(QStringLiteral("#%1.name").arg(i)));
    ui_->cmbRecipe->setCurrentIndex(stack() ? stacks.indexOf(&stack()->node()) : -1);
}

void StackSetupPage::onEdited()
{
    showNotice(editing_.commit());
    afterStep();
}

/// What was put right, else that the pallet that was begun takes every change.
void StackSetupPage::showNotice(const QString &putRight)
{
    QString text = putRight;
    if (text.isEmpty() && stack() &&
        !palx::whyNotRename(palx::currentRunRecovery(), stack()->getString("name")).isEmpty())
        text = tr("This recipe is being stacked. Changes take effect when you leave the page, on the pallet "
                  "that was begun, "
                  "too.");
    if (text.isEmpty())
        ui_->message->clearMessage();
    else
        ui_->message->showMessage(text, State::Attention);
}

/// Fields follow their nodes; what is computed is shown again.
void StackSetupPage::afterStep()
{
    frames_[ui_->stkFrames->currentIndex()]->refresh();
    updateHeader();
}

void StackSetupPage::undo()
{
    step(&RecipeEditing::undo);
}

void StackSetupPage::redo()
{
    step(&RecipeEditing::redo);
}

void StackSetupPage::step(bool (RecipeEditing::*wind)())
{
    finishField(wgt_);
    if (!(editing_.*wind)())
        return;
    showNotice(QString());
    afterStep();
}

void StackSetupPage::updateHeader()
{
    ui_->btnUndo->setEnabled(editing_.canUndo());
    ui_->btnRedo->setEnabled(editing_.canRedo());
    ui_->btnWizard->setEnabled(stack() != nullptr);
}

bool StackSetupPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == wgt_ && event->type() == QEvent::LanguageChange)
        retranslate();
    if (watched == wgt_ && event->type() == QEvent::Hide && !event->spontaneous())
        editing_.leave();
    return BModule::eventFilter(watched, event);
}

void StackSetupPage::retranslate()
{
    ui_->retranslateUi(wgt_);
    const QString names[] = {tr("Product and pallet"), tr("Patterns"), tr("Feeding directions"), tr("Layers"),
                             tr("Waypoints")};
    for (int i = 0; i < wizards_.size(); ++i)
        wizards_[i]->setText(names[i]);
}

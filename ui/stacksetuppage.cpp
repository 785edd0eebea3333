#include "ui/stacksetuppage.h"

#include "ix/xtheme.h"
#include "orba/managers.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_fields.h"
#include "stack/stack_check.h"
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
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QEvent>
#include <QKeySequence>
#include <QScrollArea>
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

void raise(const char *trigger)
{
    palx::triggerNode()->c(trigger)->trigger();
}

bool differs(const orba::Node &a, const orba::Node &b, std::initializer_list<const char *> paths)
{
    for (const char *path : paths) {
        const orba::Path key(path);
        const orba::Node *x = a.find(key);
        const orba::Node *y = b.find(key);
        if ((x && y) ? *x != *y : x != y)
            return true;
    }
    return false;
}

/// A frame scrolls on a small panel or when a language needs more room; on the panel it is made for it fits.
QScrollArea *scrolling(RecipeFrame *frame)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(frame);
    setTouchScrolling(area);
    return area;
}

} // namespace

StackSetupPage::StackSetupPage(QWidget *parent, bwaf::BModule *module)
    : BModule(module), module_(module), wgt_(new QWidget(parent)), ui_(std::make_unique<Ui::StackSetupPage>())
{
    ui_->setupUi(wgt_);
    wgt_->installEventFilter(this);
    makeFrames();
    connectHeader();
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
    frames_ = {new ProductFrame(wgt_), new PalletFrame(wgt_),    new PatternsFrame(wgt_),
               new LayersFrame(wgt_),  new WaypointsFrame(wgt_), new PointsFrame(wgt_)};
    buttons_ = {ui_->btnProduct, ui_->btnPallet,    ui_->btnPatterns,
                ui_->btnLayers,  ui_->btnWaypoints, ui_->btnPoints};
    for (int i = 0; i < frames_.size(); ++i) {
        ui_->stkFrames->addWidget(scrolling(frames_[i]));
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

void StackSetupPage::showFrame(int index)
{
    if (index != ui_->stkFrames->currentIndex())
        saveEdits();
    buttons_.value(index)->setChecked(true);
    ui_->stkFrames->setCurrentIndex(index);
}

void StackSetupPage::pageDateRefresh()
{
    ModuleObject *stack = palx::getStack(currentRecipe(module_)->value());
    fillRecipes();
    if (stack->isEmptyMobj())
        setStack(nullptr);
    else if (stack != stack_)
        setStack(stack);
    else {
        history_.commit(); // what was changed elsewhere is a step of its own
        afterStep();
    }
}

void StackSetupPage::setStack(ModuleObject *stack)
{
    leaveRecipe();
    if (stack_)
        stack_->disconnect(wgt_);
    stack_ = stack;
    if (stack_) {
        palx::checkProductPallet(stack_);
        palx::ensureRecipeKeys(stack_, palx::pluginNode()->r("default")->node());
        connect(stack_, &QObject::destroyed, wgt_, [this] { setStack(nullptr); });
    }
    history_.start(stack_);
    for (RecipeFrame *frame : frames_)
        frame->setStack(stack_);
    ui_->stkPage->setCurrentWidget(stack_ ? ui_->pagRecipe : ui_->pagNone);
    ui_->message->clearMessage();
    fillRecipes();
    updateHeader();
}

void StackSetupPage::fillRecipes()
{
    const orba::Node &stacks = palx::stacksNode()->node();
    ui_->cmbRecipe->clear();
    for (int i = 0; i < stacks.size(); ++i)
        ui_->cmbRecipe->addItem(stacks.getString(QStringLiteral("#%1.name").arg(i)));
    ui_->cmbRecipe->setCurrentIndex(stack_ ? stacks.indexOf(&stack_->node()) : -1);
}

/// A frame that is left is saved: its recipe's points are made anew and the controller gets them.
void StackSetupPage::saveEdits()
{
    if (!stack_ || !isEdited_)
        return;
    isEdited_ = false;
    palx::genPointsAndSaveToRC(stack_, false);
    history_.absorb();
}

/// The list of recipes shows figures and pictures of what was edited here.
void StackSetupPage::leaveRecipe()
{
    saveEdits();
    if (stack_)
        raise("refresh_table");
    isEdited_ = false;
}

void StackSetupPage::onEdited()
{
    if (stack_ && palx::marginsTooWide(stack_->node())) {
        raise("reset_margin_data");
        ui_->message->showMessage(tr("The margins left no room for a product and were set to 0."),
                                  State::Attention);
    } else {
        ui_->message->clearMessage();
    }
    if (history_.commit()) {
        isEdited_ = true;
        announce();
    }
    afterStep();
}

/// Fields follow their nodes; what is computed is shown again.
void StackSetupPage::afterStep()
{
    frames_[ui_->stkFrames->currentIndex()]->refresh();
    updateHeader();
}

/// Tells other editors and pages what has changed between the last two steps.
void StackSetupPage::announce() const
{
    const orba::Node &was = history_.before();
    const orba::Node &is = history_.present();
    if (differs(was, is,
                {"put", "get", "product_cfg.product", "pallet_position", "use_global_tool", "use_global_wobj",
                 "calibrate", "tool", "toolset"}))
        raise("refresh_data");
    if (differs(was, is, {"product_cfg.pallet", "product_cfg.clapboard"}))
        raise("refresh_pallet_data");
    if (differs(was, is, {"wobj_margin"}))
        raise("refresh_margin_data");
}

/// A field that is being typed in counts as edited before its recipe is wound back.
void StackSetupPage::finishField()
{
    QWidget *focus = wgt_->focusWidget();
    if (focus && focus->hasFocus())
        focus->clearFocus();
}

void StackSetupPage::undo()
{
    finishField();
    if (!history_.undo())
        return;
    isEdited_ = true;
    announce();
    ui_->message->clearMessage();
    afterStep();
}

void StackSetupPage::redo()
{
    finishField();
    if (!history_.redo())
        return;
    isEdited_ = true;
    announce();
    ui_->message->clearMessage();
    afterStep();
}

void StackSetupPage::updateHeader()
{
    ui_->btnUndo->setEnabled(history_.canUndo());
    ui_->btnRedo->setEnabled(history_.canRedo());
}

bool StackSetupPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == wgt_ && event->type() == QEvent::LanguageChange)
        retranslate();
    if (watched == wgt_ && event->type() == QEvent::Hide && !event->spontaneous())
        leaveRecipe();
    return BModule::eventFilter(watched, event);
}

void StackSetupPage::retranslate()
{
    ui_->retranslateUi(wgt_);
}

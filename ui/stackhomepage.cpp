#include "ui/stackhomepage.h"

#include "ix/clear_button.h"
#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "project/rules/recipe_places.h"
#include "stack/way_points.h"
#include "ui/controller_dialog.h"
#include "ui/current_recipe.h"
#include "ui/form_style.h"
#include "ui/home_parts.h"
#include "ui/imexportdialog.h"
#include "ui/name_dialog.h"
#include "ui/projectmanager.h"
#include "ui/recipe_frame.h"
#include "ui/recipe_list_model.h"
#include "ui/recipe_tables.h"
#include "ui/recipe_texts.h"
#include "ui/run_frame.h"
#include "ui_stackhomepage.h"
#include "workstation/controller_recipes.h"
#include "workstation/plugin_node.h"
#include "workstation/unique_widget.h"

#include <QEvent>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using orba::ModuleObject;

namespace {

const QString kProjectManager = QStringLiteral("project_manager");

QString pageKey(const char *page)
{
    return mName(palx::getPluginName(), QLatin1String(page));
}

void raise(const char *trigger)
{
    palx::triggerNode()->c(trigger)->trigger();
}

} // namespace

StackHomePage::StackHomePage(QWidget *parent, bwaf::BModule *module)
    : BModule(module), module_(module), wgt_(new SubPageStack(parent)),
      ui_(std::make_unique<Ui::StackHomePage>()), recipes_(new RecipeListModel(wgt_)),
      found_(new QSortFilterProxyModel(wgt_)), layers_(new LayerTableModel(wgt_)),
      onController_(new palx::ControllerRecipes(wgt_))
{
    ui_->setupUi(setupParts());
    for (QPushButton *button : {ui_->btnProjects, ui_->btnController}) // of both parts
        parts_->addButton(button);
    subPages()->registSubPage(kProjectManager,
                              [](QWidget *page, QWidget *owner) { return new ProjectManager(page, owner); });
    wgt_->installEventFilter(this);
    setupList();
    connectActions();
    followTriggers();
    setFieldMargins(wgt_);
    reload();
    ui_->lstRecipes->setFocus();
}

StackHomePage::~StackHomePage()
{
    delete wgt_; // still there only when the page ends before its centre widget
}

QString StackHomePage::name() const
{
    return pageKey("home_page");
}

QWidget *StackHomePage::wgt()
{
    return wgt_;
}

SubPageStack *StackHomePage::subPages() const
{
    return static_cast<SubPageStack *>(wgt_.data());
}

void StackHomePage::openProjects()
{
    subPages()->openSubPage(kProjectManager);
}

/// Returns where the recipes go.
QWidget *StackHomePage::setupParts()
{
    auto *column = new QVBoxLayout(subPages()->content());
    column->setContentsMargins(0, 0, 0, 0);
    parts_ = new HomeParts;
    column->addWidget(parts_);
    run_ = new RunFrame(onController_);
    parts_->setRun(run_);
    connect(run_, &RunFrame::lineCame, parts_, &HomeParts::proposeRun);
    if (run_->hasLine())
        parts_->proposeRun();
    return parts_->recipes();
}

void StackHomePage::setupList()
{
    found_->setSourceModel(recipes_);
    found_->setFilterRole(RecipeListModel::SearchRole);
    found_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    ui_->lstRecipes->setModel(found_);
    ui_->lstRecipes->setItemDelegate(new RecipeDelegate(ui_->lstRecipes));
    ui_->lstRecipes->setUniformItemSizes(true);
    ui_->lstRecipes->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTouchScrolling(ui_->lstRecipes);
    ui_->tblLayers->setModel(layers_);
    setupTable(ui_->tblLayers, LayerTableModel::kPattern, true);
    ui_->tblLayers->hideColumn(LayerTableModel::kBottom);
    ui_->tblLayers->setSelectionMode(QAbstractItemView::NoSelection);
    connect(ui_->lstRecipes->selectionModel(), &QItemSelectionModel::currentChanged, wgt_,
            [this] { showChoice(); });
    connect(ui_->lstRecipes, &QAbstractItemView::doubleClicked, wgt_, [this] { openRecipe(); });
    new ix::ClearButton(ui_->edtSearch);
    connect(ui_->edtSearch, &QLineEdit::textChanged, wgt_, [this](const QString &text) {
        const QString name = chosenStack()->getString("name");
        found_->setFilterFixedString(text);
        chooseRecipe(name);
    });
}

void StackHomePage::connectActions()
{
    const struct
    {
        QPushButton *button;
        Glyph glyph;
        void (StackHomePage::*act)();
    } actions[] = {{ui_->btnNew, Glyph::Add, &StackHomePage::newRecipe},
                   {ui_->btnCopy, Glyph::Copy, &StackHomePage::copyRecipe},
                   {ui_->btnRename, Glyph::Settings, &StackHomePage::renameRecipe},
                   {ui_->btnDelete, Glyph::Delete, &StackHomePage::deleteRecipe},
                   {ui_->btnOpen, Glyph::Open, &StackHomePage::openRecipe},
                   {ui_->btnImport, Glyph::Down, &StackHomePage::openImport},
                   {ui_->btnExport, Glyph::Up, &StackHomePage::openExport},
                   {ui_->btnProjects, Glyph::Log, &StackHomePage::openProjects}};
    for (const auto &action : actions) {
        const bool primary = action.button == ui_->btnOpen;
        action.button->setIcon(ix::xtheme::icon(action.glyph, primary ? QColor(Qt::white) : QColor()));
        action.button->setIconSize(QSize(28, 28));
        connect(action.button, &QPushButton::clicked, wgt_, [this, act = action.act] { (this->*act)(); });
    }
    connect(ui_->message, &MessageBar::undoWanted, wgt_, [this] {
        if (undo_)
            undo_();
    });
    ui_->btnController->setIconSize(QSize(28, 28));
    connect(ui_->btnController, &QPushButton::clicked, wgt_, [this] { openController(); });
    connect(onController_, &palx::ControllerRecipes::changed, wgt_, [this] { showController(); });
    showController();
}

void StackHomePage::showController()
{
    const State state = controllerRecipesLook(*onController_);
    ui_->btnController->setIcon(ix::xtheme::icon(Glyph::Robot, ix::xtheme::textColor(state)));
    ui_->btnController->setText(controllerRecipesSign(*onController_));
    ui_->btnController->setAccessibleDescription(controllerRecipesText(*onController_));
    ix::xtheme::setState(ui_->btnController, state);
}

void StackHomePage::openController()
{
    auto *dialog = new ControllerDialog(onController_, wgt_->window());
    palx::makeUniqueDialog(dialog);
    dialog->open();
}

void StackHomePage::followTriggers()
{
    ModuleObject *trigger = palx::triggerNode();
    connect(trigger->c("refresh_table"), &ModuleObject::changed, wgt_, [this] { reload(); });
    connect(trigger->c("refresh_cmb"), &ModuleObject::changed, wgt_, [this] { showChoice(); });
    connect(palx::stacksNode(), &ModuleObject::structureChanged, wgt_, [this] { reload(); });
}

/// Keeps the choice by name, or by place when its recipe is gone.
void StackHomePage::reload()
{
    const QModelIndex chosen = ui_->lstRecipes->currentIndex();
    const QString name = chosen.data().toString();
    const int row = chosen.row();
    recipes_->reload();
    chooseRecipe(name);
    if (!ui_->lstRecipes->currentIndex().isValid())
        ui_->lstRecipes->setCurrentIndex(
            found_->index(std::min(std::max(row, 0), found_->rowCount() - 1), 0));
    showChoice();
    if (recipes_->names() == names_)
        return;
    names_ = recipes_->names();
    raise("refresh_cmb");
}

ModuleObject *StackHomePage::chosenStack() const
{
    const QModelIndex row = found_->mapToSource(ui_->lstRecipes->currentIndex());
    return row.isValid() ? palx::stacksNode()->cmobj(row.row()) : emptyMobj();
}

void StackHomePage::chooseRecipe(const QString &name)
{
    for (int row = 0; row < found_->rowCount(); ++row) {
        if (found_->index(row, 0).data().toString() == name) {
            ui_->lstRecipes->setCurrentIndex(found_->index(row, 0));
            return;
        }
    }
}

void StackHomePage::showChoice()
{
    ModuleObject *stack = chosenStack();
    const bool chosen = !stack->isEmptyMobj();
    for (QPushButton *button : {ui_->btnCopy, ui_->btnRename, ui_->btnDelete, ui_->btnOpen})
        button->setEnabled(chosen);
    showDetails(chosen ? stack : nullptr);
}

void StackHomePage::showDetails(ModuleObject *stack)
{
    QString hint = tr("There are no recipes yet. Touch \"New\" to make one.");
    if (recipes_->rowCount() > 0)
        hint = tr("No recipe is called or described so.");
    ui_->lblName->setText(stack ? stack->getString("name") : hint);
    ui_->lblDesc->setText(stack ? stack->getString("desc") : QString());
    ui_->lblDesc->setVisible(!ui_->lblDesc->text().isEmpty());
    ui_->lblSummary->setText(stack ? recipeTotalsText(stack->node()) : QString());
    const bool isOutdated = stack && palx::pointsState(stack->node()) == palx::PointsState::Outdated;
    showWarning(ui_->lblOutdated,
                isOutdated ? tr("The recipe or the shared settings were changed: generate the points again.")
                           : QString());
    ui_->picture->showRecipe(stack);
    ui_->tblLayers->setVisible(stack != nullptr);
    layers_->setStack(stack);
}

namespace {

QString whyNotDelete(const QString &name)
{
    return palx::whyNotMove(palx::currentRunRecovery(), palx::stacksNode()->node(), name);
}

/// A dialog for a recipe's name; `self` is the recipe that may keep its own.
NameDialog *nameDialog(const QString &title, QPointer<ModuleObject> self, QWidget *parent)
{
    const auto check = [self](const QString &name) {
        const QString problem =
            palx::recipeNameProblem(palx::stacksNode()->node(), name, self ? &self->node() : nullptr);
        const QString before = self ? self->getString("name") : name;
        return problem.isEmpty() && name != before ? palx::whyNotRename(palx::currentRunRecovery(), before)
                                                   : problem;
    };
    auto *dialog = new NameDialog(title, check, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

} // namespace

void StackHomePage::newRecipe()
{
    NameDialog *dialog = nameDialog(tr("New recipe"), nullptr, wgt_->window());
    dialog->setName(palx::proposeRecipeName(palx::stacksNode()->node(), tr("Recipe %1").arg(1)));
    dialog->setDescription(QString());
    connect(dialog, &QDialog::accepted, wgt_, [=] {
        const ModuleObject *made = palx::addStack(dialog->name(), dialog->description());
        listChanged(dialog->name());
        if (made->isEmptyMobj())
            ui_->message->showMessage(tr("The recipe cannot be made: the list of recipes is missing."),
                                      State::Fault);
    });
    dialog->open();
}

void StackHomePage::copyRecipe()
{
    const QPointer<ModuleObject> stack = chosenStack();
    if (stack->isEmptyMobj())
        return;
    const QString name = stack->getString("name");
    NameDialog *dialog = nameDialog(tr("Copy of %1").arg(name), nullptr, wgt_->window());
    dialog->setName(palx::proposeRecipeName(palx::stacksNode()->node(), name));
    connect(dialog, &QDialog::accepted, wgt_, [=] {
        if (stack)
            palx::copyStack(stack, dialog->name());
        listChanged(dialog->name());
    });
    dialog->open();
}

/// Says why something cannot be done; false for no reason.
bool StackHomePage::refused(const QString &why)
{
    if (!why.isEmpty())
        ui_->message->showMessage(why, State::Fault);
    return !why.isEmpty();
}

void StackHomePage::renameRecipe()
{
    const QPointer<ModuleObject> stack = chosenStack();
    if (stack->isEmptyMobj())
        return;
    const QString name = stack->getString("name");
    NameDialog *dialog = nameDialog(tr("New name for %1").arg(name), stack, wgt_->window());
    dialog->setName(name);
    dialog->setDescription(stack->getString("desc"));
    connect(dialog, &QDialog::accepted, wgt_, [=] {
        if (!stack)
            return;
        palx::renameStack(stack, dialog->name(), dialog->description());
        onController_->tellName(name, dialog->name(), dialog->description());
        const bool wasOpen = currentRecipe(module_)->value() == name;
        if (wasOpen)
            currentRecipe(module_)->setValue(dialog->name());
        listChanged(dialog->name());
        if (wasOpen)
            Q_EMIT reFreshPageDate();
    });
    dialog->open();
}

void StackHomePage::deleteRecipe()
{
    const QPointer<ModuleObject> stack = chosenStack();
    const QString name = stack->getString("name");
    if (stack->isEmptyMobj() || refused(whyNotDelete(name)) ||
        !nexo::ManagerHelper::instance()->execMsgOk(tr("Delete recipe"),
                                                    tr("Delete the recipe \"%1\"?").arg(name)) ||
        !stack || refused(whyNotDelete(name)))
        return;
    const palx::KeptRecipes kept;
    removed_ = palx::removeStack(stack);
    kept.follow();
    if (currentRecipe(module_)->value() == name) {
        currentRecipe(module_)->setValue(QString());
        Q_EMIT reFreshPageDate();
    }
    reload();
    undo_ = [this] { undoDelete(); };
    ui_->message->showUndo(tr("The recipe \"%1\" was deleted.").arg(name), State::Stopped);
}

void StackHomePage::undoDelete()
{
    if (refused(palx::whyNotInsert(palx::currentRunRecovery(), palx::stacksNode()->node(), removed_.index)))
        return;
    const palx::KeptRecipes kept;
    ModuleObject *stack = palx::restoreStack(palx::stacksNode(), removed_);
    const QString was = removed_.node.getString(u"name");
    const QString name = stack->getString("name");
    removed_ = palx::RemovedStack();
    kept.follow();
    listChanged(name);
    if (name != was)
        ui_->message->showMessage(tr("The recipe is back as \"%1\"; its name was taken.").arg(name),
                                  State::Attention);
}

void StackHomePage::openImport()
{
    auto *dialog = new ImExportDialog(true, palx::stacksNode(), wgt_->window());
    connect(dialog, &ImExportDialog::worked, wgt_, [this](const QString &text, bool isUndoable) {
        importChanged();
        undo_ = [this] { undoImport(); };
        isUndoable ? ui_->message->showUndo(text, State::Stopped)
                   : ui_->message->showMessage(text, State::Stopped);
    });
    connect(dialog, &ImExportDialog::takenBack, wgt_, [this] { importChanged(); });
    dialog->open();
}

void StackHomePage::openExport()
{
    auto *dialog = new ImExportDialog(false, palx::stacksNode(), wgt_->window());
    connect(dialog, &ImExportDialog::worked, wgt_,
            [this](const QString &text) { ui_->message->showMessage(text, State::Running); });
    dialog->open();
}

void StackHomePage::undoImport()
{
    if (!refused(ImExportDialog::takeBackProblem(palx::stacksNode())) &&
        ImExportDialog::takeBackLastImport(palx::stacksNode()))
        importChanged();
}

/// The recipe that was open may be another node of the same name now, or gone.
void StackHomePage::importChanged()
{
    ui_->message->clearMessage();
    if (!palx::hasStack(currentRecipe(module_)->value()))
        currentRecipe(module_)->setValue(QString());
    Q_EMIT reFreshPageDate();
}

void StackHomePage::openRecipe()
{
    ModuleObject *stack = chosenStack();
    if (stack->isEmptyMobj())
        return;
    currentRecipe(module_)->setValue(stack->getString("name"));
    Q_EMIT reFreshPageDate();
    bwaf::instantiatedCenterWidget(module_)->setCurrentPage(pageKey("setup_page"));
}

/// Whoever shows the table learns of it, this page included.
void StackHomePage::listChanged(const QString &choose)
{
    if (!ui_->edtSearch->text().isEmpty())
        ui_->edtSearch->clear(); // the recipe that was just made must be seen
    raise("refresh_table");
    chooseRecipe(choose);
}

bool StackHomePage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == wgt_ && event->type() == QEvent::LanguageChange)
        retranslate();
    return BModule::eventFilter(watched, event);
}

void StackHomePage::retranslate()
{
    ui_->retranslateUi(parts_->recipes());
    reload();
    showController();
}

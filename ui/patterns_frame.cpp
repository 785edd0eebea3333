#include "ui/patterns_frame.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "pattern/patternscene.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_patterns.h"
#include "ui/automatic_stacker_dialog.h"
#include "ui/edit_icons.h"
#include "ui/form_style.h"
#include "ui/name_dialog.h"
#include "ui/page_scroll.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"
#include "ui/plan_status.h"
#include "ui_patterns_frame.h"

#include <QHeaderView>
#include <QScopedValueRollback>

using palx::PatternEditing;

namespace {

constexpr int kProductsPage = 1;

} // namespace

PatternsFrame::PatternsFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::PatternsFrame>()), scene_(new PatternScene(this)),
      items_(new ItemTableModel(this)), plans_(new PatternListModel(this)), itemBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    ui_->view->showPlan(scene_);
    ui_->pagEdit->attach(ui_->view);
    ui_->pagOrder->attach(ui_->view);
    ui_->pagCheck->attach(ui_->view);
    ui_->tblItems->setModel(items_);
    setupTable(ui_->tblItems, ItemTableModel::kDirection, false);
    fillDirections(ui_->cmbDirection);
    bindItemFields();
    connect(ui_->cmbPattern, QOverload<int>::of(&QComboBox::activated), this, &PatternsFrame::showPattern);
    setupPlans();
    connectEditing();
    connectPages();
    connectButtons();
    setStack(nullptr);
}

PatternsFrame::~PatternsFrame()
{
    delete ui_->view; // before the scene that it shows
}

void PatternsFrame::setupPlans()
{
    constexpr int kTextRow = 28;
    ui_->lstPatterns->setModel(plans_);
    ui_->lstPatterns->setIconSize(QSize(PatternListModel::kPixels, PatternListModel::kPixels));
    ui_->lstPatterns->setGridSize(QSize(PatternListModel::kPixels + 2 * ix::xtheme::kGap,
                                        PatternListModel::kPixels + kTextRow + ix::xtheme::kGap));
    setTouchScrolling(ui_->lstPatterns);
    connect(ui_->lstPatterns, &QListView::clicked, this,
            [this](const QModelIndex &row) { choosePattern(plans_->name(row.row())); });
}

void PatternsFrame::bindItemFields()
{
    const auto bindItem = [this](auto *field, const char *key) {
        setupNumberField(field, QLatin1String(key));
        itemBinder_->bind(field, QLatin1String(key));
    };
    bindItem(ui_->spnX, "x");
    bindItem(ui_->spnY, "y");
    bindItem(ui_->spnR, "r");
    bindItem(ui_->spnDx, "dx");
    bindItem(ui_->spnDy, "dy");
    bindItem(ui_->spnDz, "dz");
    itemBinder_->bind(ui_->cmbDirection, QStringLiteral("direction"));
    itemBinder_->setCheck([this](const QString &path, const QVariant &value) {
        return stack() && path != QLatin1String("direction")
                   ? palx::fieldProblem(stack()->node(), path, value.toDouble())
                   : QString();
    });
    connect(itemBinder_, &NodeBinder::edited, this, &RecipeFrame::edited);
    connect(itemBinder_, &NodeBinder::refused, this,
            [this](QWidget *, const QString &reason) { Q_EMIT refused(reason); });
}

void PatternsFrame::connectEditing()
{
    PatternEditing *editing = ui_->view->editing();
    connect(editing, &PatternEditing::edited, this, [this] {
        showPattern();
        Q_EMIT edited();
    });
    connect(editing, &PatternEditing::refused, this, &RecipeFrame::refused);
    connect(editing, &PatternEditing::selectionChanged, this, &PatternsFrame::followSelection);
    connect(scene_, &PatternScene::planChanged, this, &PatternsFrame::showStatus);
    connect(ui_->pagEdit, &EditTools::addWanted, this, &PatternsFrame::addItem);
    connect(ui_->tblItems->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &row) {
                if (!following_)
                    ui_->view->editing()->select({row.row()});
            });
    connect(ui_->btnZoomFit, &QPushButton::clicked, ui_->view, &PatternView::fitPlan);
    ui_->btnZoomFit->setIcon(editIcon(EditIcon::ZoomFit));
    setupTool(ui_->btnZoomFit);
}

void PatternsFrame::connectPages()
{
    for (int i = 0; i < ui_->stkPages->count(); ++i) { // a small panel scrolls the page and not the plan
        QWidget *page = ui_->stkPages->widget(i);
        ui_->stkPages->removeWidget(page);
        ui_->stkPages->insertWidget(i, new PageScroll(page));
        page->show();
    }
    ui_->stkPages->setCurrentIndex(kProductsPage);
    const QList<QAbstractButton *> tabs{ui_->tabPattern, ui_->tabProducts, ui_->tabEdit, ui_->tabOrder,
                                        ui_->tabCheck}; // in the order of the pages
    for (int i = 0; i < tabs.size(); ++i)
        connect(tabs[i], &QAbstractButton::clicked, this, [this, i] { ui_->stkPages->setCurrentIndex(i); });
}

void PatternsFrame::connectButtons()
{
    connect(ui_->btnAdd, &QPushButton::clicked, this, [this] { nameNewPattern<NewPatternDialog>(); });
    connect(ui_->btnTemplate, &QPushButton::clicked, this, [this] { openProducer<PatternTemplateDialog>(); });
    connect(ui_->btnAutomatic, &QPushButton::clicked, this,
            [this] { openProducer<AutomaticStackerDialog>(); });
    connect(ui_->btnCopy, &QPushButton::clicked, this, [this] {
        askName(tr("Copy of pattern %1").arg(pattern()), palx::proposePatternName(stack()->node()),
                &PatternsFrame::copyPattern);
    });
    connect(ui_->btnRename, &QPushButton::clicked, this, [this] {
        askName(tr("New name for pattern %1").arg(pattern()), pattern(), &PatternsFrame::renamePattern);
    });
    connect(ui_->btnDelete, &QPushButton::clicked, this, &PatternsFrame::deletePattern);
    connect(ui_->btnResize, &QPushButton::clicked, this, [this] {
        palx::applyProductSize(stack(), pattern());
        showPattern();
        Q_EMIT edited();
    });
}

QString PatternsFrame::pattern() const
{
    return ui_->cmbPattern->currentData().toString();
}

void PatternsFrame::choosePattern(const QString &name)
{
    ui_->cmbPattern->setCurrentIndex(ui_->cmbPattern->findData(name));
    showPattern();
}

void PatternsFrame::stackChanged()
{
    scene_->setStack(stack());
    items_->setStack(stack());
    plans_->setStack(stack());
    ui_->cmbPattern->clear(); // the choice belongs to the recipe
    shownPattern_.clear();
}

void PatternsFrame::refresh()
{
    fillPatterns();
    showPattern();
}

/// Keeps the choice while the pattern is there.
void PatternsFrame::fillPatterns()
{
    const QString chosen = pattern();
    ui_->cmbPattern->clear();
    for (const QString &name : stack() ? palx::patternNames(stack()->node()) : QStringList()) {
        const int layers = palx::patternUse(stack()->node(), name);
        ui_->cmbPattern->addItem(tr("%1 (in %2 layers)").arg(name).arg(layers), name);
    }
    ui_->cmbPattern->setCurrentIndex(
        ui_->cmbPattern->count() == 0 ? -1 : std::max(0, ui_->cmbPattern->findData(chosen)));
}

void PatternsFrame::showPattern()
{
    plans_->refresh();
    ui_->lstPatterns->setCurrentIndex(plans_->index(plans_->rowOf(pattern())));
    const bool another = pattern() != shownPattern_;
    shownPattern_ = pattern();
    scene_->setPattern(stack() ? stack()->r("patterns")->c(pattern()) : nullptr);
    {
        const QScopedValueRollback<bool> following(following_, true);
        items_->setPattern(pattern());
    }
    if (another)
        ui_->view->editing()->select({0});
    const QString facts =
        items_->rowCount() == 1 ? tr("1 product") : tr("%1 products").arg(items_->rowCount());
    ui_->lblFacts->setText(pattern().isEmpty() ? tr("This recipe has no pattern yet.") : facts);
    countProblems_ =
        stack() ? palx::countProblems(stack()->node(), pattern()) : QVector<palx::PatternProblem>();
    followSelection();
}

/// The one product that is chosen, or -1.
int PatternsFrame::item() const
{
    const palx::Selection &chosen = ui_->view->editing()->selection();
    return chosen.size() == 1 ? chosen.first() : -1;
}

void PatternsFrame::followSelection()
{
    const QScopedValueRollback<bool> following(following_, true);
    ui_->tblItems->setCurrentIndex(items_->index(item(), 0));
    orba::ModuleObject *node =
        stack() && item() >= 0 ? stack()->r("patterns")->c(pattern())->c(item()) : nullptr;
    itemBinder_->setRoot(node);
    const int chosen = ui_->view->editing()->selection().size();
    ui_->lblItem->setText(item() >= 0  ? tr("Product %1").arg(item() + 1)
                          : chosen > 1 ? tr("%1 products chosen").arg(chosen)
                                       : tr("No product chosen"));
    updateButtons();
    showStatus();
}

void PatternsFrame::showStatus()
{
    const QVector<palx::PatternProblem> problems =
        palx::problemsOf(scene_->shownItems(), scene_->checks(), scene_->rules()) + countProblems_;
    ui_->pagCheck->showProblems(problems);
    ui_->tabCheck->setText(problems.isEmpty() ? tr("Check") : tr("Check %1").arg(problems.size()));
    showPlanStatus(ui_->lblProblems, *ui_->view, problems);
}

void PatternsFrame::updateButtons()
{
    const bool hasPattern = stack() && ui_->cmbPattern->currentIndex() >= 0;
    ui_->cmbPattern->setEnabled(hasPattern);
    for (QWidget *button : {ui_->btnAdd, ui_->btnTemplate, ui_->btnAutomatic})
        button->setEnabled(stack() != nullptr);
    for (QWidget *button : {ui_->btnCopy, ui_->btnRename, ui_->btnDelete})
        button->setEnabled(hasPattern);
    ui_->btnResize->setVisible(hasPattern && palx::otherSizedItems(stack()->node(), pattern()) > 0);
}

void PatternsFrame::askName(const QString &title, const QString &proposal,
                            void (PatternsFrame::*act)(const QString &))
{
    const auto check = [this](const QString &name) {
        return stack() ? palx::patternNameProblem(stack()->node(), name) : tr("The recipe was closed.");
    };
    auto *dialog = new NameDialog(title, check, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setName(proposal);
    connect(dialog, &QDialog::accepted, this, [=] {
        if (stack())
            (this->*act)(dialog->name());
    });
    dialog->open();
}

/// `then` goes on once the pattern is there and chosen.
template <typename Dialog> void PatternsFrame::nameNewPattern(const std::function<void()> &then)
{
    auto *dialog = new Dialog(stack()->ensure("patterns"), pattern(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &PatternNameDialog::patternAdded, this, [this](const QString &name) {
        fillPatterns();
        choosePattern(name);
        Q_EMIT edited();
    });
    if (then)
        connect(dialog, &QDialog::accepted, this, then);
    dialog->open();
}

/// A dialog that puts products into the chosen pattern; a recipe without one gets its first one before.
template <typename Dialog> void PatternsFrame::openProducer()
{
    if (pattern().isEmpty()) {
        nameNewPattern<AddPatternDialog>([this] { openProducer<Dialog>(); });
        return;
    }
    auto *dialog = new Dialog(stack(), scene_, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this] {
        showPattern();
        Q_EMIT edited();
    });
    dialog->open();
}

void PatternsFrame::copyPattern(const QString &name)
{
    palx::addPattern(stack(), name, pattern());
    fillPatterns();
    choosePattern(name);
    Q_EMIT edited();
}

void PatternsFrame::renamePattern(const QString &name)
{
    palx::renamePattern(stack(), pattern(), name);
    fillPatterns();
    choosePattern(name);
    Q_EMIT edited();
}

void PatternsFrame::deletePattern()
{
    const QString name = pattern();
    const QString problem = palx::patternRemovalProblem(stack()->node(), name);
    if (!problem.isEmpty()) {
        Q_EMIT refused(problem);
        return;
    }
    const QString question = tr("Delete the pattern %1?").arg(name);
    if (!nexo::ManagerHelper::instance()->execMsgOk(tr("Delete pattern"), question) || !stack())
        return;
    palx::removePattern(stack(), name);
    refresh();
    Q_EMIT edited();
}

void PatternsFrame::addItem()
{
    const int index = palx::addItem(stack(), pattern());
    if (index < 0) {
        Q_EMIT refused(tr("A pattern holds at most %1 products.").arg(palx::kMaxItems));
        return;
    }
    showPattern();
    ui_->view->editing()->select({index});
    Q_EMIT edited();
}

void PatternsFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillDirections(ui_->cmbDirection);
    itemBinder_->reload();
    showStatus();
}

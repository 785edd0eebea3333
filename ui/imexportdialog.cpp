#include "ui/imexportdialog.h"

#include "nexo/manager_helper.h"
#include "project/rules/recipe_places.h"
#include "ui/exchange_table_model.h"
#include "ui/form_style.h"
#include "ui/long_work.h"
#include "ui/recipe_fates.h"
#include "ui/xfile_dialog.h"
#include "ui_imexportdialog.h"
#include "workstation/config_log.h"
#include "workstation/medium_choice.h"
#include "workstation/plugin_node.h"
#include "workstation/point_editor.h"
#include "workstation/recipe_transfer.h"
#include "workstation/unique_widget.h"

#include <QDir>
#include <QEvent>
#include <QHeaderView>
#include <QShortcut>

#include <algorithm>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using orba::ModuleObject;
using orba::Node;

namespace {

Node templateStack(const ModuleObject *list)
{
    const Node *found = palx::templateStackOf(list->node(), palx::pluginNode()->node());
    return found ? *found : Node();
}

} // namespace

ImExportDialog::ImExportDialog(bool import, ModuleObject *list, QWidget *parent)
    : QDialog(parent), import_(import), list_(list), ui_(std::make_unique<Ui::ImExportDialog>()),
      model_(new ExchangeTableModel(this)), read_(std::make_shared<ModuleObject>(QStringLiteral("import")))
{
    palx::makeUniqueDialog(this);
    palx::bindDialogToNode(this, list);
    setUp();
    connectControls();
    loadList(list);
}

ImExportDialog::~ImExportDialog() = default;

void ImExportDialog::setUp()
{
    constexpr int kTwoLines = 52;
    ui_->setupUi(this);
    ui_->tblRecipes->setModel(model_);
    setupTable(ui_->tblRecipes, -1, false);
    setFieldMargins(this);
    ui_->tblRecipes->verticalHeader()->setDefaultSectionSize(kTwoLines);
    ui_->tblRecipes->verticalHeader()->setSectionsClickable(false);
    ui_->tblRecipes->verticalHeader()->show(); // rows speak of each other by their numbers
    ui_->tblRecipes->setWordWrap(true);
    ui_->tblRecipes->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui_->tblRecipes->viewport()->installEventFilter(this);
    for (QPushButton *button : {ui_->btnBrowse, ui_->btnUndo, ui_->btnOk})
        button->setIconSize(QSize(28, 28));
    ui_->btnOk->setIcon(ix::xtheme::icon(import_ ? Glyph::Down : Glyph::Up, Qt::white));
    ui_->btnBrowse->setIcon(ix::xtheme::icon(import_ ? Glyph::Open : Glyph::Save));
    ui_->btnUndo->setIcon(ix::xtheme::icon(Glyph::Back));
    for (QWidget *part : {static_cast<QWidget *>(ui_->boxClash), static_cast<QWidget *>(ui_->btnUndo)})
        part->setVisible(import_);
    showDirection();
}

void ImExportDialog::showDirection()
{
    const QString title = import_ ? tr("Import recipes") : tr("Export recipes");
    setWindowTitle(title);
    ui_->lblTitle->setText(title);
    model_->setTitles({QString(), tr("Recipe"), tr("Description"), tr("What happens")});
    ui_->tblRecipes->setColumnHidden(model_->fateColumn(), !import_);
    ui_->edtPath->setPlaceholderText(import_ ? tr("No file chosen") : tr("No place chosen"));
    ui_->btnOk->setText(import_ ? tr("Import") : tr("Export"));
    ui_->btnOk->setAccessibleName(ui_->btnOk->text());
}

void ImExportDialog::connectControls()
{
    connect(ui_->btnBrowse, &QPushButton::clicked, this, &ImExportDialog::openFile);
    connect(ui_->btnOk, &QPushButton::clicked, this, &ImExportDialog::work);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->btnUndo, &QPushButton::clicked, this, &ImExportDialog::takeBack);
    connect(ui_->btnAll, &QPushButton::clicked, this, [this] { model_->tickAll(true); });
    connect(ui_->btnNone, &QPushButton::clicked, this, [this] { model_->tickAll(false); });
    connect(ui_->tblRecipes, &QTableView::clicked, this, &ImExportDialog::toggle);
    const auto *space = new QShortcut(Qt::Key_Space, ui_->tblRecipes, nullptr, nullptr, Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this, [this] { toggle(ui_->tblRecipes->currentIndex()); });
    for (QRadioButton *option : {ui_->optRename, ui_->optReplace, ui_->optDiscard})
        connect(option, &QRadioButton::toggled, this, &ImExportDialog::plan);
    connect(model_, &ExchangeTableModel::tickedChanged, this, &ImExportDialog::plan);
    connect(list_, &ModuleObject::structureChanged, this, [this] { hasFile_ ? plan() : loadList(list_); });
}

void ImExportDialog::loadList(ModuleObject *list)
{
    hasFile_ = list == read_.get() && !read_->isNull();
    model_->setRows(recipeRows(list->node()));
    if (import_ && !hasFile_)
        model_->tickAll(false);
    constexpr int kMorePartsThanFit = 2;
    constexpr int kThreeLines = 76;
    constexpr int kMostHighRows = 1000; // nobody looks at more, and each costs the table a layout
    for (int row = 0; hasFile_ && row < std::min(model_->rowCount(), kMostHighRows); ++row)
        if (added_[static_cast<std::size_t>(row)].size() > kMorePartsThanFit)
            ui_->tblRecipes->setRowHeight(row, kThreeLines);
}

/// What is here already is only looked at.
void ImExportDialog::toggle(const QModelIndex &index)
{
    if (hasFile_ || !import_)
        model_->toggle(index.row());
}

palx::RecipeClash ImExportDialog::onClash() const
{
    return ui_->optReplace->isChecked()   ? palx::RecipeClash::Replace
           : ui_->optDiscard->isChecked() ? palx::RecipeClash::Discard
                                          : palx::RecipeClash::Rename;
}

/// Says of every row what will happen.
void ImExportDialog::plan()
{
    if (hasFile_ && list_)
        model_->setFates(
            recipeFates(palx::planImport(list_->node(), read_->node(), model_->ticked(), onClash()), added_));
    showState();
}

void ImExportDialog::showState()
{
    const int ticked = model_->tickedCount();
    const bool hasHint = import_ && !hasFile_ && file_.isEmpty();
    ui_->lblCount->setText(hasHint ? tr("These recipes are here already. Choose a file.")
                                   : tr("%1 of %2 ticked").arg(ticked).arg(model_->rowCount()));
    ui_->btnOk->setEnabled(ticked > 0 && (hasFile_ || !import_));
    const bool canTick = model_->rowCount() > 0 && !hasHint;
    ui_->btnAll->setEnabled(canTick);
    ui_->btnNone->setEnabled(canTick);
    ui_->btnUndo->setEnabled(list_ && palx::LastImport::of(list_));
}

// ---------------------------------------------------------------- files

QString ImExportDialog::folderPath() const
{
    return mName(QStringLiteral("quill.help.file_path"),
                 import_ ? QStringLiteral("import") : QStringLiteral("export"));
}

void ImExportDialog::rememberFolder(const QString &file)
{
    m(folderPath())->set(nullptr, "", file.left(file.lastIndexOf(QLatin1Char('/'))));
}

void ImExportDialog::openFile()
{
    import_ ? chooseImport() : chooseExport();
}

void ImExportDialog::chooseImport()
{
    const QPointer<ImExportDialog> self(this);
    const QString file = xFileDialog::getOpenFileName(this, tr("Open XML file"), m(folderPath())->getString(),
                                                      tr("XML (*.xml)"));
    if (!self || file.isEmpty())
        return;
    rememberFolder(file);
    read(file);
}

void ImExportDialog::chooseExport()
{
    const QPointer<ImExportDialog> self(this);
    const QString folder = m(folderPath())->getString();
    const QString name = QStringLiteral("pallet.xml");
    const QString file = xFileDialog::getSaveFileName(
        this, tr("Save XML file"), folder.isEmpty() ? name : folder + QLatin1Char('/') + name,
        tr("XML (*.xml)"));
    if (!self || file.isEmpty())
        return;
    rememberFolder(file);
    file_ = palx::exchangeFileName(file);
    ui_->edtPath->setText(file_);
    ui_->message->clearMessage();
    showState();
}

void ImExportDialog::read(const QString &file)
{
    const QPointer<ImExportDialog> self(this);
    const Node prototype = list_ ? templateStack(list_) : Node();
    palx::ExchangeFile content;
    palx::runInThread(this, tr("Import recipes"), [&](palx::Progress &progress) {
        content = palx::readExchangeFile(file, prototype, progress);
    });
    if (!self || content.isCancelled)
        return;
    file_ = file;
    ui_->edtPath->setText(QDir::current().relativeFilePath(file));
    read_->node().take(content.content);
    added_ = std::move(content.added);
    ui_->message->clearMessage();
    loadList(read_.get());
    if (!content.error.isEmpty())
        tellFault(content.error);
}

// ---------------------------------------------------------------- work

void ImExportDialog::work()
{
    if (isWorking_ || !list_)
        return;
    isWorking_ = true;
    const QPointer<ImExportDialog> self(this);
    import_ ? importTicked() : exportTicked();
    if (self)
        isWorking_ = false;
}

void ImExportDialog::importTicked()
{
    if (!hasFile_)
        return tellFault(tr("Choose a file to import from."));
    const QPointer<ImExportDialog> self(this);
    const QPointer<ModuleObject> list = list_;
    const std::shared_ptr<ModuleObject> content = read_; // lives on when the dialog ends meanwhile
    const std::vector<bool> ticked = model_->ticked();
    const palx::RecipeClash clash = onClash();
    const std::vector<palx::ImportStep> steps =
        palx::planImport(list->node(), content->node(), ticked, clash);
    if (const QString problem = palx::whyNotImport(palx::currentRunRecovery(), list->node(), steps);
        !problem.isEmpty())
        return tellFault(problem);
    const palx::KeptRecipes kept;
    bool isDone = false;
    palx::runInSlices(this, tr("Import recipes"), [&](palx::Progress &progress) {
        isDone = list && palx::importRecipes(list, content->node(), ticked, clash, progress);
    });
    if (isDone) {
        palx::finishImport();
        kept.follow();
    }
    if (!self)
        return;
    if (!isDone)
        return ui_->message->showMessage(tr("Cancelled. Nothing was changed."), State::Stopped);
    const auto count = [&steps](auto isMeant) { return std::count_if(steps.begin(), steps.end(), isMeant); };
    const auto added = count([](const palx::ImportStep &step) { return step.arrives(); });
    const auto replacing = count([](const palx::ImportStep &step) { return step.replaced >= 0; });
    Q_EMIT worked(tr("Imported: %1 new recipes, %2 of them replace others.").arg(added).arg(replacing),
                  added > 0);
    accept();
}

void ImExportDialog::exportTicked()
{
    if (file_.isEmpty())
        return tellFault(tr("Export path can not be empty!"));
    if (const QString problem = palx::targetProblem(QFileInfo(file_).path(), QFileInfo(file_).fileName());
        !problem.isEmpty())
        return tellFault(problem);
    const QPointer<ImExportDialog> self(this);
    const Node prototype = templateStack(list_);
    const Node tempList = palx::makeTempList(list_->node(), &prototype, model_->ticked());
    const QString file = file_;
    palx::WrittenFile written;
    bool isSynced = false;
    palx::runInThread(this, tr("Export recipes"), [&](palx::Progress &progress) {
        written = palx::writeExchangeFile(tempList, file, progress);
        isSynced = written.isDone() && xFileDialog::SystemFileSync(file);
    });
    if (written.isDone())
        palx::finishExport(file, isSynced);
    if (!self)
        return;
    if (written.isCancelled)
        return ui_->message->showMessage(tr("Cancelled. No file was written."), State::Stopped);
    if (!written.isDone())
        return tellFault(written.error);
    const QString removal = xFileDialog::removalText(file, isSynced);
    if (!isSynced)
        return ui_->message->showMessage(removal, State::Fault);
    Q_EMIT worked(tr("%1 recipes were written to %2.").arg(model_->tickedCount()).arg(file) +
                      QLatin1Char(' ') + removal,
                  false);
    accept();
}

/// Shown here and kept in the operator's log.
void ImExportDialog::tellFault(const QString &text)
{
    palx::recordCfgLog(text, true);
    ui_->message->showMessage(text, State::Fault);
}

// ---------------------------------------------------------------- taking back

QString ImExportDialog::takeBackProblem(ModuleObject *list)
{
    const palx::LastImport *import = palx::LastImport::of(list);
    return import ? palx::whyNotTakeBack(palx::currentRunRecovery(), list->node(), *import) : QString();
}

bool ImExportDialog::takeBackLastImport(ModuleObject *list)
{
    const QPointer<palx::LastImport> import = palx::LastImport::of(list);
    if (!import ||
        !nexo::ManagerHelper::instance()->execMsgOk(
            tr("Undo the last import"), tr("%1 imported recipes are removed, with what was changed in them "
                                           "since, and %2 replaced ones come back.")
                                            .arg(import->addedCount())
                                            .arg(import->removedCount())) ||
        !import)
        return false;
    const palx::KeptRecipes kept;
    import->takeBack();
    palx::finishTakingBack();
    kept.follow();
    return true;
}

void ImExportDialog::takeBack()
{
    const QPointer<ImExportDialog> self(this);
    if (const QString problem = list_ ? takeBackProblem(list_) : QString(); !problem.isEmpty())
        return tellFault(problem);
    if (!list_ || !takeBackLastImport(list_) || !self)
        return;
    ui_->message->showMessage(tr("The last import was taken back."), State::Stopped);
    plan();
    Q_EMIT takenBack();
}

// ---------------------------------------------------------------- single recipes

bool ImExportDialog::hasNode(const QString &name) const
{
    return list_ && palx::recipeOfName(list_->node(), name) >= 0;
}

void ImExportDialog::removeNode(const QString &name)
{
    if (const int child = list_ ? palx::recipeOfName(list_->node(), name) : -1; child >= 0)
        list_->cmobj(child)->remove();
}

QString ImExportDialog::getNewName(QString name) const
{
    return palx::nextRecipeName(name);
}

void ImExportDialog::importNode(ModuleObject *stack)
{
    Node content;
    content.add(stack->node().name())->assign(stack->node());
    palx::NoProgress progress;
    if (list_)
        palx::importRecipes(list_, content, {true}, onClash(), progress);
}

// ---------------------------------------------------------------- looks

/// Names and descriptions share half of the width, what happens gets the rest.
void ImExportDialog::fitColumns()
{
    constexpr int kTickWidth = 56;
    QTableView *table = ui_->tblRecipes;
    const int width = table->viewport()->width() - kTickWidth;
    const int name = width * (import_ ? 28 : 45) / 100;
    const int description = import_ ? width * 24 / 100 : width - name;
    int column = ExchangeTableModel::kTick;
    for (const int each : {kTickWidth, name, description, width - name - description})
        table->setColumnWidth(column++, each);
}

bool ImExportDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == ui_->tblRecipes->viewport())
        fitColumns();
    return QDialog::eventFilter(watched, event);
}

void ImExportDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showDirection();
        showState();
    }
    QDialog::changeEvent(event);
}

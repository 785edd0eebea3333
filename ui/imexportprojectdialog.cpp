#include "ui/imexportprojectdialog.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "orba/module_object.h"
#include "project/rules/archive_check.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "ui/exchange_table_model.h"
#include "ui/form_style.h"
#include "ui/long_work.h"
#include "ui/project_fates.h"
#include "ui/xfile_dialog.h"
#include "ui_imexportprojectdialog.h"
#include "workstation/config_log.h"
#include "workstation/medium_choice.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>

#include <optional>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using palx::OnClash;
using palx::TemplateAction;

namespace {

constexpr QSize kSize(960, 620); // fits a panel of 1024 x 640
const char *const kImportFolder = "project_import";
const char *const kExportFolder = "project_export";

/// Of the last exchange.
QString rememberedFolder(const char *item)
{
    return m("quill.help.file_path")->getString(item);
}

void rememberFolder(const char *item, const QString &folder)
{
    m("quill.help.file_path")->set(nullptr, item, folder, true);
}

QString archiveFilter()
{
    return ImExportProjectDialog::tr("Project archives") + QStringLiteral(" (*.zip)");
}

} // namespace

ImExportProjectDialog::ImExportProjectDialog(bool import, QWidget *parent)
    : ImExportProjectDialog(import, parent, QCoreApplication::applicationDirPath())
{
}

ImExportProjectDialog::ImExportProjectDialog(bool import, QWidget *parent, const QString &programFolder)
    : QDialog(parent), isImport_(import), programFolder_(programFolder),
      ui_(std::make_unique<Ui::ImExportProjectDialog>()), model_(new ExchangeTableModel(this))
{
    ui_->setupUi(this);
    ui_->tblProjects->setModel(model_);
    setTexts();
    setupTable(ui_->tblProjects, model_->fateColumn(), false);
    ui_->tblProjects->setSelectionMode(QAbstractItemView::NoSelection);
    for (QWidget *part : QList<QWidget *>{ui_->btnFiles, ui_->wgtClash, ui_->gpbProjectTemplates})
        part->setVisible(isImport_);
    for (QWidget *part : QList<QWidget *>{ui_->edtTarget, ui_->btnTarget, ui_->btnAll, ui_->btnNone,
                                          ui_->chbProjectTemplates})
        part->setVisible(!isImport_);
    ui_->lblHint->setVisible(isImport_);
    setFieldMargins(this);
    connectParts();
    if (!isImport_) {
        const QString folder = rememberedFolder(kExportFolder);
        const bool isThere = QFileInfo(folder).isDir() && palx::targetProblem(folder).isEmpty();
        ui_->edtTarget->setText(isThere ? folder : QString());
        listProjects();
        readTarget();
    }
    showState();
    showUndo();
    resize(kSize);
}

ImExportProjectDialog::~ImExportProjectDialog() = default;

void ImExportProjectDialog::connectParts()
{
    const struct
    {
        QPushButton *button;
        std::optional<Glyph> glyph;
        void (ImExportProjectDialog::*act)();
    } actions[] = {{ui_->btnFiles, Glyph::Open, &ImExportProjectDialog::chooseArchives},
                   {ui_->btnTarget, Glyph::Open, &ImExportProjectDialog::chooseTarget},
                   {ui_->btnTemplates, Glyph::Open, &ImExportProjectDialog::chooseTemplates},
                   {ui_->btnWork, std::nullopt, &ImExportProjectDialog::work}};
    for (const auto &action : actions) {
        if (action.glyph)
            action.button->setIcon(ix::xtheme::icon(*action.glyph));
        action.button->setIconSize(QSize(28, 28));
        connect(action.button, &QPushButton::clicked, this, action.act);
    }
    connect(ui_->btnAll, &QPushButton::clicked, this, [this] { model_->tickAll(true); });
    connect(ui_->btnNone, &QPushButton::clicked, this, [this] { model_->tickAll(false); });
    connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->tblProjects, &QTableView::clicked, this,
            [this](const QModelIndex &index) { model_->toggle(index.row()); });
    connect(model_, &ExchangeTableModel::tickedChanged, this, &ImExportProjectDialog::showPlan);
    for (QRadioButton *option : {ui_->rBtnReplace, ui_->rBtnNone, ui_->rBtnReset, ui_->rBtnCustom})
        connect(option, &QRadioButton::toggled, this, &ImExportProjectDialog::showPlan);
    connect(ui_->chbProjectTemplates, &QCheckBox::toggled, this, &ImExportProjectDialog::showState);
    connect(ui_->message, &MessageBar::undoWanted, this, &ImExportProjectDialog::undo);
}

void ImExportProjectDialog::setTexts()
{
    setWindowTitle(isImport_ ? tr("Import projects") : tr("Export projects"));
    ui_->lblTitle->setText(windowTitle());
    ui_->btnWork->setText(isImport_ ? tr("Import") : tr("Export"));
    ui_->btnWork->setAccessibleName(windowTitle());
    ui_->edtTarget->setPlaceholderText(tr("No folder is chosen"));
    ui_->edtTemplates->setPlaceholderText(tr("No file is chosen"));
    model_->setTitles({QString(), isImport_ ? tr("Archive") : tr("Project"), tr("What will happen")});
}

// ---------------------------------------------------------------- choosing

void ImExportProjectDialog::listProjects()
{
    QVector<ExchangeTableModel::Row> rows;
    for (const QString &name : palx::projectNames())
        rows.append({{name}, name, QString(), false});
    model_->setRows(rows);
}

void ImExportProjectDialog::chooseProject(const QString &name)
{
    for (int i = 0; i < model_->rows().size(); ++i)
        if (model_->rows().at(i).item == name && !model_->rows().at(i).isTicked)
            model_->toggle(i);
}

void ImExportProjectDialog::chooseArchives()
{
    const QStringList archives = xFileDialog::getOpenFileNames(
        this, tr("Choose project archives"), rememberedFolder(kImportFolder), archiveFilter());
    if (archives.isEmpty())
        return;
    rememberFolder(kImportFolder, QFileInfo(archives.first()).absolutePath());
    listArchives(archives);
}

/// Each is read whole, so that what cannot be imported is known before.
void ImExportProjectDialog::listArchives(const QStringList &archives)
{
    QVector<ExchangeTableModel::Row> rows;
    const auto work = [&](palx::Progress &progress) {
        for (const QString &archive : archives) {
            palx::ArchiveContent content;
            QString why;
            const bool isFine = palx::checkArchive(archive, &content, &why, &progress);
            if (progress.isCancelled())
                return;
            const QString named = palx::planImport({archive}, OnClash::Rename).first().problem;
            if (isFine && named.isEmpty())
                why = palx::projectProblem(content);
            why = named.isEmpty() ? why : named;
            rows.append({{QFileInfo(archive).fileName()}, archive, why, isFine && why.isEmpty()});
        }
    };
    if (palx::runInSlices(this, tr("Checking the archives"), work) == palx::WorkEnd::Finished)
        model_->setRows(rows);
}

void ImExportProjectDialog::chooseTarget()
{
    const QString folder = xFileDialog::getExistingDirectory(this, tr("Choose a folder for the archives"),
                                                             rememberedFolder(kExportFolder));
    if (folder.isEmpty())
        return;
    rememberFolder(kExportFolder, folder);
    ui_->edtTarget->setText(folder);
    readTarget();
}

void ImExportProjectDialog::chooseTemplates()
{
    const QString file = xFileDialog::getOpenFileName(this, tr("Choose the archive of templates"),
                                                      rememberedFolder(kImportFolder), archiveFilter());
    if (file.isEmpty())
        return;
    rememberFolder(kImportFolder, QFileInfo(file).absolutePath());
    ui_->edtTemplates->setText(file);
    ui_->rBtnCustom->setChecked(true);
    showState();
}

// ---------------------------------------------------------------- what will happen

void ImExportProjectDialog::showPlan()
{
    if (isImport_)
        model_->setFates(
            importFates(model_->rows(), palx::planImport(model_->tickedItems(), importRequest().onClash)));
    else
        showExportPlan();
    showState();
}

/// After the target changed, or what is in it.
void ImExportProjectDialog::readTarget()
{
    QStringList projects;
    for (const ExchangeTableModel::Row &row : model_->rows())
        projects.append(row.item);
    targetPlans_ = palx::planExport(ui_->edtTarget->text(), projects + QStringList(palx::templatesName()));
    showPlan();
}

void ImExportProjectDialog::showExportPlan()
{
    model_->setFates(exportFates(model_->rows(), targetPlans_));
    const palx::ExportPlan templates = targetPlans_.value(model_->rows().size());
    ui_->chbProjectTemplates->setText(templates.replaced.isValid()
                                          ? tr("Project templates") + QStringLiteral(" - ") +
                                                replacesText(templates)
                                          : tr("Project templates"));
}

void ImExportProjectDialog::showState()
{
    const bool isCustom = ui_->rBtnCustom->isChecked();
    ui_->edtTemplates->setEnabled(isCustom);
    const bool hasChoice = isImport_ ? !ui_->rBtnNone->isChecked() : ui_->chbProjectTemplates->isChecked();
    const bool canUse = !isImport_ || !isCustom || !ui_->edtTemplates->text().isEmpty();
    ui_->btnWork->setEnabled(canUse && (hasChoice || !model_->tickedItems().isEmpty()));
    ui_->btnAll->setEnabled(!model_->rows().isEmpty());
    ui_->btnNone->setEnabled(!model_->tickedItems().isEmpty());
}

void ImExportProjectDialog::showUndo(const QStringList &failed)
{
    const QStringList made = palx::lastImported();
    if (!isImport_ || made.isEmpty())
        return;
    QStringList files;
    for (const QString &archive : failed)
        files.append(QFileInfo(archive).fileName());
    QString text = tr("Imported: %1").arg(made.join(QStringLiteral(", ")));
    if (!files.isEmpty())
        text += QStringLiteral(". ") + tr("Not imported: %1").arg(files.join(QStringLiteral(", ")));
    ui_->message->showUndo(text, files.isEmpty() ? State::Running : State::Attention);
}

// ---------------------------------------------------------------- doing it

palx::ImportRequest ImExportProjectDialog::importRequest() const
{
    palx::ImportRequest request;
    request.archives = model_->tickedItems();
    request.onClash = ui_->rBtnReplace->isChecked() ? OnClash::Replace : OnClash::Rename;
    if (ui_->rBtnReset->isChecked())
        request.templates = TemplateAction::Reset;
    else if (ui_->rBtnCustom->isChecked())
        request.templates = TemplateAction::Custom;
    request.templateArchive = ui_->edtTemplates->text();
    request.programFolder = programFolder_;
    return request;
}

void ImExportProjectDialog::work()
{
    ui_->message->clearMessage();
    if (isImport_)
        importChosen();
    else
        exportChosen();
}

void ImExportProjectDialog::exportChosen()
{
    const QString problem = palx::targetProblem(ui_->edtTarget->text());
    if (!ui_->edtTarget->text().isEmpty() && !problem.isEmpty()) {
        palx::recordCfgLog(problem, true);
        return ui_->message->showMessage(problem, State::Fault);
    }
    const palx::ExportRequest request{model_->tickedItems(), ui_->chbProjectTemplates->isChecked(),
                                      ui_->edtTarget->text(), programFolder_};
    bool isDone = false;
    const auto end = palx::runInSlices(this, windowTitle(), [&](palx::Progress &progress) {
        isDone = palx::exportProjects(request, &progress);
    });
    readTarget();
    if (isDone)
        ui_->message->showMessage(
            QStringList({tr("Exported."), xFileDialog::removalText(request.target, true)})
                .join(QLatin1Char(' ')),
            State::Running);
    else if (end == palx::WorkEnd::Cancelled)
        ui_->message->showMessage(tr("Cancelled: the folder is as it was before."), State::Stopped);
    else
        ui_->message->showMessage(tr("Not everything was exported; the log says why."), State::Fault);
}

void ImExportProjectDialog::importChosen()
{
    const palx::ImportRequest request = importRequest();
    const QStringList before = palx::lastImported();
    bool isDone = false;
    QStringList failed;
    const auto end = palx::runInSlices(this, windowTitle(), [&](palx::Progress &progress) {
        isDone = palx::importProjects(request, &progress, &failed);
    });
    Q_EMIT projectsChanged();
    if (end == palx::WorkEnd::Cancelled)
        return ui_->message->showMessage(tr("Cancelled: everything is as it was before."), State::Stopped);
    if (isDone)
        ui_->rBtnNone->setChecked(true);
    keepFailed(failed);
    showPlan();
    const bool isReset = request.archives.isEmpty() && request.templates == TemplateAction::Reset;
    if (isDone && isReset && palx::lastImported() == before) // there was nothing that could come back
        return ui_->message->showMessage(palx::ProjectText::tr("Reset project templates success!"),
                                         State::Running);
    if (isDone || failed.size() < request.archives.size())
        return showUndo(failed);
    ui_->message->showMessage(tr("Nothing was imported; the log says why."), State::Fault);
}

/// What came is off the list, or it would come once more under another name.
void ImExportProjectDialog::keepFailed(const QStringList &archives)
{
    QVector<ExchangeTableModel::Row> rows;
    for (ExchangeTableModel::Row row : model_->rows()) {
        const bool isFailed = archives.contains(row.item);
        if (row.isTicked && !isFailed)
            continue;
        if (isFailed)
            row.problem = tr("It was not imported; the log says why");
        row.isTicked = false;
        rows.append(row);
    }
    model_->setRows(rows);
}

void ImExportProjectDialog::undo()
{
    const QString question = tr("Take the last import back? What was changed in it since is lost: %1")
                                 .arg(palx::lastImported().join(QStringLiteral(", ")));
    if (!nexo::ManagerHelper::instance()->execMsgOk(windowTitle(), question))
        return showUndo();
    if (palx::undoLastImport())
        ui_->message->showMessage(tr("The last import was taken back."), State::Running);
    else
        showUndo();
    Q_EMIT projectsChanged();
    showPlan();
}

void ImExportProjectDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTexts();
        isImport_ ? showPlan() : readTarget();
    }
    QDialog::changeEvent(event);
}

#include "ui/projectmanager.h"

#include "ix/xtheme.h"
#include "project/rules/project_import.h"
#include "project/rules/project_place.h"
#include "project/rules/project_variables.h"
#include "ui/form_style.h"
#include "ui/imexportprojectdialog.h"
#include "ui/long_work_dialog.h"
#include "ui/project_tables.h"
#include "ui/projectparamsetuppage.h"
#include "ui_projectmanager.h"
#include "workstation/plugin_node.h"
#include "workstation/unique_widget.h"
#include "workstation/workspace.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTimer>

using ix::xtheme::Glyph;
using orba::ModuleObject;

namespace {

constexpr int kRefreshMs = 1000;
constexpr int kWidePage = 900; // [px] that leave room for descriptions of program files

/// "task0/main.mod - Main Function, Default (motion)"; of a project that is not current only its folder is known.
QString programTitle(const palx::ProgramFile &file)
{
    const QString name = QStringLiteral("%1/%2.mod").arg(file.task, file.name);
    return file.type.isEmpty() ? name
                               : QStringLiteral("%1 - %2, %3 (%4)")
                                     .arg(name, file.description, file.taskDescription, file.type);
}

} // namespace

ProjectManager::ProjectManager(QWidget *page, QWidget *parent)
    : BaseSubPage(page, parent), ui_(std::make_unique<Ui::ProjectManager>()),
      parameters_(new ProjectParamSetupPage), programs_(new ProgramTableModel(this)),
      variables_(new VariableTableModel(this)), createVariables_(new QAction(this))
{
    ui_->setupUi(this);
    setupParts();
    connectButtons();
    followNodes();
    connect(createVariables_, &QAction::triggered, this, &palx::createProjectVariables);
    setFieldMargins(this);
    updateUIForCancelOrWork();
    meetRobot();
}

ProjectManager::~ProjectManager() = default;

QString ProjectManager::title() const
{
    return tr("Project Manager");
}

QString ProjectManager::chosenProject() const
{
    return ui_->cmbProject->currentText();
}

// ---------------------------------------------------------------- making the page

void ProjectManager::setupParts()
{
    ui_->pagParameters->layout()->addWidget(scrollingForm(parameters_));
    ui_->tblPrograms->setModel(programs_);
    setupTable(ui_->tblPrograms, ProgramTableModel::kDescription, false);
    ui_->tblVariables->setModel(variables_);
    setupTable(ui_->tblVariables, VariableTableModel::kDescription, true);
    ui_->tblVariables->horizontalHeader()->setSectionResizeMode(VariableTableModel::kValue,
                                                                QHeaderView::Stretch);
    connect(ui_->tblPrograms->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ProjectManager::showProgram);
    const QList<QPushButton *> parts{ui_->btnParameters, ui_->btnTasks, ui_->btnVariables};
    for (int i = 0; i < parts.size(); ++i)
        connect(parts[i], &QPushButton::clicked, this, [this, i] { ui_->stkParts->setCurrentIndex(i); });
}

void ProjectManager::connectButtons()
{
    const struct
    {
        QPushButton *button;
        std::optional<Glyph> glyph; ///< those with long names have none: five must stand beside each other
        void (ProjectManager::*act)();
    } actions[] = {{ui_->btnBack, Glyph::Back, &ProjectManager::backWanted},
                   {ui_->btnAdd, Glyph::Add, &ProjectManager::addProject},
                   {ui_->btnEdit, Glyph::Settings, &ProjectManager::editProject},
                   {ui_->btnRemove, Glyph::Delete, &ProjectManager::deleteProject},
                   {ui_->btnSetDefault, std::nullopt, &ProjectManager::setDefaultProject},
                   {ui_->btnReload, std::nullopt, &ProjectManager::reloadProject},
                   {ui_->btnImport, std::nullopt, &ProjectManager::importProject},
                   {ui_->btnExport, std::nullopt, &ProjectManager::exportProject},
                   {ui_->btnCancel, Glyph::Close, &ProjectManager::cancel},
                   {ui_->btnWork, Glyph::Save, &ProjectManager::work}};
    for (const auto &action : actions) {
        const QColor color = action.button == ui_->btnWork ? QColor(Qt::white) : QColor();
        if (action.glyph)
            action.button->setIcon(ix::xtheme::icon(*action.glyph, color));
        action.button->setIconSize(QSize(28, 28));
        connect(action.button, &QPushButton::clicked, this, action.act);
    }
    connect(ui_->cmbProject, QOverload<int>::of(&QComboBox::activated), this,
            [this] { refreshProjectInfo(chosenProject()); });
}

void ProjectManager::followNodes()
{
    connect(m("nexo.r.id"), &ModuleObject::changed, this, &ProjectManager::meetRobot);
    connect(m("quill.project.cur_project"), &ModuleObject::changed, this, &ProjectManager::refreshUnlessBusy);
    connect(m("quill.project.autoload_prj_path"), &ModuleObject::changed, this, &ProjectManager::showState);
    connect(palx::triggerNode()->c("refresh_data"), &ModuleObject::changed, this,
            &ProjectManager::refreshUnlessBusy);
    auto *clock = new QTimer(this); // values of variables change while programs run
    connect(clock, &QTimer::timeout, this, &ProjectManager::refreshTables);
    clock->start(kRefreshMs);
}

// ---------------------------------------------------------------- adding and editing

void ProjectManager::addProject()
{
    updateRBtnAndCmb();
    updateCommonUIForAddOrEdit(Adding);
    source_ = chosenProject();
    ui_->edtName->setText(QStringLiteral("Palletizing_") +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyy_MMdd_HHmm")));
    ui_->edtName->selectAll();
    ui_->edtName->setFocus();
}

void ProjectManager::editProject()
{
    updateRBtnAndCmb();
    updateCommonUIForAddOrEdit(Editing);
    oldName_ = chosenProject();
    ui_->edtName->setText(oldName_);
}

void ProjectManager::work()
{
    const EditMode mode = editMode_;
    const bool clones = ui_->chbClone->isChecked();
    if (mode == NotEditing || commit(clones))
        return;
    // A commit that failed late has shown the other view already.
    updateCommonUIForAddOrEdit(mode);
    ui_->chbClone->setChecked(clones);
    refreshData();
}

bool ProjectManager::commit(bool clones)
{
    const QScopedValueRollback<bool> working(isWorking_, true);
    const QString name = ui_->edtName->text();
    if (editMode_ == Editing)
        return palx::editProject(name, oldName_, this);
    return palx::addProject(name, clones ? std::optional<QString>(source_) : std::nullopt, this);
}

void ProjectManager::cancel()
{
    updateUIForCancelOrWork();
    refreshData();
}

void ProjectManager::updateRBtnAndCmb()
{
    parameters_->refreshCmb();
    parameters_->rBtnAndCmbUpdated(chosenProject());
}

void ProjectManager::updateCommonUIForAddOrEdit(EditMode mode)
{
    editMode_ = mode;
    ui_->lblCaption->setText(mode == Adding ? tr("New Project") : tr("Edit Project"));
    ui_->chbClone->setVisible(mode == Adding);
    ui_->stkHeader->setCurrentWidget(ui_->pagEdit);
    ui_->stkActions->setCurrentWidget(ui_->pagCommit);
    ui_->btnBack->hide();
    ui_->wgtParts->hide();
    ui_->stkParts->setCurrentWidget(ui_->pagParameters);
    parameters_->setEnabled(true);
}

void ProjectManager::updateUIForCancelOrWork()
{
    editMode_ = NotEditing;
    ui_->chbClone->setChecked(false);
    ui_->stkHeader->setCurrentWidget(ui_->pagChoose);
    ui_->stkActions->setCurrentWidget(ui_->pagActions);
    ui_->btnBack->show();
    ui_->wgtParts->show();
    ui_->btnParameters->click();
    parameters_->setEnabled(false);
}

// ---------------------------------------------------------------- what the rules ask of the page

void ProjectManager::saveParameters(const QString &name)
{
    saveDataToOrba(name);
}

void ProjectManager::becameCurrent()
{
    createVariables_->trigger();
}

void ProjectManager::projectsChanged()
{
    if (editMode_ != NotEditing)
        updateUIForCancelOrWork();
    refreshData();
}

void ProjectManager::showProgress(bool isRunning)
{
    delete progress_;
    if (!isRunning)
        return;
    progress_ = new LongWorkDialog(tr("Preparing data..."), window());
    progress_->hideCancel();
    progress_->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// ---------------------------------------------------------------- other actions

void ProjectManager::runAction(bool (*act)(const QString &name, palx::ProjectSteps *steps))
{
    const QScopedValueRollback<bool> working(isWorking_, true);
    act(chosenProject(), this);
}

void ProjectManager::deleteProject()
{
    runAction(&palx::deleteProject);
}

void ProjectManager::reloadProject()
{
    runAction(&palx::reloadProject);
}

void ProjectManager::setDefaultProject()
{
    palx::setDefaultProject(chosenProject());
}

void ProjectManager::importProject()
{
    openExchange(true);
}

void ProjectManager::exportProject()
{
    openExchange(false);
}

void ProjectManager::openExchange(bool import)
{
    auto *dialog = new ImExportProjectDialog(import, window());
    dialog->chooseProject(chosenProject());
    connect(dialog, &ImExportProjectDialog::projectsChanged, this, &ProjectManager::refreshUnlessBusy);
    palx::makeUniqueDialog(dialog);
    dialog->open();
}

// ---------------------------------------------------------------- showing

/// What an operation left that was killed in the middle is put right as soon as the robot's folder is known.
void ProjectManager::meetRobot()
{
    if (!isWorking_)
        palx::recoverExchange(QCoreApplication::applicationDirPath());
    refreshUnlessBusy();
}

void ProjectManager::refreshUnlessBusy()
{
    if (!isWorking_ && editMode_ == NotEditing)
        refreshData();
}

void ProjectManager::refreshData()
{
    const QString current = palx::currentProject();
    ui_->cmbProject->clear();
    ui_->cmbProject->addItems(palx::projectNames());
    ui_->cmbProject->setCurrentIndex(
        ui_->cmbProject->findText(current, Qt::MatchExactly | Qt::MatchCaseSensitive));
    refreshProjectInfo(chosenProject());
}

void ProjectManager::refreshProjectInfo(const QString &name)
{
    if (editMode_ == NotEditing) {
        parameters_->refreshCmb();
        parameters_->rBtnAndCmbUpdated(name);
    }
    programs_->setProject(name);
    variables_->refresh();
    showState();
    showProgram();
}

void ProjectManager::refreshTables()
{
    if (ui_->tblPrograms->isVisible())
        programs_->refresh();
    if (ui_->tblVariables->isVisible())
        variables_->refresh();
}

void ProjectManager::showState()
{
    const QString name = chosenProject();
    const bool isKnown = !palx::robotFolder().isEmpty();
    const bool isChosen = !name.isEmpty();
    ui_->btnAdd->setEnabled(isKnown);
    ui_->btnImport->setEnabled(isKnown);
    ui_->btnExport->setEnabled(isKnown);
    ui_->btnEdit->setEnabled(isChosen);
    ui_->btnRemove->setEnabled(isChosen);
    ui_->chbClone->setEnabled(isChosen);
    ui_->lblState->setText(isKnown ? stateText(name) : tr("Connect the controller first"));
    const QString current = palx::currentProject();
    ui_->lblVariables->setText(current.isEmpty() ? tr("No project is current.")
                                                 : tr("Variables of the current project: %1").arg(current));
}

QString ProjectManager::stateText(const QString &name) const
{
    if (name.isEmpty())
        return QString();
    const bool startsUp = name == palx::startUpProject();
    if (name == palx::currentProject())
        return startsUp ? tr("Current, loaded at start-up") : tr("Current");
    return startsUp ? tr("Loaded at start-up") : tr("Not current");
}

void ProjectManager::showProgram()
{
    const palx::ProgramFile file = programs_->program(ui_->tblPrograms->currentIndex().row());
    const bool isRead = ui_->program->showFile(file.path);
    QString text = tr("Touch a program file to look at it.");
    if (!file.path.isEmpty())
        text = programTitle(file);
    if (!file.path.isEmpty() && !isRead)
        text += tr(": the file cannot be read");
    else if (!file.path.isEmpty() && ui_->program->toPlainText().isEmpty())
        text += tr(": empty");
    ui_->lblProgram->setToolTip(file.path);
    ui_->lblProgram->setText(text);
}

// ---------------------------------------------------------------- events

void ProjectManager::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        if (editMode_ != NotEditing)
            updateCommonUIForAddOrEdit(editMode_);
        programs_->refresh();
        variables_->refresh();
        showState();
        showProgram();
    }
    BaseSubPage::changeEvent(event);
}

/// Descriptions of files give way on a small panel; they stand above the program, too.
void ProjectManager::resizeEvent(QResizeEvent *event)
{
    const bool isWide = width() >= kWidePage;
    QHeaderView *header = ui_->tblPrograms->horizontalHeader();
    ui_->tblPrograms->setColumnHidden(ProgramTableModel::kDescription, !isWide);
    header->setSectionResizeMode(ProgramTableModel::kFile,
                                 isWide ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
    BaseSubPage::resizeEvent(event);
}

void ProjectManager::showEvent(QShowEvent *event)
{
    refreshUnlessBusy();
    BaseSubPage::showEvent(event);
}

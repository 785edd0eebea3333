#pragma once

#include "project/rules/project_commit.h"
#include "ui/base_sub_page.h"

#include <QPointer>

#include <memory>

class LongWorkDialog;
class ProgramTableModel;
class ProjectParamSetupPage;
class QAction;
class VariableTableModel;
namespace Ui {
class ProjectManager;
}

/// The page on which robot projects are made, edited, deleted and switched to, and on which their tasks, program files and
/// variables can be looked at. Registered as "project_manager". The rules are in project/rules; the page asks and shows.
///
/// It lists the projects again when it is shown, when another robot or project becomes current and on "refresh_data", but
/// not while a project is added or edited.
class PALX_API ProjectManager : public BaseSubPage, private palx::ProjectSteps
{
    Q_OBJECT

public:
    enum EditMode { NotEditing = 0, Adding = 1, Editing = 2 };

    ProjectManager(QWidget *page, QWidget *parent);
    ~ProjectManager() override;

    QString title() const override;
    EditMode editMode() const { return editMode_; }
    /// The chosen project; empty for none.
    QString chosenProject() const;

    /// Proposes a name and the chosen project's parameters for a new project.
    void addProject();
    /// Opens the chosen project's parameters.
    void editProject();
    /// Commits what is being added or edited. A refusal leaves it open to be corrected.
    void work();
    /// Leaves adding or editing.
    void cancel();
    void deleteProject();
    void reloadProject();
    /// Makes the chosen project the one that the controller loads at its start.
    void setDefaultProject();
    /// Open the dialog that brings projects in as archives, or out.
    void importProject();
    void exportProject();
    /// Lists the projects and shows the current one.
    void refreshData();
    /// Shows a project's parameters, tasks and variables.
    void refreshProjectInfo(const QString &name);

    static QString getFileName(const QString &fileName, const QString &taskName);
    static bool createMod(QObject *parent, const QString &fileName, const QString &taskName, bool report);
    static bool copyDirectory(const QString &source, const QString &destination, const QString &newName);
    static bool checkVarExists(const QString &name);
    static void createVar(const QString &name, const QString &description, const QString &type,
                          const QString &value);
    static void createPERSVar(const QString &name, const QString &description, const QString &type,
                              const QString &value);
    /// Copies the shown parameters into a project's record.
    void saveDataToOrba(const QString &projectName) const;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void saveParameters(const QString &name) override;
    void becameCurrent() override;
    void projectsChanged() override;
    void showProgress(bool isRunning) override;

    void connectButtons();
    void setupParts();
    void followNodes();
    void openExchange(bool import);
    void meetRobot();
    void refreshUnlessBusy();
    void refreshTables();
    void updateRBtnAndCmb();
    void updateCommonUIForAddOrEdit(EditMode mode);
    void updateUIForCancelOrWork();
    bool commit(bool clones);
    void showState();
    QString stateText(const QString &name) const;
    void showProgram();
    void runAction(bool (*act)(const QString &name, palx::ProjectSteps *steps));

    std::unique_ptr<Ui::ProjectManager> ui_;
    ProjectParamSetupPage *parameters_;
    ProgramTableModel *programs_;
    VariableTableModel *variables_;
    QAction *createVariables_;
    QPointer<LongWorkDialog> progress_;
    EditMode editMode_ = NotEditing;
    QString oldName_; ///< of the project that is being edited
    QString source_;  ///< the project that a new one can be a copy of
    bool isWorking_ = false;
};

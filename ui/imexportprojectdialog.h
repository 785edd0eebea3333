#pragma once

#include "project/rules/project_export.h"
#include "project/rules/project_import.h"

#include <QDialog>

#include <memory>

class ExchangeTableModel;
namespace Ui {
class ImExportProjectDialog;
}

/// Exports robot projects and the program templates as zip archives, or imports them. Says of every project what will
/// become of it before anything is done, and takes the last import back. The rules are in project/rules.
class PALX_API ImExportProjectDialog : public QDialog
{
    Q_OBJECT

public:
    /// `programFolder` is where the folder "mod" of program templates may stand.
    ImExportProjectDialog(bool import, QWidget *parent, const QString &programFolder);
    ImExportProjectDialog(bool import, QWidget *parent);
    ~ImExportProjectDialog() override;

    /// Checks that project when exporting.
    void chooseProject(const QString &name);
    /// Exports or imports what is chosen.
    void work();

Q_SIGNALS:
    /// There are other projects now.
    void projectsChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectParts();
    void setTexts();
    void listProjects();
    void chooseArchives();
    void listArchives(const QStringList &archives);
    void chooseTarget();
    void chooseTemplates();
    void showPlan();
    void readTarget();
    void showExportPlan();
    void showState();
    void showUndo(const QStringList &failed = QStringList());
    void keepFailed(const QStringList &archives);
    void exportChosen();
    void importChosen();
    void undo();
    palx::ImportRequest importRequest() const;

    bool isImport_;
    QString programFolder_;
    std::unique_ptr<Ui::ImExportProjectDialog> ui_;
    ExchangeTableModel *model_;
    /// As the target was when it was read: of each row, then of the templates. Export only.
    QVector<palx::ExportPlan> targetPlans_;
};

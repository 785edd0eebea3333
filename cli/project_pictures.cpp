#include "project_pictures.h"

#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "nexo/setting_manager.h"
#include "project/rules/project_export.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "ui/imexportprojectdialog.h"
#include "ui/projectmanager.h"
#include "ui/xfile_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

namespace cli {

namespace {

constexpr int kBoundMs = 10000;
const QString kName = QStringLiteral("Line north");

std::unique_ptr<host::Carrier> newController()
{
    controller::StationOptions options;
    options.workspaceFolder = m("nexo.setting.workspace")->getString();
    return std::make_unique<controller::InProcessCarrier>(std::make_shared<controller::Controller>(options));
}

void click(const QWidget *page, const char *button)
{
    if (auto *found = page->findChild<QAbstractButton *>(QLatin1String(button)))
        found->click();
}

/// Presses a button whose question is accepted.
void clickAndAccept(QWidget *page, const char *button)
{
    QTimer::singleShot(0, page, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    click(page, button);
}

void typeProject(const QWidget *page)
{
    if (auto *name = page->findChild<QLineEdit *>(QStringLiteral("edtName")))
        name->setText(kName);
    click(page, "rBtnSingleLineBothSizes");
}

void chooseProgram(const QWidget *page)
{
    constexpr int kLeftStack = 3; // the longest program
    if (auto *table = page->findChild<QTableView *>(QStringLiteral("tblPrograms")))
        table->selectRow(kLeftStack);
}

/// Archives as an operator brings them: one of a project that is there, one that is new, one that is cut off.
bool makeArchives(const QString &folder)
{
    palx::NoProgress nobody;
    const QString first = palx::archivePath(folder, kName);
    if (!palx::exportProjects({{kName}, false, folder, QString()}, &nobody))
        return false;
    QFile::copy(first, palx::archivePath(folder, QStringLiteral("Line south")));
    const QString cut = palx::archivePath(folder, QStringLiteral("Line west"));
    QFile::copy(first, cut);
    return QFile::resize(cut, QFileInfo(cut).size() / 2);
}

/// A folder in the place of a disk, of which the file dialog chooses the whole or every archive.
class ChosenDisk
{
public:
    explicit ChosenDisk(const QString &folder)
    {
        standIn(folder);
        xFileDialog::setAnswers([folder](const FileRequest &request) {
            QStringList files;
            for (const QFileInfo &file : QDir(folder).entryInfoList({QStringLiteral("*.zip")}))
                files.append(file.filePath());
            return request.kind == FileRequest::Folder ? QStringList(folder) : files;
        });
    }
    ~ChosenDisk()
    {
        xFileDialog::setAnswers(nullptr);
        standIn(QString());
    }
    ChosenDisk(const ChosenDisk &) = delete;
    ChosenDisk &operator=(const ChosenDisk &) = delete;

private:
    static void standIn(const QString &folder)
    {
        nexo::SettingManager::instance()->setOverride(QStringLiteral("removable"), folder);
    }
};

bool showExchange(ProjectManager *page, const std::function<void(QWidget *widget, const QString &name)> &take)
{
    const QTemporaryDir disk;
    if (!makeArchives(disk.path()))
        return false;
    const ChosenDisk chosen(disk.path());
    const struct
    {
        const char *open;
        const char *choose;
        const char *name;
    } dialogs[] = {{"btnExport", "btnTarget", "project-export"}, {"btnImport", "btnFiles", "project-import"}};
    bool isShown = true;
    for (const auto &each : dialogs) {
        click(page, each.open);
        auto *dialog = page->window()->findChild<ImExportProjectDialog *>();
        isShown = isShown && dialog;
        if (!dialog)
            continue;
        click(dialog, each.choose);
        take(dialog, QLatin1String(each.name));
        delete dialog;
    }
    return isShown;
}

} // namespace

bool showProjects(QWidget *window, const std::function<void(QWidget *widget, const QString &name)> &take)
{
    host::ControllerLink link(newController());
    link.open();
    if (!link.waitForState(kBoundMs))
        return false;
    click(window, "btnProjects");
    auto *page = window->findChild<ProjectManager *>();
    if (!page)
        return false;
    click(page, "btnAdd");
    typeProject(page);
    take(window, QStringLiteral("projects-new"));
    clickAndAccept(page, "btnWork");
    take(window, QStringLiteral("projects"));
    click(page, "btnTasks");
    chooseProgram(page);
    take(window, QStringLiteral("projects-tasks"));
    click(page, "btnVariables");
    take(window, QStringLiteral("projects-variables"));
    const bool isExchanged = showExchange(page, take);
    click(page, "btnBack");
    return isExchanged && palx::currentProject() == kName;
}

} // namespace cli

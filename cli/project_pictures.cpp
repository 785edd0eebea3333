#include "project_pictures.h"

#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "ui/projectmanager.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTableView>
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

} // namespace

bool showProjects(QWidget *window, const std::function<void(const QString &name)> &take)
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
    take(QStringLiteral("projects-new"));
    clickAndAccept(page, "btnWork");
    take(QStringLiteral("projects"));
    click(page, "btnTasks");
    chooseProgram(page);
    take(QStringLiteral("projects-tasks"));
    click(page, "btnVariables");
    take(QStringLiteral("projects-variables"));
    click(page, "btnBack");
    return palx::currentProject() == kName;
}

} // namespace cli

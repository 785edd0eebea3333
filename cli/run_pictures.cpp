#include "run_pictures.h"

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "panel/cell_page.h"
#include "panel/panel_window.h"
#include "project/rules/first_project.h"
#include "project/rules/run_side.h"
#include "ui/start_dialog.h"
#include "workstation/plugin_node.h"
#include "xservice.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QTableView>
#include <QTimer>

namespace cli {

namespace {

using Take = std::function<void(QWidget *widget, const QString &name)>;

const QString kCell = QStringLiteral("panel.cell");

controller::StationOptions stationOptions()
{
    controller::StationOptions options;
    options.workspaceFolder = m("nexo.setting.workspace")->getString();
    return options;
}

class Line
{
public:
    Line() : Line(std::make_unique<controller::SteppedCarrier>(stationOptions())) {}

    bool connect()
    {
        link_.open();
        settle();
        return link_.isConnected();
    }
    void settle()
    {
        do
            QCoreApplication::processEvents();
        while (!link_.isIdle());
        QCoreApplication::processEvents(); // what pages do at their next turn
    }
    bool ask(const char *request, const orba::Node &payload = {})
    {
        const bool isDone = xservice()->set(nullptr, QLatin1String(request), payload).isOk();
        settle();
        return isDone;
    }
    void setSpeed(double factor)
    {
        orba::Node payload;
        payload.ensure(u"factor")->setDouble(factor);
        ask("program.speed", payload);
    }
    void fault(const char *name, bool on)
    {
        orba::Node payload;
        payload.ensure(u"name")->setString(QLatin1String(name));
        payload.ensure(u"on")->setBool(on);
        ask("cell.fault", payload);
    }
    /// Lets the right side count from its first box again, though boxes lie there.
    void confuse()
    {
        orba::Node payload;
        payload.ensure(u"currentLayerR")->setInt(1);
        payload.ensure(u"layerCountR")->setInt(1);
        ask("monitor.pers.modify", payload);
        work(30);
    }
    void enable()
    {
        for (const palx::LineSide side : palx::kLineSides)
            for (const auto &[name, value] : palx::enableChanges(side, true))
                palx::setValueOfPERSVar(name, value);
        settle();
    }
    /// Simulated seconds, quickly.
    void work(double seconds)
    {
        constexpr double kFactor = 100;
        setSpeed(kFactor);
        controller_->pass(seconds / kFactor);
        setSpeed(1);
    }

private:
    explicit Line(std::unique_ptr<controller::SteppedCarrier> carrier)
        : controller_(carrier.get()), link_(std::move(carrier))
    {
    }

    controller::SteppedCarrier *controller_;
    host::ControllerLink link_;
};

/// The button of that name that is seen.
void click(QWidget *window, const char *name)
{
    for (auto *button : window->findChildren<QAbstractButton *>(QLatin1String(name)))
        if (button->isVisible())
            return button->click();
}

bool makeProject(QWidget *window)
{
    QTimer::singleShot(0, window, [] { // its question
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    return palx::makeFirstProject(QStringLiteral("Line"));
}

QDialog *startDialog(const QWidget *window)
{
    for (StartDialog *dialog : window->findChildren<StartDialog *>())
        if (dialog->isVisible())
            return dialog;
    return nullptr;
}

bool takeDialog(QWidget *window, Line *line, const Take &take, const char *name)
{
    line->settle();
    QDialog *dialog = startDialog(window);
    if (!dialog)
        return false;
    take(dialog, QLatin1String(name));
    dialog->reject();
    delete dialog;
    line->settle();
    return true;
}

void takeParts(panel::PanelWindow *window, const Take &take)
{
    const struct
    {
        const char *tab, *name;
        const char *table;
    } parts[] = {{"tabInputs", "cell-signals", "tblSignals"},
                 {"tabTasks", "cell-tasks", "tblTasks"},
                 {"tabVariables", "cell-variables", "tblVariables"},
                 {"tabDesk", "cell-running", nullptr}};
    for (const auto &part : parts) {
        click(window, part.tab);
        if (part.table)
            window->findChild<QTableView *>(QLatin1String(part.table))->selectRow(2);
        take(window, QLatin1String(part.name));
    }
}

} // namespace

bool showRun(panel::PanelWindow *window, const Take &take)
{
    const QString home = mName(palx::getPluginName(), QStringLiteral("home_page"));
    Line line;
    if (!line.connect())
        return false;
    window->openPage(home);
    click(window, "btnRun");
    take(window, QStringLiteral("home-no-project"));
    if (!makeProject(window))
        return false;
    line.settle();
    click(window, "btnStartAt");
    bool isShown = takeDialog(window, &line, take, "start-at");
    line.enable();
    isShown = line.ask("program.run") && isShown;
    line.work(420); // the left pallet is full, the right one begun
    take(window, QStringLiteral("home-running"));
    window->openPage(kCell);
    takeParts(window, take);
    click(window, "tabFaults");
    line.confuse();
    line.fault("collision", true);
    line.work(1);
    window->findChild<panel::CellPage *>()->refresh(); // it waits for the time of a picture
    take(window, QStringLiteral("cell-faulted"));
    click(window, "tabViolations");
    window->findChild<QTableView *>(QStringLiteral("tblViolations"))->selectRow(0);
    take(window, QStringLiteral("cell-violations"));
    line.fault("collision", false);
    line.fault("power-cut", true);
    line.fault("power-cut", false);
    window->openPage(home);
    return takeDialog(window, &line, take, "recovery") && isShown;
}

} // namespace cli

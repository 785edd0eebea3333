#include "panel/cell_page.h"

#include "ix/xtheme.h"
#include "panel/cell_look.h"
#include "panel/cell_tables.h"
#include "panel/controller_look.h"
#include "ui_cell_page.h"
#include "xservice.h"

#include <QEvent>
#include <QHeaderView>
#include <QScroller>
#include <QSignalBlocker>

#include <cmath>

using ix::xtheme::Glyph;
using ix::xtheme::State;
using orba::Node;

namespace panel {

namespace {

constexpr double kTouch = 0.5; // [s] a button of the cell is pressed
constexpr double kHold = 5;    // [s] the confirmation of a pallet waits for its lamp

const Node &cell()
{
    return m("nexo.cell")->node();
}

Node payloadOf(std::initializer_list<std::pair<QString, QVariant>> values)
{
    Node payload;
    payload.reset(Node::Kind::Map);
    for (const auto &[key, value] : values)
        payload.ensure(key)->setValue(value);
    return payload;
}

} // namespace

CellPage::CellPage(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::PanelCellPage>())
{
    ui_->setupUi(this);
    setupPicture();
    setupRun();
    setupDesk();
    setupTables();
    nameTitles();
    showMessage(QString(), State::None);
    frame_.setSingleShot(true);
    frame_.setInterval(kFrameMs);
    connect(&frame_, &QTimer::timeout, this, &CellPage::refresh);
    refresh();
}

CellPage::~CellPage() = default;

void CellPage::setupPicture()
{
    CellView *view = ui_->view;
    const auto button = [this](QPushButton *pressed, Glyph glyph, auto act) {
        pressed->setIcon(ix::xtheme::icon(glyph));
        connect(pressed, &QPushButton::clicked, this, act);
    };
    button(ui_->btnTurnLeft, Glyph::TurnLeft, [view] { view->turnBy(-CellView::kTurnStep); });
    button(ui_->btnTurnRight, Glyph::TurnRight, [view] { view->turnBy(CellView::kTurnStep); });
    button(ui_->btnLarger, Glyph::Add, [view] { view->zoomBy(1.25); });
    button(ui_->btnSmaller, Glyph::Remove, [view] { view->zoomBy(1 / 1.25); });
    ui_->btnArrowLeft->setIcon(ix::xtheme::icon(Glyph::Back));
    ui_->btnArrowRight->setIcon(ix::xtheme::icon(Glyph::Forward));
}

void CellPage::setupRun()
{
    const struct
    {
        QPushButton *button;
        const char *request;
    } runs[] = {{ui_->btnRun, "program.run"},
                {ui_->btnPause, "program.pause"},
                {ui_->btnStep, "program.step"},
                {ui_->btnStop, "program.stop"}};
    for (const auto &run : runs)
        connect(run.button, &QPushButton::clicked, this,
                [this, run] { ask(QLatin1String(run.request), Node(), run.button->text()); });
    connect(ui_->sldSpeed, &QSlider::valueChanged, this,
            [this](int tenths) { changeSpeed(std::pow(10.0, tenths / 10.0)); });
    connect(ui_->btnReal, &QPushButton::clicked, this, [this] { changeSpeed(1); });
}

void CellPage::setupDesk()
{
    desk_ = {ui_->btnDeskStart, ui_->btnDeskStop, ui_->btnDeskReset, ui_->btnArrowLeft, ui_->btnArrowRight};
    for (int i = 0; i < desk_.size(); ++i)
        connect(desk_[i], &QPushButton::clicked, this, [this, button = desk_[i], each = deskButtons()[i]] {
            press(QLatin1String(each.input), each.isHeld ? kHold : kTouch, button->text());
        });
    const struct
    {
        QPushButton *button;
        int side;
        const char *action;
    } pallets[] = {{ui_->btnTakeLeft, 0, "take"},
                   {ui_->btnTakeRight, 1, "take"},
                   {ui_->btnBringLeft, 0, "bring"},
                   {ui_->btnBringRight, 1, "bring"}};
    for (const auto &each : pallets)
        connect(each.button, &QPushButton::clicked, this, [this, each] {
            ask(QStringLiteral("cell.pallet"),
                payloadOf({{QStringLiteral("side"), each.side},
                           {QStringLiteral("action"), QLatin1String(each.action)}}),
                each.button->text());
        });
    connect(ui_->btnClear, &QPushButton::clicked, this, [this] {
        ask(QStringLiteral("cell.gripper"), payloadOf({{QStringLiteral("action"), QStringLiteral("clear")}}),
            ui_->btnClear->text());
    });
}

CellTable *CellPage::setupTable(QTableView *view, int stretched, ix::StretchedColumn::Least least)
{
    auto *model = new CellTable(this);
    view->setModel(model);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(44);
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->horizontalHeader()->setHighlightSections(false);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QScroller::grabGesture(view->viewport(), QScroller::TouchGesture);
    new ix::StretchedColumn(view, stretched, least);
    return model;
}

void CellPage::setupTables()
{
    using Least = ix::StretchedColumn::Least;
    signals_ = setupTable(ui_->tblSignals, 1, Least::Title); // what stands behind it counts more
    tasks_ = setupTable(ui_->tblTasks, 2, Least::Contents);
    variables_ = setupTable(ui_->tblVariables, 1, Least::Title);
    violations_ = setupTable(ui_->tblViolations, 2, Least::Contents);
    ui_->tblViolations->verticalHeader()->setDefaultSectionSize(56); // two lines
    const QList<QPushButton *> tabs{ui_->tabDesk,      ui_->tabInputs, ui_->tabTasks,
                                    ui_->tabVariables, ui_->tabFaults, ui_->tabViolations};
    for (int i = 0; i < tabs.size(); ++i)
        connect(tabs[i], &QPushButton::clicked, this, [this, i] {
            ui_->stkParts->setCurrentIndex(i);
            showPart();
        });
    connect(ui_->btnOn, &QPushButton::clicked, this, [this] { force(true); });
    connect(ui_->btnOff, &QPushButton::clicked, this, [this] { force(false); });
    connect(ui_->btnPress, &QPushButton::clicked, this, [this] {
        const QString signal = ui_->tblSignals->currentIndex().siblingAtColumn(0).data().toString();
        press(signal, kTouch, signal);
    });
    for (QTableView *table : {ui_->tblSignals, ui_->tblVariables, ui_->tblViolations})
        connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &CellPage::showForce);
    connect(
        ui_->tblVariables->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &row) { ui_->edtValue->setText(row.siblingAtColumn(1).data().toString()); });
    connect(ui_->edtFind, &QLineEdit::textChanged, this, &CellPage::showPart);
    connect(ui_->btnSet, &QPushButton::clicked, this, &CellPage::setVariable);
    connect(ui_->edtValue, &QLineEdit::returnPressed, this, &CellPage::setVariable);
}

void CellPage::nameTitles()
{
    signals_->setTitles({tr("Signal"), tr("Meaning"), tr("State")});
    tasks_->setTitles({tr("Task"), tr("State"), tr("Line"), tr("Procedure")});
    variables_->setTitles({tr("Name"), tr("Value"), tr("Type")});
    violations_->setTitles({tr("Task, line"), tr("Layer / piece"), tr("Bodies")});
}

// ---------------------------------------------------------------- following the controller

void CellPage::follow()
{
    follower_ = std::make_unique<QObject>();
    followNodes({QStringLiteral("nexo.cell.time"), QStringLiteral("nexo.cell.speed"),
                 QStringLiteral("nexo.cell.program.state"), QStringLiteral("nexo.cell.program.why"),
                 QStringLiteral("nexo.r.connected"), QStringLiteral("quill.project.cur_project")},
                follower_.get(), [this] {
                    if (!frame_.isActive())
                        frame_.start();
                });
}

void CellPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    follow();
    refresh();
}

void CellPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    follower_.reset();
    frame_.stop();
}

/// While something moves, the next picture follows without waiting for word of the whole cell, because the robot is told
/// more often.
void CellPage::refresh()
{
    const bool isOther = ui_->view->showScene(readCellScene(cell(), m("nexo.robot")->node()));
    if (isOther && follower_ && m("nexo.r")->getBool("connected"))
        frame_.start();
    showProgram();
    showSpeed();
    showPart();
}

void CellPage::showProgram()
{
    const bool isConnected = m("nexo.r")->getBool("connected");
    const ProgramLook look = programLook(cell(), isConnected);
    ui_->lblState->setText(look.text);
    ix::xtheme::setState(ui_->lblState, look.state);
    ui_->lblWhy->setText(look.why);
    ui_->lblTime->setText(clockText(cell().getDouble(u"time")));
    const QString state = cell().getString(u"program.state");
    const bool isRunning = state == QLatin1String("running");
    const bool isPaused = state == QLatin1String("paused");
    ui_->btnRun->setEnabled(isConnected && !isRunning);
    ui_->btnPause->setEnabled(isConnected && isRunning);
    ui_->btnStep->setEnabled(isConnected && isPaused);
    ui_->btnStop->setEnabled(isConnected && (isRunning || isPaused));
    ui_->stkParts->setEnabled(isConnected);
    ui_->sldSpeed->setEnabled(isConnected);
    ui_->btnReal->setEnabled(isConnected);
}

/// Only the part that is seen.
void CellPage::showPart()
{
    QWidget *part = ui_->stkParts->currentWidget();
    if (part == ui_->pagDesk)
        showDesk();
    else if (part == ui_->pagInputs)
        signals_->setRows(signalRows(cell()));
    else if (part == ui_->pagTasks)
        tasks_->setRows(taskRows(cell()));
    else if (part == ui_->pagVariables)
        variables_->setRows(variableRows(m("quill.project.var._list")->node(), ui_->edtFind->text()));
    else if (part == ui_->pagFaults)
        showFaults();
    else
        showViolations();
    showForce();
}

void CellPage::showDesk()
{
    for (int i = 0; i < desk_.size(); ++i) {
        const DeskButton &each = deskButtons()[i];
        ix::xtheme::setState(desk_[i], cellSignal(cell(), QLatin1String(each.lamp)) ? each.lit : State::None);
    }
    QLabel *const labels[] = {ui_->lblPalletLeft, ui_->lblPalletRight};
    for (int side = 0; side < 2; ++side) {
        const PalletLook look = palletLook(cell(), side);
        labels[side]->setText(look.text);
        ix::xtheme::setState(labels[side], look.state);
    }
    ui_->lblFacts->setText(machineTexts(cell()).join(QLatin1Char('\n')));
}

void CellPage::showSpeed()
{
    const double factor = cell().getDouble(u"speed", 1);
    if (!ui_->sldSpeed->isSliderDown()) {
        const QSignalBlocker quiet(ui_->sldSpeed);
        ui_->sldSpeed->setValue(qRound(10 * std::log10(std::max(factor, 0.1))));
    }
    ui_->lblSpeed->setText(tr("%1 x").arg(QString::number(factor, 'g', 3)));
}

void CellPage::showFaults()
{
    const Node *list = cell().find(u"faults");
    for (int i = faults_.size(); list && i < list->size(); ++i) {
        auto *button = new QPushButton;
        const QString name = list->at(i)->getString(u"name");
        button->setObjectName(QStringLiteral("btnFault_") + name);
        connect(button, &QPushButton::clicked, this, [this, button, name] {
            ask(QStringLiteral("cell.fault"),
                payloadOf({{QStringLiteral("name"), name},
                           {QStringLiteral("on"), !button->property("isOn").toBool()}}),
                button->text());
        });
        ui_->grdFaults->addWidget(button, i / 2, i % 2);
        faults_.append(button);
    }
    for (int i = 0; list && i < std::min(faults_.size(), list->size()); ++i) {
        const bool on = list->at(i)->getBool(u"on");
        const QString text = faultText(list->at(i)->getString(u"name"));
        faults_[i]->setText(on ? tr("%1: on").arg(text) : text);
        faults_[i]->setAccessibleName(text);
        faults_[i]->setProperty("isOn", on);
        ix::xtheme::setState(faults_[i], on ? State::Fault : State::None);
    }
    ui_->btnClear->setEnabled(cell().getBool(u"gripper.carries"));
}

void CellPage::showViolations()
{
    violations_->setRows(violationRows(cell()));
    ui_->lblViolations->setText(tr("Violations: %1, lost boxes: %2")
                                    .arg(cell().getInt(u"violation_count"))
                                    .arg(cell().getInt(u"lost_boxes")));
}

/// What can be done with the chosen rows.
void CellPage::showForce()
{
    const QString signal = ui_->tblSignals->currentIndex().siblingAtColumn(0).data().toString();
    for (QPushButton *button : {ui_->btnOn, ui_->btnOff, ui_->btnPress})
        button->setEnabled(signal.startsWith(QLatin1String("DI")));
    const QString type = ui_->tblVariables->currentIndex().siblingAtColumn(2).data().toString();
    const bool isSettable = !type.isEmpty() && !type.startsWith(QLatin1Char('('));
    ui_->btnSet->setEnabled(isSettable);
    ui_->edtValue->setEnabled(isSettable);
    const int violation = ui_->tblViolations->currentIndex().row();
    ui_->lblViolation->setText(violation >= 0 && violation < violations_->rowCount()
                                   ? violations_->rows()[violation].key
                                   : QString());
}

void CellPage::ask(const QString &request, const Node &payload, const QString &what)
{
    const int number = ++asked_;
    showMessage(tr("%1: waiting for the controller").arg(what), State::Manual);
    orba::ModuleObject record(QStringLiteral("payload"));
    record.copyFrom(payload);
    xservice()->command(this, request, &record, [this, number, what](const XReply &reply) {
        refresh();
        if (number != asked_)
            return; // something else was asked for meanwhile
        showMessage(reply.isOk() ? QString() : tr("%1: %2").arg(what, reply.error), State::Fault);
    });
}

/// In the place of the program's reason; an empty one gives it back.
void CellPage::showMessage(const QString &text, State state)
{
    ui_->lblMessage->setText(text);
    ix::xtheme::setState(ui_->lblMessage, state);
    ui_->lblMessage->setVisible(!text.isEmpty());
    ui_->lblWhy->setVisible(text.isEmpty());
}

void CellPage::press(const QString &signal, double seconds, const QString &what)
{
    ask(QStringLiteral("cell.input"),
        payloadOf({{QStringLiteral("signal"), signal}, {QStringLiteral("seconds"), seconds}}), what);
}

void CellPage::force(bool on)
{
    const QString signal = ui_->tblSignals->currentIndex().siblingAtColumn(0).data().toString();
    ask(QStringLiteral("cell.input"),
        payloadOf({{QStringLiteral("signal"), signal}, {QStringLiteral("on"), on}}), signal);
}

void CellPage::setVariable()
{
    const QModelIndex row = ui_->tblVariables->currentIndex();
    const QString name = row.siblingAtColumn(0).data().toString();
    Node payload;
    payload.reset(Node::Kind::Map);
    payload.ensureChild(orba::Name(name))
        ->assign(variableValue(row.siblingAtColumn(2).data().toString(), ui_->edtValue->text()));
    ask(QStringLiteral("monitor.pers.modify"), payload, name);
}

void CellPage::changeSpeed(double factor)
{
    ask(QStringLiteral("program.speed"),
        payloadOf({{QStringLiteral("factor"), std::clamp(factor, 0.1, 1000.0)}}), tr("Speed"));
}

void CellPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ui_->retranslateUi(this);
    nameTitles();
    refresh();
}

} // namespace panel

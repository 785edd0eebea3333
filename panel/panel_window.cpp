#include "panel/panel_window.h"

#include "bwaf/center_widget.h"
#include "core/global_nodes.h"
#include "ix/xtheme.h"
#include "panel/cell_page.h"
#include "panel/controller_page.h"
#include "panel/log_page.h"
#include "panel/message_dialog.h"
#include "panel/navigator.h"
#include "panel/problem_page.h"
#include "panel/status_strip.h"
#include "panel/text_keyboard.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace panel {

namespace {

const QString kCellPage = QStringLiteral("panel.cell");
const QString kControllerPage = QStringLiteral("panel.controller");
const QString kNoticePage = QStringLiteral("panel.notices");
const QString kProblemPage = QStringLiteral("panel.problems");

} // namespace

PanelWindow::PanelWindow(host::HostSession *session, PanelPresenter *presenter, QWidget *parent)
    : QWidget(parent), session_(session), center_(session->centerWidget()),
      navigator_(new Navigator(m("ix.nav"), this)), status_(new StatusStrip(this)), log_(new LogPage)
{
    setObjectName(QStringLiteral("panelWindow"));
    resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize()));
    auto *row = new QHBoxLayout;
    row->addWidget(navigator_);
    row->addWidget(center_, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row, 1);
    column->addWidget(status_);
    addOwnPages();
    connect(presenter, &PanelPresenter::noticed, status_, &StatusStrip::showNotice);
    connect(session, &host::HostSession::problemFound, this, &PanelWindow::showProblem);
    connect(navigator_, &Navigator::pageChosen, this, &PanelWindow::openPage);
    connect(status_, &StatusStrip::noticesWanted, this, [this] { openPage(kNoticePage); });
    connect(status_, &StatusStrip::controllerWanted, this, [this] { openPage(kControllerPage); });
    connect(center_, &bwaf::CenterWidget::currentPageChanged, navigator_, &Navigator::setCurrentPage);
    presenter->setWindow(this);
    new TextKeyboardOpener(this);
    openFirstPage();
}

PanelWindow::~PanelWindow()
{
    if (session_->centerWidget())
        center_->setParent(nullptr); // the session ends it
}

void PanelWindow::addOwnPages()
{
    using namespace ix::xtheme;
    center_->addPage(new CellPage, kCellPage);
    navigator_->addOwnEntry({tr("Cell"), QString(), QString(), kCellPage, -1}, icon(Glyph::Pallet));
    center_->addPage(new ControllerPage, kControllerPage);
    navigator_->addOwnEntry({tr("Controller"), QString(), QString(), kControllerPage, -1},
                            icon(Glyph::Robot));
    center_->addPage(log_, kNoticePage);
    navigator_->addOwnEntry({tr("Log"), QString(), QString(), kNoticePage, -1}, icon(Glyph::Log));
    const QList<host::Problem> &problems = session_->problems();
    if (problems.isEmpty())
        return;
    problems_ = new ProblemPage(problems);
    center_->addPage(problems_, kProblemPage);
    navigator_->addOwnEntry({tr("Problems"), QString(), QString(), kProblemPage, -1}, icon(Glyph::Warning));
    for (const host::Problem &problem : problems)
        showProblem(problem.text());
}

void PanelWindow::openFirstPage()
{
    setWindowTitle(tr("Robot panel"));
    openPage(session_->modules().isEmpty() ? kProblemPage : navigator_->firstPage());
}

void PanelWindow::openPage(const QString &key)
{
    if (!center_->setCurrentPage(key))
        nexo::ManagerHelper::instance()->throwLog(this, QStringLiteral("warning"),
                                                  tr("There is no page \"%1\".").arg(key));
    navigator_->setCurrentPage(center_->currentPage());
}

/// Published as a record, so that the log keeps it; the strip shows it also when there is nobody to keep it.
void PanelWindow::showProblem(const QString &text)
{
    host::publishRecord(QStringLiteral("error"), text);
    status_->showNotice(QStringLiteral("error"), text);
}

void PanelWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PanelWindow::retranslate()
{
    setWindowTitle(tr("Robot panel"));
    navigator_->setOwnTitle(kCellPage, tr("Cell"));
    navigator_->setOwnTitle(kControllerPage, tr("Controller"));
    navigator_->setOwnTitle(kNoticePage, tr("Log"));
    navigator_->setOwnTitle(kProblemPage, tr("Problems"));
    status_->retranslate();
    if (problems_)
        problems_->retranslate();
}

void PanelWindow::closeEvent(QCloseEvent *event)
{
    if (session_->save()) {
        event->accept();
        return;
    }
    const bool close = nexo::ManagerHelper::instance()->execMsgOk(
        tr("The data cannot be saved"),
        tr("Changes since the last saving are lost when the panel closes now."), tr("Keep open"));
    event->setAccepted(close);
}

} // namespace panel

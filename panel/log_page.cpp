#include "panel/log_page.h"

#include "ix/clear_button.h"
#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "panel/export_dialog.h"
#include "panel/log_export.h"
#include "panel/log_model.h"
#include "ui_log_page.h"

#include <QDateTime>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QScroller>

using ix::xtheme::Glyph;

namespace panel {

namespace {

void notice(const char *level, const QString &text)
{
    nexo::ManagerHelper::instance()->throwLog(nullptr, QLatin1String(level), text);
}

} // namespace

LogPage::LogPage(QWidget *parent)
    : QWidget(parent), ui_(std::make_unique<Ui::LogPage>()),
      records_(new LogModel(m("quill.log.list"), this)), found_(new LogFilter(this)),
      chooser_([this](const QStringList &folders, const QString &name) {
          ExportDialog dialog(folders, name, window());
          return dialog.exec() == QDialog::Accepted ? dialog.file() : QString();
      })
{
    ui_->setupUi(this);
    ui_->btnExport->setIcon(ix::xtheme::icon(Glyph::Save));
    ui_->btnClear->setIcon(ix::xtheme::icon(Glyph::Delete));
    for (QPushButton *button : {ui_->btnExport, ui_->btnClear})
        button->setIconSize(QSize(28, 28));
    ui_->edtSearch->setTextMargins(6, 0, 6, 0);
    found_->setSourceModel(records_);
    setupTable();
    fillLevels();
    connect(ui_->cmbLevel, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LogPage::filter);
    new ix::ClearButton(ui_->edtSearch);
    connect(ui_->edtSearch, &QLineEdit::textChanged, this, &LogPage::filter);
    connect(ui_->btnExport, &QPushButton::clicked, this, &LogPage::exportRecords);
    connect(ui_->btnClear, &QPushButton::clicked, this, &LogPage::clearRecords);
    showCount();
    showChosen();
}

LogPage::~LogPage() = default;

int LogPage::count() const
{
    return found_->rowCount();
}

void LogPage::setupTable()
{
    constexpr int kRow = 52; // two lines of text
    QTableView *table = ui_->tblLog;
    table->setModel(found_);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(kRow);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(LogModel::Title, QHeaderView::Stretch);
    table->horizontalHeader()->setHighlightSections(false);
    QScroller::grabGesture(table->viewport(), QScroller::TouchGesture);
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this, &LogPage::showChosen);
    connect(found_, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                if (first == 0)
                    keepPlace(last + 1);
            });
    connect(records_, &QAbstractItemModel::rowsInserted, this, &LogPage::showCount);
    connect(records_, &QAbstractItemModel::rowsRemoved, this, &LogPage::showCount);
}

/// Who reads older records goes on reading them while new ones come in above.
void LogPage::keepPlace(int added)
{
    QScrollBar *bar = ui_->tblLog->verticalScrollBar();
    if (bar->value() > 0)
        bar->setValue(bar->value() + added * ui_->tblLog->verticalHeader()->defaultSectionSize());
}

void LogPage::fillLevels()
{
    const struct
    {
        QString title;
        QStringList levels;
    } choices[] = {{tr("All levels"), {}},
                   {tr("Errors"), {QStringLiteral("error")}},
                   {tr("Warnings"), {QStringLiteral("warning")}},
                   {tr("Errors and warnings"), {QStringLiteral("error"), QStringLiteral("warning")}},
                   {tr("Notes"), {QStringLiteral("info")}}};
    const int chosen = qMax(0, ui_->cmbLevel->currentIndex());
    const QSignalBlocker blocker(ui_->cmbLevel);
    ui_->cmbLevel->clear();
    for (const auto &choice : choices)
        ui_->cmbLevel->addItem(choice.title, choice.levels);
    ui_->cmbLevel->setCurrentIndex(chosen);
}

void LogPage::filter()
{
    found_->setLevels(ui_->cmbLevel->currentData().toStringList());
    found_->setText(ui_->edtSearch->text());
    showCount();
    showChosen();
}

void LogPage::showCount()
{
    ui_->lblCount->setText(count() == records_->rowCount()
                               ? tr("Records: %1").arg(count())
                               : tr("Records: %1 of %2").arg(count()).arg(records_->rowCount()));
    ui_->btnExport->setEnabled(count() > 0);
    ui_->btnClear->setEnabled(records_->rowCount() > 0);
}

/// A title that does not fit its row can be read whole.
void LogPage::showChosen()
{
    const QModelIndex chosen = ui_->tblLog->currentIndex();
    ui_->txtRecord->setPlainText(chosen.isValid() ? found_->record(chosen).title : QString());
    ui_->txtRecord->setVisible(chosen.isValid());
}

void LogPage::exportRecords()
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString file = chooser_(exportFolders(), QStringLiteral("log-") + stamp);
    if (file.isEmpty())
        return;
    const QVector<LogRecord> records = found_->records();
    const QString why = exportLog(records, file);
    if (why.isEmpty())
        notice("info", tr("%1 records were exported to %2.").arg(records.size()).arg(file));
    else
        notice("error", tr("The log was not exported. %1").arg(why));
}

void LogPage::clearRecords()
{
    if (nexo::ManagerHelper::instance()->execMsgOk(tr("Clear the log"),
                                                   tr("All %1 records are deleted for good, those that the "
                                                      "filter hides as well. Export them first to keep them.")
                                                       .arg(records_->rowCount())))
        m("quill.log.list")->clear();
}

void LogPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void LogPage::retranslate()
{
    ui_->retranslateUi(this);
    fillLevels();
    records_->retranslate();
    showCount();
}

} // namespace panel

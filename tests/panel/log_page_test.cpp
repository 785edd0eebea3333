#include "panel/log_page.h"

#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "nexo/setting_manager.h"
#include "orba/module_manager.h"
#include "panel/export_dialog.h"
#include "panel/log_export.h"
#include "panel/log_model.h"
#include "support/test_support.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using panel::LogModel;
using panel::LogPage;
using panel::LogRecord;

namespace {

class LogPageTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host::buildGlobalNodes());
        keeper = std::make_unique<host::LogKeeper>();
        page = std::make_unique<LogPage>();
    }
    void TearDown() override
    {
        page.reset();
        keeper.reset();
        host::removeGlobalNodes();
        nexo::SettingManager::instance()->setOverride(QStringLiteral("export"), QString());
    }
    template <typename T> T *child(const char *name) const
    {
        T *found = page->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    static void record(const char *level, const QString &title, const char *robot = "R7")
    {
        orba::Node node;
        node.ensure(u"level")->setString(QLatin1String(level));
        node.ensure(u"title")->setString(title);
        node.ensure(u"date_time")->setString(QStringLiteral("2025-03-04/05:06:07"));
        node.ensure(u"rcid")->setString(QLatin1String(robot));
        m("quill.log.current")->set(nullptr, "", QString::fromUtf8(orba::ModuleManager::toJson(node, true)));
    }
    /// What the table shows, newest first.
    QStringList rows() const
    {
        QCoreApplication::processEvents();
        const QAbstractItemModel *model = child<QTableView>("tblLog")->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            texts.append(cells.join(QLatin1Char('|')));
        }
        return texts;
    }
    void someRecords() const
    {
        record("info", QStringLiteral("The controller is back"));
        record("warning", QString::fromUtf8("Рецепт \"A\", слой 2"));
        record("error", QStringLiteral("The box\nis lost"), "R8");
        record("error", QStringLiteral("The box\nis lost"), "R8");
    }
    void exportTo(const QString &file) const
    {
        page->setFileChooser([file](const QStringList &, const QString &) { return file; });
        child<QPushButton>("btnExport")->click();
    }
    static QByteArray content(const QString &file)
    {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("missing");
    }

    const QTemporaryDir folder;
    ScriptedPresenter presenter{{false, true}};
    std::unique_ptr<host::LogKeeper> keeper;
    std::unique_ptr<LogPage> page;
};

} // namespace

TEST_F(LogPageTest, ShowsTheNewestFirstFilteredByLevelAndText)
{
    someRecords();
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Error|2025-03-04 05:06:07|The box is lost|R8"),
                                   QStringLiteral("Error|2025-03-04 05:06:07|The box is lost|R8"),
                                   QString::fromUtf8("Warning|2025-03-04 05:06:07|Рецепт \"A\", слой 2|R7"),
                                   QStringLiteral("Note|2025-03-04 05:06:07|The controller is back|R7")}));
    const struct
    {
        int level;
        const char *text;
        int count;
    } cases[] = {{0, "", 4},    {1, "", 2},       {3, "", 3}, {0, "BOX", 2},
                 {2, "box", 0}, {3, " слой ", 1}, {0, "*", 0}};
    for (const auto &each : cases) {
        child<QComboBox>("cmbLevel")->setCurrentIndex(each.level);
        child<QLineEdit>("edtSearch")->setText(QString::fromUtf8(each.text));
        EXPECT_EQ(rows().size(), each.count) << each.level << each.text;
        EXPECT_EQ(child<QPushButton>("btnExport")->isEnabled(), each.count > 0);
    }
    EXPECT_EQ(child<QLabel>("lblCount")->text(), QStringLiteral("Records: 0 of 4"));
}

TEST_F(LogPageTest, WhoReadsOlderRecordsGoesOnReadingThem)
{
    for (int i = 0; i < 100; ++i)
        record("info", QString::number(i));
    page->resize(800, 400);
    page->show();
    EXPECT_EQ(rows().size(), 100);
    auto *table = child<QTableView>("tblLog");
    table->verticalScrollBar()->setValue(50 * table->verticalHeader()->defaultSectionSize());
    const QString top = table->indexAt(QPoint(1, 1)).siblingAtColumn(LogModel::Title).data().toString();
    EXPECT_EQ(top, QStringLiteral("49"));
    table->setCurrentIndex(table->indexAt(QPoint(1, 1)));
    for (int i = 0; i < 3; ++i)
        record("info", QStringLiteral("new"));
    EXPECT_EQ(rows().size(), 103);
    EXPECT_EQ(table->indexAt(QPoint(1, 1)).siblingAtColumn(LogModel::Title).data().toString(), top);
    EXPECT_EQ(child<QPlainTextEdit>("txtRecord")->toPlainText(), top);
    for (int i = 0; i < host::LogKeeper::kMaxRecords; ++i)
        record("info", QStringLiteral("same"));
    EXPECT_EQ(rows().size(), host::LogKeeper::kMaxRecords);
    EXPECT_EQ(rows().last(), rows().first());
}

TEST_F(LogPageTest, ExportsWhatIsShown)
{
    someRecords();
    child<QComboBox>("cmbLevel")->setCurrentIndex(3);
    rows();
    const QString table = folder.filePath(QStringLiteral("new/log.csv"));
    exportTo(table);
    EXPECT_EQ(content(table), "\xef\xbb\xbflevel,time,message,robot\r\n"
                              "\"error\",\"2025-03-04 05:06:07\",\"The box\nis lost\",\"R8\"\r\n"
                              "\"error\",\"2025-03-04 05:06:07\",\"The box\nis lost\",\"R8\"\r\n"
                              "\"warning\",\"2025-03-04 05:06:07\",\"Рецепт \"\"A\"\", слой 2\",\"R7\"\r\n");
    EXPECT_EQ(presenter.notices.last(), QStringLiteral("info: 3 records were exported to %1.").arg(table));
    const QString text = folder.filePath(QStringLiteral("log.TXT"));
    exportTo(text);
    EXPECT_EQ(content(text), "error\t2025-03-04 05:06:07\tThe box is lost\tR8\n"
                             "error\t2025-03-04 05:06:07\tThe box is lost\tR8\n"
                             "warning\t2025-03-04 05:06:07\tРецепт \"A\", слой 2\tR7\n");
}

TEST_F(LogPageTest, AFailedExportSaysWhyAndLeavesTheOldFile)
{
    someRecords();
    rows();
    const QString taken = folder.filePath(QStringLiteral("taken"));
    ASSERT_TRUE(QDir().mkpath(taken + QStringLiteral("/inside")));
    QFile old(folder.filePath(QStringLiteral("old.csv")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    for (const QString &file : {taken, old.fileName() + QStringLiteral("/log.csv")}) {
        exportTo(file);
        EXPECT_TRUE(
            presenter.notices.last().startsWith(QStringLiteral("error: The log was not exported. ") + file))
            << presenter.notices.last();
    }
    EXPECT_EQ(content(old.fileName()), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({QStringLiteral("old.csv"), QStringLiteral("taken")}));
}

TEST_F(LogPageTest, TheExportDialogAsksForFolderNameAndKind)
{
    const QString taken = folder.filePath(QStringLiteral("b/log-1.txt"));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("b")));
    QFile there(taken);
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    panel::ExportDialog dialog({folder.filePath(QStringLiteral("a")), folder.filePath(QStringLiteral("b"))},
                               QStringLiteral("log-1"));
    const auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("btnOk"));
    auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("edtName"));
    EXPECT_EQ(dialog.file(), folder.filePath(QStringLiteral("a/log-1.csv")));
    for (const char *bad : {"  ", "../x", ".hidden"}) {
        name->setText(QLatin1String(bad));
        EXPECT_FALSE(ok->isEnabled()) << bad;
        dialog.accept();
        EXPECT_EQ(dialog.result(), QDialog::Rejected) << bad;
    }
    name->setText(QStringLiteral(" log-1 "));
    dialog.findChild<QComboBox *>(QStringLiteral("cmbFolder"))->setCurrentIndex(1);
    dialog.findChild<QComboBox *>(QStringLiteral("cmbKind"))->setCurrentIndex(1);
    EXPECT_EQ(dialog.file(), taken);
    dialog.accept(); // not to be replaced
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    dialog.accept(); // to be replaced
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    ASSERT_EQ(presenter.asked.size(), 2);
    EXPECT_TRUE(presenter.asked[0].text.contains(taken)) << presenter.asked[0].text;
}

TEST_F(LogPageTest, IsClearedAfterAQuestion)
{
    someRecords();
    rows();
    child<QPushButton>("btnClear")->click(); // refused
    EXPECT_EQ(rows().size(), 4);
    child<QPushButton>("btnClear")->click();
    EXPECT_EQ(rows().size(), 0);
    ASSERT_EQ(presenter.asked.size(), 2);
    EXPECT_TRUE(presenter.asked[0].text.contains(QStringLiteral("4 records"))) << presenter.asked[0].text;
}

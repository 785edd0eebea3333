#include "panel/log_page.h"

#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "nexo/setting_manager.h"
#include "orba/module_manager.h"
#include "panel/export_dialog.h"
#include "support/test_support.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using panel::LogPage;

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
    void someRecords() const
    {
        record("info", QStringLiteral("The controller is back"));
        record("warning", QString::fromUtf8("Рецепт \"A\", слой 2"));
        record("error", QStringLiteral("The box\nis lost"), "R8");
        record("error", QStringLiteral("The box\nis lost"), "R8");
        QCoreApplication::processEvents(); // shows them
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

TEST_F(LogPageTest, ExportsWhatIsShown)
{
    someRecords();
    child<QComboBox>("cmbLevel")->setCurrentIndex(3);
    const QString table = folder.filePath(QStringLiteral("new/log.csv"));
    exportTo(table);
    EXPECT_EQ(content(table), "\xef\xbb\xbflevel,time,message,robot\r\n"
                              "\"error\",\"2025-03-04 05:06:07\",\"The box\nis lost\",\"R8\"\r\n"
                              "\"error\",\"2025-03-04 05:06:07\",\"The box\nis lost\",\"R8\"\r\n"
                              "\"warning\",\"2025-03-04 05:06:07\",\"Рецепт \"\"A\"\", слой 2\",\"R7\"\r\n");
    EXPECT_EQ(presenter.notices.last(), QStringLiteral("info: 3 records were exported to %1.").arg(table));
}

TEST_F(LogPageTest, AFailedExportSaysWhyAndLeavesTheOldFile)
{
    someRecords();
    QFile old(folder.filePath(QStringLiteral("old.csv")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const QString file = old.fileName() + QStringLiteral("/log.csv");
    exportTo(file);
    EXPECT_TRUE(
        presenter.notices.last().startsWith(QStringLiteral("error: The log was not exported. ") + file))
        << presenter.notices.last();
    EXPECT_EQ(content(old.fileName()), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(QStringLiteral("old.csv")));
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

#include "ui/xfile_dialog.h"

#include "nexo/setting_manager.h"
#include "support/fake_machine.h"
#include "support/scripted_files.h"
#include "ui/dialog_fixture.h"
#include "ui/name_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

const QString kFilter = QStringLiteral("XML (*.xml)");

/// A machine with one disk, mounted at a place with blanks and letters of another script.
struct Stick
{
    Stick() : root(machine.addFolder(QStringLiteral("ДИСК 上海")))
    {
        machine.addStick();
        mount();
    }
    void mount(const char *options = "rw", const char *fileSystem = "vfat")
    {
        machine.setMounts({FakeMachine::mount(QStringLiteral("8:17"), root, options, fileSystem)});
    }
    QString file(const QString &name, const QByteArray &bytes = "x") const
    {
        const QString path = root + QLatin1Char('/') + name;
        FakeMachine::write(path, bytes);
        return path;
    }
    FakeMachine machine;
    QString root;
};

struct Dialog : xFileDialog
{
    Dialog(const Stick &stick, FileRequest::Kind kind, const QString &start = QString(),
           const QString &filter = kFilter)
        : xFileDialog({kind, QStringLiteral("Open XML file"), start, filter}, stick.machine.places(), nullptr)
    {
    }
    QAbstractItemModel *files() const { return partOf<QTableView>(*this, "tblFiles")->model(); }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < files()->rowCount(); ++row)
            names.append(files()->index(row, 0).data().toString());
        return names;
    }
    void touch(const QString &name)
    {
        auto *table = partOf<QTableView>(*this, "tblFiles");
        const QModelIndex index = files()->index(names().indexOf(name), 0);
        ASSERT_TRUE(index.isValid()) << qPrintable(name);
        table->scrollTo(index);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
    }
    void type(const QString &name) { partOf<QLineEdit>(*this, "edtName")->setText(name); }
    void press(const char *button) { partOf<QPushButton>(*this, button)->click(); }
    bool canConfirm() const { return partOf<QPushButton>(*this, "btnOk")->isEnabled(); }
    /// A label's text without the marks that let it break.
    QString text(const char *label = "lblState") const
    {
        return partOf<QLabel>(*this, label)->text().remove(QChar(0x200b));
    }
};

} // namespace

TEST(XFileDialog, OpensAFileOfAFolder)
{
    const Stick stick;
    const QString wanted = stick.file(QStringLiteral("Рецепты/паллета 1.xml"));
    stick.file(QStringLiteral("Рецепты/b.txt"));
    stick.file(QStringLiteral(".hidden.xml"));
    Dialog dialog(stick, FileRequest::Open);
    dialog.show();
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("Рецепты")));
    EXPECT_FALSE(dialog.canConfirm());
    dialog.touch(QStringLiteral("Рецепты"));
    EXPECT_EQ(dialog.names(), QStringList(QStringLiteral("паллета 1.xml")));
    dialog.touch(QStringLiteral("паллета 1.xml"));
    EXPECT_EQ(dialog.text(), QStringLiteral("паллета 1.xml"));
    dialog.press("btnOk");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.chosen(), QStringList(wanted));
}

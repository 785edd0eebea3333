#pragma once

#include "support/fake_machine.h"
#include "ui/dialog_fixture.h"
#include "ui/xfile_dialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest/QTest>

#include <gtest/gtest.h>

inline const QString kFilter = QStringLiteral("XML (*.xml)");

/// A machine with one disk, mounted at a place with blanks and letters of another script.
struct Stick
{
    Stick() : root(machine.addFolder("ДИСК 上海"))
    {
        machine.addStick();
        mount();
    }
    void mount(const char *options = "rw", const char *fileSystem = "vfat")
    {
        machine.setMounts({FakeMachine::mount("8:17", root, options, fileSystem)});
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

/// The file dialog over such a machine, and what an operator does with it.
struct FileDialog : xFileDialog
{
    FileDialog(const Stick &stick, FileRequest::Kind kind, const QString &start = QString(),
               const QString &filter = kFilter, QWidget *parent = nullptr)
        : xFileDialog({kind, "Open XML file", start, filter}, quick(stick.machine.places()), parent)
    {
    }
    static palx::MediaPlaces quick(palx::MediaPlaces places)
    {
        places.lookEveryMs = 1;
        return places;
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

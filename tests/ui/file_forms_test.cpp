// The dialogs around files on a small panel, for fingers, readers and languages that need more room.
#include "ui/form_checks.h"
#include "ui/long_work_dialog.h"
#include "ui/page_fixture.h"
#include "ui/stick_fixture.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

/// The file dialog in all its ways with a disk, and once without.
template <typename Visit> void eachFileDialog(Visit visit)
{
    Stick stick;
    stick.file(QString(QLatin1Char('W')).repeated(60) + QStringLiteral(".xml"));
    QWidget panel;
    panel.resize(1024, 640);
    panel.show();
    const QString filters = QStringLiteral("XML (*.xml);;All files (*)");
    const auto show = [&](FileRequest::Kind kind, const char *where) {
        FileDialog dialog(stick, kind, QStringLiteral("pallet.xml"), filters, &panel);
        dialog.show();
        QCoreApplication::processEvents();
        visit(&dialog, QString::fromLatin1(where));
    };
    show(FileRequest::Open, "open ");
    show(FileRequest::OpenSeveral, "open several ");
    show(FileRequest::Save, "save ");
    show(FileRequest::Folder, "folder ");
    stick.machine.setMounts({});
    show(FileRequest::Save, "no disk ");
}

void expectFits(const QWidget *dialog, const QString &where)
{
    EXPECT_LE(dialog->width(), 1024) << where;
    EXPECT_LE(dialog->height(), 640) << where;
    expectReadable(dialog, where);
}

} // namespace

TEST(FileForms, FitASmallPanelAndAFinger)
{
    const Looks looks;
    eachFileDialog([](FileDialog *dialog, const QString &where) {
        expectFits(dialog, where);
        expectTouchable(dialog, where);
        EXPECT_GT(expectNamed(dialog, where), 7);
        const auto *table = partOf<QTableView>(*dialog, "tblFiles");
        EXPECT_FALSE(table->isVisible() && table->rowHeight(0) < 56) << where;
    });
}

TEST(FileForms, LeaveRoomForLongerLanguages)
{
    const Looks looks;
    const LongLanguage language;
    eachFileDialog(expectFits);
    LongWorkDialog work(QStringLiteral("Export"), nullptr);
    work.show();
    expectFits(&work, QStringLiteral("long work "));
    expectTouchable(&work, QStringLiteral("long work "));
}

TEST(FileForms, ShowTheLongestNameWhole)
{
    const Looks looks;
    const Stick stick;
    QWidget panel;
    panel.resize(1024, 640);
    FileDialog dialog(stick, FileRequest::Save, QString(), kFilter, &panel);
    dialog.show();
    for (const char *letter : {"W", "Щ", "上"}) {
        dialog.type(QString::fromUtf8(letter).repeated(251));
        QCoreApplication::processEvents();
        const auto *label = partOf<QLabel>(dialog, "lblState");
        EXPECT_EQ(dialog.text().size(), 255);
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << letter;
        EXPECT_LE(dialog.height(), 640) << letter;
    }
}

TEST(FileForms, FollowAChangeOfLanguage)
{
    const Stick stick;
    FileDialog dialog(stick, FileRequest::Save, QStringLiteral("pallet.xml"));
    const auto *button = partOf<QPushButton>(dialog, "btnOk");
    {
        const LongLanguage language;
        QCoreApplication::processEvents();
        EXPECT_GT(button->text().size(), 4);
        EXPECT_EQ(dialog.text(), QStringLiteral("pallet.xml"));
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Open XML file"));
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(button->text(), QStringLiteral("Save"));
}

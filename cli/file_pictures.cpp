#include "file_pictures.h"

#include "ui/long_work_dialog.h"
#include "ui/xfile_dialog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>

namespace cli {
namespace {

using Take = std::function<void(QWidget *dialog, const QString &name)>;

const QString kFilter = QStringLiteral("XML (*.xml)");

/// In the language of the pictures, as the dialogs that ask say it.
QString caption(const char *text, const char *asker = "ImExportDialog")
{
    return QCoreApplication::translate(asker, text);
}

/// A file of so many bytes, changed so many days into the year.
bool addFile(const QString &path, int bytes, int day)
{
    QFile file(path);
    const QDateTime changed(QDate(2026, 1, 1).addDays(day), QTime(7 + day % 12, day % 60));
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) && file.resize(bytes) &&
           file.setFileTime(changed, QFileDevice::FileModificationTime);
}

bool fillDisk(const QString &root)
{
    const struct
    {
        const char *name;
        int bytes;
        int day;
    } files[] = {
        {"pallet.xml", 284100, 250},
        {"pallet 2026-10-03.xml", 291400, 275},
        {"Рецепты линии 2.xml", 1182000, 300},
        {"上海工厂 托盘.xml", 96200, 310},
        {"Interlocked 1200x800 with separator sheets, corner posts and the second tool, as approved by the "
         "line manager.xml",
         310500, 313},
        {"Line 1/pallet.xml", 8100, 20},
        {"Проекты/readme.txt", 20, 40}};
    bool isDone = true;
    for (const auto &file : files)
        isDone =
            addFile(root + QLatin1Char('/') + QString::fromUtf8(file.name), file.bytes, file.day) && isDone;
    return isDone;
}

/// Only the stand-in: what is plugged into this machine belongs on no picture.
palx::MediaPlaces onlyFolder(const QString &folder)
{
    palx::MediaPlaces places;
    places.mountInfo = QString();
    places.sys = QString();
    places.standIn = folder;
    return places;
}

void takeDialog(QWidget *window, const FileRequest &request, const QString &disk, const Take &take,
                const QString &name, const std::function<void(xFileDialog *)> &act = {})
{
    xFileDialog dialog(request, onlyFolder(disk), window);
    dialog.open();
    if (act)
        act(&dialog);
    take(&dialog, name);
    dialog.reject();
}

void takeLongWork(QWidget *window, const Take &take)
{
    LongWorkDialog dialog(caption("Export recipes"), window);
    dialog.showStep(3, 8, QStringLiteral("Interlocked 1200x800"));
    dialog.open();
    take(&dialog, QStringLiteral("long-work"));
    dialog.close();
}

} // namespace

bool showFileDialogs(QWidget *window, const Take &take)
{
    const QTemporaryDir folder;
    const QString disk = folder.filePath(QStringLiteral("RECIPES"));
    if (!fillDisk(disk))
        return false;
    const FileRequest opening{FileRequest::Open, caption("Open XML file"), QString(), kFilter};
    const FileRequest saving{FileRequest::Save, caption("Save XML file"), QStringLiteral("pallet.xml"),
                             kFilter};
    const auto choose = [](xFileDialog *dialog) {
        dialog->findChild<QTableView *>(QStringLiteral("tblFiles"))->selectRow(2);
    };
    const auto misname = [](xFileDialog *dialog) {
        dialog->findChild<QLineEdit *>(QStringLiteral("edtName"))->setText(QStringLiteral("line 1/2"));
    };
    takeDialog(window, opening, disk, take, QStringLiteral("file-open"), choose);
    takeDialog(window, saving, disk, take, QStringLiteral("file-save"));
    takeDialog(window, saving, disk, take, QStringLiteral("file-save-refused"), misname);
    takeDialog(window,
               {FileRequest::Folder, caption("Choose a folder for the archives", "ImExportProjectDialog"),
                QString(), QString()},
               disk, take, QStringLiteral("file-folder"));
    takeDialog(window, opening, QString(), take, QStringLiteral("file-no-disk"));
    takeLongWork(window, take);
    return true;
}

} // namespace cli

// The ways in which other pages ask for files.
#include "ui/xfile_dialog.h"
#include "workstation/file_sync.h"
#include "workstation/removable_media.h"

#include <QPointer>

namespace {

xFileDialog::Answers &scriptedAnswers()
{
    static xFileDialog::Answers answers;
    return answers;
}

} // namespace

QStringList xFileDialog::ask(QWidget *parent, const FileRequest &request)
{
    if (scriptedAnswers())
        return scriptedAnswers()(request);
    // May end with its parent while it waits.
    const QPointer<xFileDialog> dialog(new xFileDialog(request, palx::MediaPlaces::ofMachine(), parent));
    const bool isAccepted = dialog->exec() == Accepted && dialog;
    QStringList chosen = isAccepted ? dialog->chosen() : QStringList();
    delete dialog;
    return chosen;
}

QString xFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                     const QString &filter)
{
    return ask(parent, {FileRequest::Open, caption, dir, filter}).value(0);
}

QStringList xFileDialog::getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                          const QString &filter)
{
    return ask(parent, {FileRequest::OpenSeveral, caption, dir, filter});
}

QString xFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &pathWithName,
                                     const QString &filter)
{
    return ask(parent, {FileRequest::Save, caption, pathWithName, filter}).value(0);
}

QString xFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir)
{
    return ask(parent, {FileRequest::Folder, caption, dir, QString()}).value(0);
}

bool xFileDialog::SystemFileSync(const QString &path)
{
    return palx::syncFileSystem(path);
}

QString xFileDialog::removalText(const QString &path, bool isSynced)
{
    const palx::PluggedMedia plugged = palx::pluggedMedia(palx::MediaPlaces::ofMachine());
    const palx::Medium *medium = plugged.of(path);
    if (!medium)
        return QString();
    return isSynced ? tr("It is safe to pull out the disk %1 now.").arg(medium->name)
                    : tr("Do not pull out the disk %1 yet: it has not taken everything.").arg(medium->name);
}

void xFileDialog::setAnswers(Answers answers)
{
    scriptedAnswers() = std::move(answers);
}

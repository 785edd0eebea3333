#pragma once

#include "orba/export.h"
#include "workstation/media_watch.h"
#include "workstation/medium_names.h"

#include <QDialog>
#include <QStringList>

#include <functional>
#include <memory>

namespace Ui {
class xFileDialog;
}
class QModelIndex;
class XFileModel;

/// What a file dialog is asked for.
struct PALX_API FileRequest
{
    enum Kind { Open, OpenSeveral, Save, Folder };

    Kind kind = Open;
    QString caption;
    QString start;  ///< folder to begin in, with a proposed name when saving; need not be there
    QString filter; ///< "XML (*.xml)", "Pictures (*.png *.jpg);;All files (*)"; empty shows all files
};

/// The plug-in's own file dialog. It shows nothing but removable media and lets nobody leave them. Media that are plugged or
/// pulled while it is open come and go. All paths are absolute, without symbolic links, with "/" between folders; an empty
/// answer is a refused dialog. GUI thread.
///
/// Tests and the command line answer instead of the operator, so that no dialog comes up:
///
///     xFileDialog::setAnswers([&](const FileRequest &request) { asked = request; return QStringList{path}; });
///     ...
///     xFileDialog::setAnswers(nullptr);
///
/// `ScriptedFiles` of tests/support does both for its lifetime.
class PALX_API xFileDialog : public QDialog
{
    Q_OBJECT

public:
    /// An existing file.
    static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                   const QString &filter);
    /// One or several existing files of one folder.
    static QStringList getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                        const QString &filter);
    /// A name that the medium can hold, in a folder that can be written. It has a suffix of the filter; a file that is there
    /// already may be replaced, the operator was asked.
    static QString getSaveFileName(QWidget *parent, const QString &caption, const QString &pathWithName,
                                   const QString &filter);
    /// A folder to write into.
    static QString getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir);

    /// Writes to the medium of `path` what is still in memory; false when that failed. May take seconds on a slow disk: call
    /// it inside of the work of `palx::runInThread`; any thread. `palx::syncFileSystem` also says why.
    static bool SystemFileSync(const QString &path);
    /// What to tell the operator after `SystemFileSync(path)` answered `isSynced`: that the disk of `path` may be pulled, or
    /// that it must not be yet. Empty for a path that is on no removable medium.
    static QString removalText(const QString &path, bool isSynced);

    using Answers = std::function<QStringList(const FileRequest &request)>;
    /// Null has the operator asked again. An empty list is a refused dialog.
    static void setAnswers(Answers answers);

    /// The dialog itself; `places` says where media are looked for.
    xFileDialog(FileRequest request, const palx::MediaPlaces &places, QWidget *parent);
    ~xFileDialog() override;

    /// What was chosen, after `accept`.
    QStringList chosen() const { return chosen_; }

public Q_SLOTS:
    void accept() override;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    static QStringList ask(QWidget *parent, const FileRequest &request);

    void setupTable();
    void connectParts();
    void fillFilters();
    void setTexts();
    void followMedia();
    void fillDisks();
    void showMedium(const palx::Medium *medium);
    void showFolder(const QString &folder);
    void showSpace();
    void showState();
    void touchRow(const QModelIndex &index);
    void goUp();
    void makeFolder();
    const palx::Medium *medium() const;
    const palx::FileFilter &filter() const;
    QString fileName() const;
    QStringList selectedFiles() const;
    QString refusal() const;
    QString shownPath() const;
    QString choiceText() const;
    bool replacesFile() const;
    bool mayReplace();
    bool canStillBeChosen();

    FileRequest request_;
    std::unique_ptr<Ui::xFileDialog> ui_;
    palx::MediaWatch watch_;
    XFileModel *model_;
    QVector<palx::FileFilter> filters_;
    QString root_;    ///< of the medium that is shown; empty while there is none
    QString folder_;  ///< that is shown, on this medium
    QString notice_;  ///< what happened to the medium
    QString problem_; ///< of reading the folder
    QStringList chosen_;
};

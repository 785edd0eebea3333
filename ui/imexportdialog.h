#pragma once

#include "orba/module_object.h"
#include "stack/recipe_exchange.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class ExchangeTableModel;
namespace Ui {
class ImExportDialog;
}

/// Moves recipes between a list and an XML file: reads a file and merges the ticked recipes into the list, or writes the
/// ticked recipes of the list to a file. While a file's recipes are shown, every row says what will become of it.
///
/// One of the plug-in's unique dialogs; rejected when the list ends, deleted when it is closed. The folder of the last file
/// is kept in "quill.help.file_path", "import" or "export".
class PALX_API ImExportDialog : public QDialog
{
    Q_OBJECT

public:
    ImExportDialog(bool import, orba::ModuleObject *list, QWidget *parent = nullptr);
    ~ImExportDialog() override;

    /// Asks for a file; on import reads it. A file that cannot be read leaves an empty table.
    void openFile();
    /// Shows the recipes of a list, all ticked; on import those that were read, any others unticked.
    void loadList(orba::ModuleObject *list);
    /// Imports or exports what is ticked, and closes the dialog when that succeeded.
    void work();

    /// Whether some recipe of the list has that name, to the letter.
    bool hasNode(const QString &name) const;
    /// Removes the first recipe of that name from the list.
    void removeNode(const QString &name);
    /// The next name to try for one that is taken.
    QString getNewName(QString name) const;
    /// Merges one recipe into the list, by the chosen option.
    void importNode(orba::ModuleObject *stack);

    /// Takes the list's last import back after a question; false when the operator did not want it.
    static bool takeBackLastImport(orba::ModuleObject *list);
    /// Why that cannot be done now; empty when it can.
    static QString takeBackProblem(orba::ModuleObject *list);

Q_SIGNALS:
    /// The work succeeded; a sentence for the operator, and whether it can be taken back.
    void worked(const QString &text, bool isUndoable);
    /// The last import was taken back.
    void takenBack();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUp();
    void showDirection();
    void connectControls();
    void fitColumns();
    void toggle(const QModelIndex &index);
    void plan();
    void showState();
    palx::RecipeClash onClash() const;
    void chooseImport();
    void chooseExport();
    void read(const QString &file);
    void importTicked();
    void exportTicked();
    void takeBack();
    void tellFault(const QString &text);
    QString folderPath() const;
    void rememberFolder(const QString &file);

    const bool import_;
    QPointer<orba::ModuleObject> list_;
    std::unique_ptr<Ui::ImExportDialog> ui_;
    ExchangeTableModel *model_;
    std::shared_ptr<orba::ModuleObject> read_; ///< "import": what the file holds
    std::vector<QStringList> added_;           ///< for its recipes
    bool hasFile_ = false;                     ///< the table shows what was read
    bool isWorking_ = false;
    QString file_; ///< that was chosen
};

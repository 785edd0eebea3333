#include "exchange_pictures.h"

#include "stack/recipe_exchange.h"
#include "ui/exchange_table_model.h"
#include "ui/imexportdialog.h"
#include "ui/xfile_dialog.h"
#include "workstation/plugin_node.h"
#include "workstation/progress.h"

#include <QAbstractButton>
#include <QTableView>
#include <QTemporaryDir>

namespace cli {

namespace {

using orba::Name;
using orba::Node;
using Take = std::function<void(QWidget *dialog, const QString &name)>;

/// The first recipes of the panel, one of them twice, one that is new, one of an older version, and one without a name.
Node recipesOfEveryFate()
{
    const Node &list = palx::stacksNode()->node();
    Node file = palx::makeTempList(list, palx::pluginNode()->node().child(u"default"), {true, true, true});
    const auto add = [&file, &list](const char *name, const char *desc) {
        Node *recipe = file.add();
        recipe->assign(*list.at(0));
        recipe->ensureChild(Name(u"name"))->setString(QLatin1String(name));
        recipe->ensureChild(Name(u"desc"))->setString(QLatin1String(desc));
        return recipe;
    };
    add("Crates 600x400", "Six to a layer");
    Node *older = add("Sacks", "Made with an older panel");
    for (const char16_t *key : {u"wobj_margin", u"automatic_stacker", u"bollard", u"use_global_wobj"})
        older->remove(key);
    add("Sacks", "The same name again");
    add("", "Nobody gave it a name");
    return file;
}

ImExportDialog *openDialog(QWidget *window, const char *button)
{
    for (auto *found : window->findChildren<QAbstractButton *>(QLatin1String(button)))
        if (found->isVisible())
            found->click();
    return window->findChild<ImExportDialog *>();
}

void press(const ImExportDialog *dialog, const char *button)
{
    dialog->findChild<QAbstractButton *>(QLatin1String(button))->click();
}

} // namespace

bool showExchange(QWidget *window, const Take &take)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("pallet.xml"));
    palx::NoProgress progress;
    if (!palx::writeExchangeFile(recipesOfEveryFate(), file, progress).isDone())
        return false;
    xFileDialog::setAnswers([file](const FileRequest &) { return QStringList(file); });
    ImExportDialog *dialog = openDialog(window, "btnImport");
    if (dialog) {
        take(dialog, QStringLiteral("import-empty"));
        dialog->openFile();
        take(dialog, QStringLiteral("import-rename"));
        press(dialog, "optReplace");
        Q_EMIT dialog->findChild<QTableView *>()->clicked(
            dialog->findChild<ExchangeTableModel *>()->index(1, ExchangeTableModel::kTick));
        take(dialog, QStringLiteral("import-replace"));
        delete dialog;
        dialog = openDialog(window, "btnExport");
    }
    const bool isShown = dialog != nullptr;
    if (isShown) {
        dialog->openFile();
        take(dialog, QStringLiteral("export"));
        delete dialog;
    }
    xFileDialog::setAnswers(nullptr);
    return isShown;
}

} // namespace cli

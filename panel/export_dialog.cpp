#include "panel/export_dialog.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "ui_export_dialog.h"

#include <QDir>
#include <QFileInfo>

namespace panel {

ExportDialog::ExportDialog(const QStringList &folders, const QString &name, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::ExportDialog>())
{
    ui_->setupUi(this);
    for (const QString &folder : folders)
        ui_->cmbFolder->addItem(QDir::toNativeSeparators(folder), folder);
    ui_->cmbKind->addItem(tr("Table (CSV)"), QStringLiteral(".csv"));
    ui_->cmbKind->addItem(tr("Text"), QStringLiteral(".txt"));
    ui_->edtName->setText(name);
    ui_->edtName->setTextMargins(6, 0, 6, 0);
    connect(ui_->edtName, &QLineEdit::textChanged, this, &ExportDialog::showFile);
    for (QComboBox *choice : {ui_->cmbFolder, ui_->cmbKind})
        connect(choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ExportDialog::showFile);
    connect(ui_->btnOk, &QPushButton::clicked, this, &ExportDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &ExportDialog::reject);
    showFile();
}

ExportDialog::~ExportDialog() = default;

QString ExportDialog::file() const
{
    return QDir(ui_->cmbFolder->currentData().toString())
        .filePath(ui_->edtName->text().trimmed() + ui_->cmbKind->currentData().toString());
}

QString ExportDialog::problem() const
{
    const QString name = ui_->edtName->text().trimmed();
    if (name.isEmpty())
        return tr("The file needs a name.");
    if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return tr("A name has no \"/\" and does not begin with \".\".");
    return QString();
}

void ExportDialog::showFile()
{
    const QString why = problem();
    ui_->lblFile->setText(why.isEmpty() ? file() : why);
    ix::xtheme::setState(ui_->lblFile,
                         why.isEmpty() ? ix::xtheme::State::None : ix::xtheme::State::Attention);
    ui_->btnOk->setEnabled(why.isEmpty());
}

void ExportDialog::accept()
{
    if (!problem().isEmpty())
        return;
    if (QFileInfo::exists(file()) && !nexo::ManagerHelper::instance()->execMsgOk(
                                         tr("Replace the file?"), tr("%1 is there already.").arg(file())))
        return;
    QDialog::accept();
}

} // namespace panel

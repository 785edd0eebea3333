#include "ui/xfile_dialog.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "ui/form_style.h"
#include "ui/name_dialog.h"
#include "ui/xfile_model.h"
#include "ui_xfile_dialog.h"
#include "workstation/medium_choice.h"
#include "workstation/medium_folder.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>

#include <algorithm>

using ix::xtheme::Glyph;
using palx::Medium;

namespace {

/// A label breaks lines only where a text allows it; long file names do not. Breaks without width stand behind every sign
/// and within words that are too long for a line.
QString breakable(const QString &text)
{
    constexpr int kLongest = 24;
    static const QRegularExpression parts(QStringLiteral("[^\\W_]+|."),
                                          QRegularExpression::UseUnicodePropertiesOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    const QChar gap(0x200b);
    QString broken;
    for (auto match = parts.globalMatch(text); match.hasNext();) {
        const QString part = match.next().captured();
        if (part.size() > kLongest)
            for (const QChar letter : part)
                broken += letter.isHighSurrogate() ? QString(letter) : letter + QString(gap);
        else
            broken += part.at(0).isLetterOrNumber() ? part : part + gap;
    }
    return broken.isEmpty() ? text : broken; // no valid text has no parts
}

QString titleOf(const Medium &medium)
{
    const QString disk = medium.model.isEmpty() ? medium.device : medium.model;
    return disk.isEmpty() ? medium.name : QStringLiteral("%1 (%2)").arg(medium.name, disk);
}

} // namespace

xFileDialog::xFileDialog(FileRequest request, const palx::MediaPlaces &places, QWidget *parent)
    : QDialog(parent), request_(std::move(request)), ui_(std::make_unique<Ui::xFileDialog>()), watch_(places),
      model_(new XFileModel(this)), filters_(palx::parseFilters(request_.filter))
{
    ui_->setupUi(this);
    setupTable();
    connectParts();
    fillFilters();
    setTexts();
    ui_->edtName->setText(QFileInfo(request_.start).fileName());
    ui_->edtName->selectAll();
    const bool isSaving = request_.kind == FileRequest::Save;
    ui_->lblName->setVisible(isSaving);
    ui_->edtName->setVisible(isSaving);
    ui_->btnNewFolder->setVisible(isSaving || request_.kind == FileRequest::Folder);
    setFieldMargins(this);
    fillDisks();
    const Medium *held = watch_.plugged().of(request_.start);
    showMedium(held || watch_.plugged().media.isEmpty() ? held : &watch_.plugged().media.first());
    constexpr int kRim = 16; // [px]
    if (parent)
        resize(parent->window()->size() - QSize(2 * kRim, 2 * kRim));
}

xFileDialog::~xFileDialog() = default;

// ---------------------------------------------------------------- making the dialog

void xFileDialog::setupTable()
{
    constexpr int kRow = 56; // [px]
    model_->setOnlyFolders(request_.kind == FileRequest::Folder);
    ui_->tblFiles->setModel(model_);
    constexpr int kShortens = -1; // long names are shortened here and stand whole below
    ::setupTable(ui_->tblFiles, kShortens, false);
    for (const int column : {XFileModel::kChanged, XFileModel::kSize})
        ui_->tblFiles->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    ui_->tblFiles->verticalHeader()->setDefaultSectionSize(kRow);
    ui_->tblFiles->horizontalHeader()->setMinimumHeight(kRow);
    ui_->tblFiles->sortByColumn(XFileModel::kName, Qt::AscendingOrder);
    ui_->tblFiles->setIconSize(QSize(28, 28));
    if (request_.kind == FileRequest::OpenSeveral)
        ui_->tblFiles->setSelectionMode(QAbstractItemView::MultiSelection);
}

void xFileDialog::connectParts()
{
    connect(&watch_, &palx::MediaWatch::changed, this, &xFileDialog::followMedia);
    connect(ui_->cmbDisk, QOverload<int>::of(&QComboBox::activated), this,
            [this](int row) { showMedium(&watch_.plugged().media[row]); });
    connect(ui_->cmbFilter, QOverload<int>::of(&QComboBox::activated), this, [this] { showFolder(folder_); });
    connect(ui_->tblFiles, &QTableView::clicked, this, &xFileDialog::touchRow);
    connect(ui_->tblFiles->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &xFileDialog::showState);
    connect(ui_->edtName, &QLineEdit::textChanged, this, &xFileDialog::showState);
    connect(ui_->btnUp, &QPushButton::clicked, this, &xFileDialog::goUp);
    connect(ui_->btnNewFolder, &QPushButton::clicked, this, &xFileDialog::makeFolder);
    connect(ui_->btnOk, &QPushButton::clicked, this, &xFileDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &xFileDialog::reject);
    ui_->btnUp->setIcon(ix::xtheme::icon(Glyph::Up));
    ui_->btnNewFolder->setIcon(ix::xtheme::icon(Glyph::Add));
    for (QPushButton *button : {ui_->btnUp, ui_->btnNewFolder})
        button->setIconSize(QSize(28, 28));
    ui_->lblNoDiskSign->setPixmap(ix::xtheme::pixmap(Glyph::Save, 96));
}

void xFileDialog::fillFilters()
{
    for (const palx::FileFilter &filter : filters_)
        ui_->cmbFilter->addItem(filter.title);
    ui_->cmbFilter->setVisible(filters_.size() > 1);
}

void xFileDialog::setTexts()
{
    const QString doing[] = {tr("Open"), tr("Open"), tr("Save"), tr("Use this folder")};
    setWindowTitle(request_.caption);
    ui_->lblTitle->setText(request_.caption);
    ui_->btnOk->setText(doing[request_.kind]);
}

// ---------------------------------------------------------------- media

const Medium *xFileDialog::medium() const
{
    const auto &media = watch_.plugged().media;
    const auto found =
        std::find_if(media.begin(), media.end(), [this](const Medium &one) { return one.root == root_; });
    return found == media.end() ? nullptr : found;
}

void xFileDialog::followMedia()
{
    const auto &media = watch_.plugged().media;
    const bool isPulled = !root_.isEmpty() && !medium();
    const QString pulled = QFileInfo(root_).fileName();
    fillDisks();
    if (isPulled || root_.isEmpty())
        showMedium(media.isEmpty() ? nullptr : &media.first());
    if (isPulled)
        notice_ = tr("The disk %1 was pulled out.").arg(pulled);
    showSpace();
    showState();
}

void xFileDialog::fillDisks()
{
    ui_->cmbDisk->clear();
    for (const Medium &one : watch_.plugged().media)
        ui_->cmbDisk->addItem(titleOf(one), one.root);
    ui_->cmbDisk->setCurrentIndex(ui_->cmbDisk->findData(root_));
}

void xFileDialog::showMedium(const Medium *medium)
{
    notice_.clear();
    root_ = medium ? medium->root : QString();
    for (QWidget *part : QList<QWidget *>{ui_->cmbDisk, ui_->barFree})
        part->setVisible(medium);
    ui_->stkBody->setCurrentWidget(medium ? ui_->pagFiles : ui_->pagNoDisk);
    ui_->cmbDisk->setCurrentIndex(ui_->cmbDisk->findData(root_));
    const QString start =
        request_.kind == FileRequest::Save ? QFileInfo(request_.start).path() : request_.start;
    if (medium)
        showFolder(palx::folderOfMedium(root_, start));
    showSpace();
    showState();
    if (request_.kind == FileRequest::Save)
        ui_->edtName->setFocus();
    else
        ui_->tblFiles->setFocus();
}

void xFileDialog::showSpace()
{
    constexpr int kParts = 1000;
    const palx::MediumSpace space = medium() ? palx::spaceOf(*medium()) : palx::MediumSpace();
    const qint64 used = space.total - space.free;
    ui_->barFree->setRange(0, kParts);
    ui_->barFree->setValue(space.total > 0 ? static_cast<int>(double(used) / double(space.total) * kParts)
                                           : 0);
    ui_->barFree->setFormat(tr("%1 free of %2").arg(palx::sizeText(space.free), palx::sizeText(space.total)));
    QStringList help{tr("Its files are shown as soon as it is ready.")};
    for (const QString &disk : watch_.plugged().unreadable)
        help.append(
            tr("The disk %1 is plugged in, but cannot be read. Format it on a PC (FAT32).").arg(disk));
    ui_->lblNoDiskHelp->setText(help.join(QStringLiteral("\n\n")));
}

// ---------------------------------------------------------------- folders

void xFileDialog::showFolder(const QString &folder)
{
    folder_ = palx::folderOfMedium(root_, folder);
    const palx::FolderContents contents = palx::readFolder(root_, folder_, filter());
    problem_ = contents.problem;
    model_->setEntries(contents.entries);
    ui_->btnUp->setEnabled(folder_ != root_);
    ui_->lblPath->setText(breakable(shownPath()));
    showState();
}

/// "DISK > Recipes > 2026"
QString xFileDialog::shownPath() const
{
    QStringList parts = folder_.mid(root_.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.prepend(QFileInfo(root_).fileName());
    return parts.join(QStringLiteral(" \u203a "));
}

void xFileDialog::goUp()
{
    if (folder_ == root_)
        return;
    notice_.clear();
    const QString left = QFileInfo(folder_).fileName();
    showFolder(QFileInfo(folder_).path());
    ui_->tblFiles->scrollTo(model_->index(model_->rowOf(left), XFileModel::kName));
}

void xFileDialog::touchRow(const QModelIndex &index)
{
    if (!index.flags().testFlag(Qt::ItemIsEnabled))
        return;
    notice_.clear();
    const palx::FolderEntry &entry = model_->entry(index.row());
    if (entry.isFolder)
        return showFolder(QDir(folder_).filePath(entry.name));
    if (request_.kind == FileRequest::Save)
        ui_->edtName->setText(entry.name);
    showState();
}

void xFileDialog::makeFolder()
{
    const auto check = [this](const QString &name) {
        return medium() ? palx::newFolderRefusal(*medium(), folder_, name) : notice_;
    };
    NameDialog dialog(tr("New folder"), check, this);
    if (dialog.exec() != Accepted || !medium())
        return;
    const QString folder = QDir(folder_).filePath(dialog.name());
    if (QDir().mkdir(folder))
        return showFolder(folder);
    notice_ = tr("The folder cannot be made.");
    showState();
}

// ---------------------------------------------------------------- the choice

const palx::FileFilter &xFileDialog::filter() const
{
    return filters_[std::max(0, ui_->cmbFilter->currentIndex())];
}

/// As it is typed, without blanks around it, and with the suffix.
QString xFileDialog::fileName() const
{
    return filter().completed(ui_->edtName->text().trimmed());
}

QStringList xFileDialog::selectedFiles() const
{
    QStringList files;
    for (const QModelIndex &index : ui_->tblFiles->selectionModel()->selectedRows())
        if (!model_->entry(index.row()).isFolder)
            files.append(model_->entry(index.row()).name);
    return files;
}

QString xFileDialog::refusal() const
{
    if (!medium())
        return notice_;
    if (request_.kind == FileRequest::Save)
        return palx::fileRefusal(*medium(), folder_, fileName());
    if (request_.kind == FileRequest::Folder)
        return palx::folderRefusal(*medium(), folder_);
    return selectedFiles().isEmpty() ? problem_ : QString();
}

/// What is chosen, whole.
QString xFileDialog::choiceText() const
{
    const QStringList names = selectedFiles();
    if (request_.kind == FileRequest::Folder)
        return shownPath();
    if (request_.kind == FileRequest::Save)
        return replacesFile() ? tr("Replaces %1").arg(fileName()) : fileName();
    if (!names.isEmpty())
        return names.join(QStringLiteral(", "));
    const bool hasFiles = std::any_of(model_->entries().begin(), model_->entries().end(),
                                      [](const palx::FolderEntry &entry) { return !entry.isFolder; });
    return hasFiles ? tr("Touch a file.") : tr("There is no such file in this folder.");
}

void xFileDialog::showState()
{
    const QString reason = refusal();
    const QString why = notice_.isEmpty() ? reason : notice_;
    const bool isOpening = request_.kind == FileRequest::Open || request_.kind == FileRequest::OpenSeveral;
    ui_->lblState->setText(breakable(why.isEmpty() && medium() ? choiceText() : why));
    ix::xtheme::setState(ui_->lblState,
                         why.isEmpty() ? ix::xtheme::State::None : ix::xtheme::State::Attention);
    ui_->btnOk->setEnabled(medium() && (isOpening ? !selectedFiles().isEmpty() : reason.isEmpty()));
    ui_->btnNewFolder->setEnabled(medium() && palx::folderRefusal(*medium(), folder_).isEmpty());
}

bool xFileDialog::replacesFile() const
{
    return request_.kind == FileRequest::Save && QFileInfo::exists(QDir(folder_).filePath(fileName()));
}

bool xFileDialog::mayReplace()
{
    if (!replacesFile())
        return true;
    return nexo::ManagerHelper::instance()->execMsgOk(tr("Replace the file?"),
                                                      tr("%1 is there already.").arg(fileName()));
}

/// A disk may have gone within the last second, or while a question was open.
bool xFileDialog::canStillBeChosen()
{
    watch_.check();
    if (notice_.isEmpty())
        for (const QString &name : selectedFiles())
            if (!QFileInfo(QDir(folder_).filePath(name)).isReadable())
                notice_ = tr("%1 cannot be read.").arg(name);
    showState();
    return notice_.isEmpty() && ui_->btnOk->isEnabled();
}

void xFileDialog::accept()
{
    notice_.clear();
    if (!canStillBeChosen() || !mayReplace() || !canStillBeChosen())
        return;
    QStringList names = selectedFiles();
    if (request_.kind == FileRequest::Save)
        names = QStringList(fileName());
    chosen_ = request_.kind == FileRequest::Folder ? QStringList(folder_) : QStringList();
    for (const QString &name : names)
        chosen_.append(QDir(folder_).filePath(name));
    QDialog::accept();
}

// ---------------------------------------------------------------- events

void xFileDialog::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex row = ui_->tblFiles->currentIndex();
    const bool isInList = focusWidget() == ui_->tblFiles;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isInList && isEnter && row.isValid() && model_->entry(row.row()).isFolder)
        touchRow(row);
    else if (isInList && event->key() == Qt::Key_Backspace)
        goUp();
    else
        QDialog::keyPressEvent(event);
}

void xFileDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const QString name = ui_->edtName->text();
        ui_->retranslateUi(this);
        setTexts();
        ui_->edtName->setText(name);
        showSpace();
        showState();
    }
    QDialog::changeEvent(event);
}

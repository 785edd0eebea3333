#include "ui/xfile_model.h"

#include "ix/xtheme.h"

#include <algorithm>

using palx::EntryOrder;
using palx::FolderEntry;

void XFileModel::setEntries(QVector<FolderEntry> entries)
{
    beginResetModel();
    entries_ = std::move(entries);
    palx::sortEntries(&entries_, order_, direction_);
    endResetModel();
}

int XFileModel::rowOf(const QString &name) const
{
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const FolderEntry &entry) { return entry.name == name; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int XFileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int XFileModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

QVariant XFileModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const FolderEntry &entry = entries_[index.row()];
    if (role == Qt::DisplayRole)
        return text(entry, index.column());
    if (role == Qt::AccessibleTextRole && index.column() == kName)
        return entry.isFolder ? tr("Folder %1").arg(entry.name) : entry.name;
    if (role == Qt::DecorationRole && index.column() == kName && entry.isFolder)
        return ix::xtheme::icon(ix::xtheme::Glyph::Open);
    if (role == Qt::TextAlignmentRole && index.column() == kSize)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QString XFileModel::text(const FolderEntry &entry, int column) const
{
    if (column == kName)
        return entry.name;
    if (column == kChanged)
        return entry.changed.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    return entry.isFolder ? QString() : palx::sizeText(entry.bytes);
}

QVariant XFileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QStringList titles{tr("Name"), tr("Changed"), tr("Size")};
    return titles.value(section);
}

Qt::ItemFlags XFileModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || (onlyFolders_ && !entries_[index.row()].isFolder))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

void XFileModel::sort(int column, Qt::SortOrder direction)
{
    constexpr EntryOrder kOrders[] = {EntryOrder::Name, EntryOrder::Date, EntryOrder::Size};
    order_ = kOrders[column];
    direction_ = direction;
    setEntries(std::move(entries_));
}

#pragma once

#include "workstation/medium_folder.h"

#include <QAbstractTableModel>

/// What a file dialog lists of a folder. Sorted by the column that was asked for last.
class XFileModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kName, kChanged, kSize, kColumns };

    using QAbstractTableModel::QAbstractTableModel;

    /// With `onlyFolders` files are shown but cannot be chosen.
    void setOnlyFolders(bool onlyFolders) { onlyFolders_ = onlyFolders; }
    void setEntries(QVector<palx::FolderEntry> entries);
    const QVector<palx::FolderEntry> &entries() const { return entries_; }
    const palx::FolderEntry &entry(int row) const { return entries_[row]; }
    /// Of a name; -1 when it is not listed.
    int rowOf(const QString &name) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    void sort(int column, Qt::SortOrder direction = Qt::AscendingOrder) override;

private:
    QString text(const palx::FolderEntry &entry, int column) const;

    QVector<palx::FolderEntry> entries_;
    palx::EntryOrder order_ = palx::EntryOrder::Name;
    Qt::SortOrder direction_ = Qt::AscendingOrder;
    bool onlyFolders_ = false;
};

#pragma once

#include "orba/module_object.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QVector>

namespace panel {

/// A record of the operator's log.
struct LogRecord
{
    QString level; ///< "error", "warning" or "info"
    QString time;  ///< "yyyy-MM-dd HH:mm:ss", as the robot's panel showed it
    QString title;
    QString robot; ///< id of the robot that was connected then

    bool operator==(const LogRecord &other) const
    {
        return level == other.level && time == other.time && title == other.title && robot == other.robot;
    }
};

/// The records of a list such as "quill.log.list", oldest first there, newest first here. Follows the list once per turn
/// of the event loop, however many records came.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Level, Time, Title, Robot };

    explicit LogModel(orba::ModuleObject *list, QObject *parent = nullptr);

    const LogRecord &record(int row) const { return records_[row]; }
    static QString levelTitle(const QString &level);
    void retranslate();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Reads the list now.
    void refresh();

private:
    void refreshSoon();

    QPointer<orba::ModuleObject> list_;
    QVector<LogRecord> records_; ///< newest first
    bool isDue_ = false;
};

/// Lets through the records of some levels whose title or robot holds a text.
class LogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// Empty: all levels.
    void setLevels(const QStringList &levels);
    void setText(const QString &text);
    /// What is let through, newest first.
    QVector<LogRecord> records() const;
    const LogRecord &record(const QModelIndex &row) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    const LogModel *model() const { return static_cast<const LogModel *>(sourceModel()); }

    QStringList levels_;
    QString text_;
};

} // namespace panel

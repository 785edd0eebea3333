#include "panel/log_model.h"

#include "panel/level_look.h"

#include <QTimer>

#include <algorithm>

namespace panel {

namespace {

QVector<LogRecord> readRecords(const orba::Node &list)
{
    QVector<LogRecord> records;
    records.reserve(list.size());
    for (int i = list.size() - 1; i >= 0; --i) {
        const orba::Node *node = list.at(i);
        if (!node)
            continue;
        QString time = node->getString(u"date_time");
        records.append({node->getString(u"level"), time.replace(QLatin1Char('/'), QLatin1Char(' ')),
                        node->getString(u"title"), node->getString(u"rcid")});
    }
    return records;
}

/// How many new records stand before those that were there: the fewest with which the rest agrees. Old ones may have
/// gone from the end.
int newRecords(const QVector<LogRecord> &was, const QVector<LogRecord> &is)
{
    for (int count = std::max(0, is.size() - was.size()); count < is.size(); ++count)
        if (std::equal(is.begin() + count, is.end(), was.begin()))
            return count;
    return is.size();
}

} // namespace

LogModel::LogModel(orba::ModuleObject *list, QObject *parent) : QAbstractTableModel(parent), list_(list)
{
    connect(list, &orba::ModuleObject::structureChanged, this, &LogModel::refreshSoon);
    refresh();
}

void LogModel::refreshSoon()
{
    if (std::exchange(isDue_, true))
        return;
    QTimer::singleShot(0, this, &LogModel::refresh);
}

void LogModel::refresh()
{
    isDue_ = false;
    const QVector<LogRecord> read = list_ ? readRecords(list_->node()) : QVector<LogRecord>();
    const int added = newRecords(records_, read);
    const int kept = read.size() - added;
    if (kept < records_.size()) {
        beginRemoveRows(QModelIndex(), kept, records_.size() - 1);
        records_.resize(kept);
        endRemoveRows();
    }
    if (added > 0) {
        beginInsertRows(QModelIndex(), 0, added - 1);
        records_ = read;
        endInsertRows();
    }
}

QString LogModel::levelTitle(const QString &level)
{
    if (level == QLatin1String("error"))
        return tr("Error");
    return level == QLatin1String("warning") ? tr("Warning") : tr("Note");
}

void LogModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (!records_.isEmpty())
        Q_EMIT dataChanged(index(0, Level), index(records_.size() - 1, Level));
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : records_.size();
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Robot + 1;
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= records_.size())
        return QVariant();
    const LogRecord &found = records_[index.row()];
    if (role == Qt::DecorationRole && index.column() == Level)
        return levelIcon(found.level, false);
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (index.column()) {
    case Level:
        return levelTitle(found.level);
    case Time:
        return found.time;
    case Title:
        return found.title.simplified();
    default:
        return found.robot;
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return QStringList({tr("Level"), tr("Time"), tr("Message"), tr("Robot")}).value(section);
}

void LogFilter::setLevels(const QStringList &levels)
{
    levels_ = levels;
    invalidateFilter();
}

void LogFilter::setText(const QString &text)
{
    text_ = text.trimmed();
    invalidateFilter();
}

QVector<LogRecord> LogFilter::records() const
{
    QVector<LogRecord> found;
    for (int row = 0; row < rowCount(); ++row)
        found.append(record(index(row, 0)));
    return found;
}

const LogRecord &LogFilter::record(const QModelIndex &row) const
{
    return model()->record(mapToSource(row).row());
}

bool LogFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    const LogRecord &found = model()->record(row);
    const bool isKnown = found.level == QLatin1String("error") || found.level == QLatin1String("warning");
    const QString level = isKnown ? found.level : QStringLiteral("info");
    return (levels_.isEmpty() || levels_.contains(level)) &&
           (text_.isEmpty() || found.title.contains(text_, Qt::CaseInsensitive) ||
            found.robot.contains(text_, Qt::CaseInsensitive));
}

} // namespace panel

#include "panel/cell_tables.h"

#include <QCoreApplication>

#include <algorithm>

namespace panel {

using ix::xtheme::State;
using orba::Node;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(panel::CellTable)
};

QString fileAndLine(const Node &record)
{
    const QString file = record.getString(u"file");
    return file.isEmpty() ? QString() : QStringLiteral("%1:%2").arg(file).arg(record.getInt(u"line"));
}

/// The controller's word for what a task does, in the operator's language.
QString activityText(const QString &state)
{
    const struct
    {
        const char *state, *text;
    } known[] = {{"running", QT_TRANSLATE_NOOP("panel::CellTable", "runs")},
                 {"waiting", QT_TRANSLATE_NOOP("panel::CellTable", "waits")},
                 {"moving", QT_TRANSLATE_NOOP("panel::CellTable", "moves")},
                 {"paused", QT_TRANSLATE_NOOP("panel::CellTable", "paused")},
                 {"ended", QT_TRANSLATE_NOOP("panel::CellTable", "ended")},
                 {"failed", QT_TRANSLATE_NOOP("panel::CellTable", "failed")}};
    for (const auto &each : known)
        if (state == QLatin1String(each.state))
            return Text::tr(each.text);
    return state;
}

template <class MakeRow> QVector<CellRow> rowsOf(const Node *list, MakeRow makeRow)
{
    QVector<CellRow> rows;
    for (int i = 0; list && i < list->size(); ++i)
        if (const Node *record = list->at(i))
            rows.append(makeRow(*record));
    return rows;
}

} // namespace

bool operator==(const CellRow &a, const CellRow &b)
{
    return a.cells == b.cells && a.key == b.key && a.state == b.state;
}

void CellTable::setTitles(const QStringList &titles)
{
    const bool isOther = titles.size() != titles_.size();
    if (isOther)
        beginResetModel();
    titles_ = titles;
    if (isOther)
        endResetModel();
    else if (!titles.isEmpty())
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, titles.size() - 1);
}

void CellTable::setRows(const QVector<CellRow> &rows)
{
    if (rows.size() != rows_.size()) {
        beginResetModel();
        rows_ = rows;
        endResetModel();
        return;
    }
    for (int i = 0; i < rows.size(); ++i) {
        if (rows[i] == rows_[i])
            continue;
        rows_[i] = rows[i];
        Q_EMIT dataChanged(index(i, 0), index(i, columnCount() - 1));
    }
}

int CellTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows_.size();
}

int CellTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : titles_.size();
}

QVariant CellTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows_.size())
        return QVariant();
    const CellRow &row = rows_[index.row()];
    if (role == Qt::DisplayRole)
        return row.cells.value(index.column());
    if (row.state == State::None)
        return QVariant();
    if (role == Qt::BackgroundRole)
        return ix::xtheme::color(row.state);
    return role == Qt::ForegroundRole ? QVariant(ix::xtheme::textColor(row.state)) : QVariant();
}

QVariant CellTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return titles_.value(section);
}

QVector<CellRow> taskRows(const Node &cell)
{
    return rowsOf(cell.find(u"tasks"), [](const Node &task) {
        const QString state = task.getString(u"state");
        const QString name = task.getString(u"name");
        return CellRow{{name, activityText(state), fileAndLine(task), task.getString(u"procedure")},
                       name,
                       state == QLatin1String("failed") ? State::Fault : State::None};
    });
}

QVector<CellRow> signalRows(const Node &cell)
{
    return rowsOf(cell.find(u"signals"), [](const Node &signal) {
        const QString name = signal.getString(u"name");
        const bool on = signal.getBool(u"on");
        return CellRow{{name, signal.getString(u"text"), on ? Text::tr("on") : QString(QChar(0x2013))},
                       name,
                       on ? State::Running : State::None};
    });
}

QVector<CellRow> violationRows(const Node &cell)
{
    QVector<CellRow> rows = rowsOf(cell.find(u"violations"), [](const Node &violation) {
        const QString at =
            QStringLiteral("%1 / %2").arg(violation.getInt(u"layer")).arg(violation.getInt(u"piece"));
        const auto twoLines = [](const QString &upper, const QString &lower) {
            return lower.isEmpty() ? upper : upper + QLatin1Char('\n') + lower;
        };
        return CellRow{{twoLines(violation.getString(u"task"), fileAndLine(violation)), at,
                        twoLines(violation.getString(u"first"), violation.getString(u"second"))},
                       violation.getString(u"what"),
                       State::None};
    });
    std::reverse(rows.begin(), rows.end());
    return rows;
}

QVector<CellRow> variableRows(const Node &list, const QString &search)
{
    QVector<CellRow> rows;
    for (int i = 0; i < list.size(); ++i) {
        const Node *variable = list.at(i);
        const QString name = variable ? variable->getString(u"name") : QString();
        const QString found =
            name + QLatin1Char('\n') + (variable ? variable->getString(u"description") : QString());
        if (name.isEmpty() || !found.contains(search, Qt::CaseInsensitive))
            continue;
        const QString type = variable->getString(u"type");
        rows.append({{name, variable->getString(u"value.#0"),
                      variable->getBool(u"pers") ? type : QLatin1Char('(') + type + QLatin1Char(')')},
                     name,
                     State::None});
    }
    return rows;
}

Node variableValue(const QString &type, const QString &text)
{
    Node value;
    bool isNumber = false;
    const QString word = text.trimmed();
    const double number = QString(word).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    const qint64 whole = word.toLongLong();
    const bool isTruth = word == QLatin1String("true") || word == QLatin1String("false");
    if (type == QLatin1String("bool") && isTruth)
        value.setBool(word == QLatin1String("true"));
    else if (isNumber && type == QLatin1String("double"))
        value.setDouble(number);
    else if (isNumber && QString::number(whole) == word &&
             (type == QLatin1String("int") || type == QLatin1String("bool")))
        value.setInt(whole);
    else
        value.setString(text);
    return value;
}

} // namespace panel

#include "ui/point_table_model.h"

namespace {

constexpr double kMmPerM = 1000.0;
constexpr double kDegPerRad = 57.29577951308232;

const orba::Node *putList(const orba::Node *stack)
{
    return stack ? stack->find(u"points.put") : nullptr;
}

} // namespace

QStringList PointTableModel::putPoints()
{
    return {QStringLiteral("enter_p"), QStringLiteral("ready_p"),   QStringLiteral("approach_p"),
            QStringLiteral("put_p"),   QStringLiteral("retract_p"), QStringLiteral("exit_p")};
}

QStringList PointTableModel::getPoints()
{
    return {QStringLiteral("enter_p"), QStringLiteral("ready_p"), QStringLiteral("approach_p"),
            QStringLiteral("get_p"), QStringLiteral("retract_p")};
}

QString PointTableModel::pointTitle(const QString &key)
{
    static const struct
    {
        const char *key;
        const char *title;
    } kTitles[] = {{"enter_p", QT_TR_NOOP("Enter")},       {"ready_p", QT_TR_NOOP("Ready")},
                   {"approach_p", QT_TR_NOOP("Approach")}, {"put_p", QT_TR_NOOP("Place")},
                   {"get_p", QT_TR_NOOP("Pick")},          {"retract_p", QT_TR_NOOP("Retract")},
                   {"exit_p", QT_TR_NOOP("Exit")}};
    for (const auto &entry : kTitles) {
        if (key == QLatin1String(entry.key))
            return tr(entry.title);
    }
    return key;
}

void PointTableModel::setFilter(int layer, const QString &point)
{
    layer_ = layer;
    key_ = point;
    refresh();
}

int PointTableModel::layerCount() const
{
    const orba::Node *layers = putList(stack());
    return layers ? layers->size() : 0;
}

void PointTableModel::addRows(int layer, int item, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (key_.isEmpty() || key == key_)
            rows_.append({layer, item, key});
    }
}

/// The pick side's taught points are there before anything was generated; they count with the generated ones
/// only.
int PointTableModel::readRows()
{
    rows_.clear();
    const orba::Node *layers = putList(stack());
    const int count = layers ? layers->size() : 0;
    const orba::Node *get = stack() ? stack()->child(u"get") : nullptr;
    if (get && get->has(u"ready_p.trans") && (layer_ == kAll || layer_ == kPickSide))
        addRows(kPickSide, 0, getPoints());
    static const QStringList keys = putPoints();
    for (int i = 0; i < count; ++i) {
        const orba::Node *layer = layer_ == kAll || layer_ == i ? layers->at(i) : nullptr;
        for (int j = 0; layer && j < layer->size(); ++j)
            addRows(i, j, keys);
    }
    return rows_.size();
}

const orba::Node *PointTableModel::point(const Row &row) const
{
    if (row.layer == kPickSide)
        return stack() ? stack()->find(QString(QStringLiteral("get.") + row.key)) : nullptr;
    const orba::Node *layers = putList(stack());
    const orba::Node *layer = layers ? layers->at(row.layer) : nullptr;
    const orba::Node *item = layer ? layer->at(row.item) : nullptr;
    return item ? item->child(QStringView(row.key)) : nullptr;
}

QString PointTableModel::pointPath(int row) const
{
    const orba::Node *record = row >= 0 && row < rows_.size() ? point(rows_[row]) : nullptr;
    return record ? record->pathFrom(*stack()) : QString();
}

QStringList PointTableModel::columns() const
{
    const QString degree(QChar(0x00B0));
    return {tr("Layer"),
            tr("Item"),
            tr("Point"),
            tr("X\nmm"),
            tr("Y\nmm"),
            tr("Z\nmm"),
            QStringLiteral("A\n") + degree,
            QStringLiteral("B\n") + degree,
            QStringLiteral("C\n") + degree};
}

QString PointTableModel::text(int row, int column) const
{
    const Row &at = rows_[row];
    if (column == 0)
        return at.layer == kPickSide ? tr("Pick") : QString::number(at.layer + 1);
    if (column == 1)
        return at.layer == kPickSide ? QString() : QString::number(at.item + 1);
    if (column == 2)
        return pointTitle(at.key);
    const orba::Node *record = point(at);
    const bool trans = column < 6;
    const orba::Node *list = record ? record->child(trans ? u"trans" : u"rot") : nullptr;
    if (!list)
        return QString();
    const double value = list->number(trans ? column - 3 : column - 6);
    return QString::number(value * (trans ? kMmPerM : kDegPerRad), 'f', trans ? 2 : 3);
}

QString PointTableModel::toText() const
{
    QStringList lines{columns().join(QLatin1Char('\t')).replace(QLatin1Char('\n'), QLatin1Char(' '))};
    lines.reserve(rows_.size() + 1);
    for (int row = 0; row < rows_.size(); ++row) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column)
            cells << text(row, column);
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

#include "ui/recipe_tables.h"

#include "stack/recipe_patterns.h"

#include <QCoreApplication>

QString shownPattern(const QString &pattern)
{
    if (pattern == palx::kSheetPattern)
        return LayerTableModel::tr("Separator sheet");
    if (pattern == palx::kEmptyPattern)
        return LayerTableModel::tr("Empty (end of stack)");
    return pattern.isEmpty() ? LayerTableModel::tr("(none)") : pattern;
}

QString shownDirection(const QString &direction)
{
    static const char *const kTexts[] = {QT_TRANSLATE_NOOP("ItemTableModel", "Top"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Bottom"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Left"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Right"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Top left"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Top right"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Bottom left"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Bottom right"),
                                         QT_TRANSLATE_NOOP("ItemTableModel", "Middle")};
    const int index = palx::directionNames().indexOf(palx::directionName(direction));
    return index < 0 ? direction : ItemTableModel::tr(kTexts[index]);
}

int LayerTableModel::readRows()
{
    layers_ = stack() ? palx::layerFacts(*stack()) : QVector<palx::LayerFacts>();
    return layers_.size();
}

Qt::ItemFlags LayerTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = RecordTableModel::flags(index);
    return index.column() == kPattern ? flags | Qt::ItemIsEditable : flags;
}

QVariant LayerTableModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::EditRole && index.column() == kPattern && index.row() < layers_.size())
        return layers_[index.row()].pattern;
    return RecordTableModel::data(index, role);
}

bool LayerTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QString pattern = value.toString();
    if (!stackMobj() || role != Qt::EditRole || index.column() != kPattern ||
        !palx::setLayerPattern(stackMobj(), index.row(), pattern))
        return false;
    refresh();
    return true;
}

QStringList LayerTableModel::columns() const
{
    return {tr("Layer"), tr("Pattern"), tr("Boxes"), tr("From\nmm"), tr("To\nmm")};
}

QString LayerTableModel::text(int row, int column) const
{
    const palx::LayerFacts &layer = layers_[row];
    const bool counts = layer.reached && layer.pattern != palx::kEmptyPattern;
    switch (column) {
    case 0:
        return QString::number(row + 1);
    case kPattern:
        return shownPattern(layer.pattern);
    case 2:
        return counts && layer.pattern != palx::kSheetPattern ? QString::number(layer.products) : QString();
    case 3:
        return counts ? shownNumber(layer.bottomMm) : QString();
    case 4:
        return counts ? shownNumber(layer.topMm) : QString();
    default:
        return QString();
    }
}

void ItemTableModel::setPattern(const QString &name)
{
    name_ = name;
    refresh();
}

const orba::Node *ItemTableModel::pattern() const
{
    const orba::Node *patterns = stack() ? stack()->child(u"patterns") : nullptr;
    return patterns ? patterns->child(QStringView(name_)) : nullptr;
}

int ItemTableModel::readRows()
{
    return pattern() ? pattern()->size() : 0;
}

QStringList ItemTableModel::columns() const
{
    return {tr("No."), tr("x\nmm"), tr("y\nmm"), tr("Turn"), tr("Direction")};
}

QString ItemTableModel::text(int row, int column) const
{
    static const char *const kKeys[] = {"index", "x", "y", "r", "direction"};
    const orba::Node *item = pattern() ? pattern()->at(row) : nullptr;
    if (!item)
        return QString();
    const orba::Path key(kKeys[column]);
    if (column == kDirection)
        return shownDirection(item->getString(key));
    return shownNumber(item->getDouble(key), 2) + (column == 3 ? QString(QChar(0x00B0)) : QString());
}

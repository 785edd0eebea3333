#include "pattern/rules/pattern_items.h"

#include <cmath>
#include <tuple>

namespace palx {

namespace {

using orba::Node;

double clamped(double value, double low, double high, ItemFault fault, ItemFaults *faults)
{
    if (value >= low && value <= high)
        return value;
    *faults |= fault;
    return value < low ? low : high;
}

double readPosition(const Node &record, QStringView key, ItemFaults *faults)
{
    const double value = readMm(record, key, 0, faults);
    return clamped(value, -kMaxPositionMm, kMaxPositionMm, ItemFault::ClampedPosition, faults);
}

double readSize(const Node &record, QStringView key, double def, ItemFaults *faults)
{
    return clamped(readMm(record, key, def, faults), kMinItemMm, kMaxItemMm, ItemFault::ClampedSize, faults);
}

/// Offsets came later than the other keys: without them an item is whole and means no offset.
double readOffset(const Node &record, QStringView key, ItemFaults *faults)
{
    if (!record.has(key))
        return 0;
    const double value = readMm(record, key, 0, faults);
    return clamped(value, -kMaxPositionMm, kMaxPositionMm, ItemFault::ClampedOffset, faults);
}

int boundedInt(qint64 value)
{
    constexpr qint64 limit = 1000000; // a number that still can be written on a box
    return static_cast<int>(qBound(-limit, value, limit));
}

void readDirection(const Node &record, PatternItem *item)
{
    item->directionText = record.getString(u"direction", QStringLiteral("Middle"));
    bool known = true;
    item->direction = directionFromName(item->directionText, &known);
    item->faults.setFlag(ItemFault::UnknownDirection, !known);
}

PatternItem readItem(const Node &record, int place, double defaultW, double defaultH)
{
    PatternItem item;
    item.x = readPosition(record, u"x", &item.faults);
    item.y = readPosition(record, u"y", &item.faults);
    item.w = readSize(record, u"w", defaultW, &item.faults);
    item.h = readSize(record, u"h", defaultH, &item.faults);
    item.r = static_cast<int>(record.getInt(u"r") % 360);
    item.index = boundedInt(record.getInt(u"index", place));
    item.orient = boundedInt(record.getInt(u"orient"));
    item.dx = readOffset(record, u"dx", &item.faults);
    item.dy = readOffset(record, u"dy", &item.faults);
    item.dz = readOffset(record, u"dz", &item.faults);
    readDirection(record, &item);
    item.faults.setFlag(ItemFault::NumberOutOfOrder, item.index != place);
    return item;
}

bool isNumber(const Node &node, double *value)
{
    bool ok = node.kind() == Node::Kind::Int || node.kind() == Node::Kind::Double;
    *value = ok ? node.toDouble() : node.toString().toDouble(&ok);
    return ok && std::isfinite(*value);
}

} // namespace

Direction directionFromName(const QString &name, bool *known)
{
    const int index = directionNames().indexOf(name);
    if (known)
        *known = index >= 0 || name == QStringLiteral("middle");
    return index >= 0 ? static_cast<Direction>(index) : Direction::Middle;
}

bool operator==(const PatternItem &a, const PatternItem &b)
{
    const auto all = [](const PatternItem &i) {
        return std::tie(i.x, i.y, i.w, i.h, i.r, i.index, i.orient, i.directionText, i.dx, i.dy, i.dz);
    };
    return all(a) == all(b) && a.direction == b.direction && a.faults == b.faults;
}

double readMm(const Node &record, QStringView key, double def, ItemFaults *faults)
{
    const Node *node = record.child(key);
    double value = def;
    const bool usable = node && isNumber(*node, &value);
    if (faults && !usable)
        *faults |= node && !node->isNull() ? ItemFault::BadValue : ItemFault::MissingValue;
    return usable ? value : def;
}

QVector<PatternItem> readPatternItems(const Node &pattern, double defaultW, double defaultH)
{
    static const Node blank{}; // an element that is no record: everything about it is missing
    const int count = qMin(pattern.size(), kMaxShownItems);
    QVector<PatternItem> items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        const Node *record = pattern.at(i);
        items.append(readItem(record ? *record : blank, i + 1, defaultW, defaultH));
    }
    return items;
}

Node *appendPatternItem(Node &pattern, const PatternItem &item)
{
    Node *record = pattern.add();
    if (!record)
        return nullptr;
    const auto put = [record](const char16_t *key, const QVariant &value) {
        record->ensureChild(orba::Name(key))->set(QStringView(), value);
    };
    put(u"x", item.x);
    put(u"y", item.y);
    put(u"w", item.w);
    put(u"h", item.h);
    put(u"r", item.r);
    put(u"index", item.index);
    put(u"orient", item.orient);
    put(u"direction", item.directionText);
    put(u"dx", item.dx);
    put(u"dy", item.dy);
    put(u"dz", item.dz);
    return record;
}

} // namespace palx

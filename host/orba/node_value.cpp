// Paths and scalar values of a node: how they are found, converted and written.

#include "orba/node.h"
#include "orba/node_storage.h"

#include <QVariantList>

#include <cmath>
#include <cstring>
#include <limits>

namespace orba {

namespace {

/// "#n" as n, or -1.
int elementIndex(QStringView key)
{
    constexpr int kMaxDigits = 9; // stays inside int
    if (key.size() < 2 || key.size() > kMaxDigits + 1 || key[0] != QLatin1Char('#'))
        return -1;
    int index = 0;
    for (int i = 1; i < key.size(); ++i) {
        const int digit = key[i].unicode() - '0';
        if (digit < 0 || digit > 9)
            return -1;
        index = index * 10 + digit;
    }
    return index;
}

/// Cuts the first key off a path; `rest` is null after the last.
QStringView nextKey(QStringView &rest)
{
    const QChar *text = rest.data();
    for (int i = 0; i < rest.size(); ++i) {
        if (text[i] == QLatin1Char('.')) {
            const QStringView key = rest.left(i);
            rest = rest.mid(i + 1);
            return key;
        }
    }
    const QStringView key = rest;
    rest = QStringView();
    return key;
}

/// Truncates towards zero and stays in range.
qint64 truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    if (value >= kLimit)
        return std::numeric_limits<qint64>::max();
    if (value <= -kLimit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(value);
}

bool textToBool(const QString &text)
{
    return !text.isEmpty() && text != QLatin1String("0") &&
           text.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
}

} // namespace

// ---------------------------------------------------------------- paths

Node::Place Node::locate(QStringView path) const
{
    auto *node = const_cast<Node *>(this);
    QStringView rest = path;
    if (path.isEmpty())
        return {node, -1};
    bool last = false;
    while (!last) {
        const QStringView key = nextKey(rest);
        last = rest.data() == nullptr;
        const int index = elementIndex(key);
        if (index >= 0 && node->packed_)
            return last && index < node->size() ? Place{node, index} : Place{};
        node = const_cast<Node *>(index >= 0 ? static_cast<const Node *>(node)->at(index)
                                             : static_cast<const Node *>(node)->child(key));
        if (!node)
            return {};
    }
    return {node, -1};
}

Node *Node::find(QStringView path)
{
    const Place place = locate(path);
    return place.node && place.element >= 0 ? place.node->at(place.element) : place.node;
}

const Node *Node::find(QStringView path) const
{
    const Place place = locate(path);
    return place.element >= 0 ? nullptr : place.node;
}

bool Node::has(QStringView path) const
{
    return locate(path).node != nullptr;
}

Node *Node::ensure(QStringView path)
{
    if (path.isEmpty())
        return this;
    Node *node = this;
    QStringView rest = path;
    bool last = false;
    while (!last && node) {
        const QStringView key = nextKey(rest);
        last = rest.data() == nullptr;
        const int index = elementIndex(key);
        if (index > kMaxEnsureIndex)
            return nullptr;
        if (index < 0) {
            Node *known = node->child(key);
            node = known ? known : node->add(Name(key));
            continue;
        }
        while (node && node->size() <= index)
            if (!node->add())
                return nullptr;
        node = node->at(index);
    }
    return node;
}

// ---------------------------------------------------------------- reading

QVariant Node::value() const
{
    switch (kind_) {
    case Kind::Bool:
        return bool_;
    case Kind::Int:
        return int_;
    case Kind::Double:
        return double_;
    case Kind::String:
        return *string_;
    default:
        return QVariant();
    }
}

bool Node::toBool(bool def) const
{
    switch (kind_) {
    case Kind::Null:
        return def;
    case Kind::Bool:
        return bool_;
    case Kind::Int:
        return int_ != 0;
    case Kind::Double:
        return double_ != 0;
    case Kind::String:
        return textToBool(*string_);
    default:
        return false;
    }
}

qint64 Node::toInt(qint64 def) const
{
    switch (kind_) {
    case Kind::Null:
        return def;
    case Kind::Bool:
        return bool_ ? 1 : 0;
    case Kind::Int:
        return int_;
    case Kind::Double:
        return truncated(double_);
    case Kind::String:
        return string_->toLongLong();
    default:
        return 0;
    }
}

double Node::toDouble(double def) const
{
    switch (kind_) {
    case Kind::Null:
        return def;
    case Kind::Bool:
        return bool_ ? 1 : 0;
    case Kind::Int:
        return static_cast<double>(int_);
    case Kind::Double:
        return double_;
    case Kind::String:
        return string_->toDouble();
    default:
        return 0;
    }
}

QString Node::toString(const QString &def) const
{
    if (kind_ == Kind::String)
        return *string_;
    return isNull() ? def : value().toString();
}

QVariant Node::value(QStringView path) const
{
    const Place place = locate(path);
    if (!place.node)
        return QVariant();
    if (place.element < 0)
        return place.node->value();
    const qint64 *ints = place.node->packedInts();
    return ints ? QVariant(ints[place.element]) : QVariant(place.node->packedDoubles()[place.element]);
}

bool Node::getBool(QStringView path, bool def) const
{
    const Place place = locate(path);
    if (place.element >= 0)
        return place.node->number(place.element) != 0;
    return place.node ? place.node->toBool(def) : def;
}

qint64 Node::getInt(QStringView path, qint64 def) const
{
    const Place place = locate(path);
    if (place.element >= 0) {
        const qint64 *ints = place.node->packedInts();
        return ints ? ints[place.element] : truncated(place.node->packedDoubles()[place.element]);
    }
    return place.node ? place.node->toInt(def) : def;
}

double Node::getDouble(QStringView path, double def) const
{
    const Place place = locate(path);
    if (place.element >= 0)
        return place.node->number(place.element, def);
    return place.node ? place.node->toDouble(def) : def;
}

QString Node::getString(QStringView path, const QString &def) const
{
    const Place place = locate(path);
    if (place.element >= 0)
        return value(path).toString();
    return place.node ? place.node->toString(def) : def;
}

// ---------------------------------------------------------------- writing

bool Node::overwritable() const
{
    return !isContainer() || size() == 0;
}

bool Node::setNull()
{
    if (isNull() || !overwritable())
        return false;
    reset(Kind::Null);
    return true;
}

bool Node::setBool(bool value)
{
    if ((kind_ == Kind::Bool && bool_ == value) || !overwritable())
        return false;
    release();
    kind_ = Kind::Bool;
    bool_ = value;
    markChanged();
    return true;
}

bool Node::setInt(qint64 value)
{
    if ((kind_ == Kind::Int && int_ == value) || !overwritable())
        return false;
    if (kind_ != Kind::Int)
        release();
    kind_ = Kind::Int;
    int_ = value;
    markChanged();
    return true;
}

bool Node::setDouble(double value)
{
    // Compared by bits: 0.0 and -0.0 differ, a NaN equals itself.
    if ((kind_ == Kind::Double && std::memcmp(&double_, &value, sizeof value) == 0) || !overwritable())
        return false;
    if (kind_ != Kind::Double)
        release();
    kind_ = Kind::Double;
    double_ = value;
    markChanged();
    return true;
}

bool Node::setString(const QString &value)
{
    if (kind_ == Kind::String) {
        if (*string_ == value)
            return false;
        *string_ = value;
    } else if (overwritable()) {
        release();
        string_ = new QString(value);
        kind_ = Kind::String;
    } else {
        return false;
    }
    markChanged();
    return true;
}

bool Node::setValue(const QVariant &value)
{
    switch (static_cast<int>(value.type())) {
    case QMetaType::UnknownType:
        return setNull();
    case QMetaType::Bool:
        return setBool(value.toBool());
    case QMetaType::Double:
    case QMetaType::Float:
        return setDouble(value.toDouble());
    case QMetaType::ULongLong:
        if (value.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))
            return setDouble(value.toDouble());
        return setInt(value.toLongLong());
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        Node list;
        list.reset(Kind::List);
        for (const QVariant &element : value.toList())
            list.add()->setValue(element);
        list.pack();
        if (*this == list)
            return false;
        assign(list);
        return true;
    }
    default:
        break;
    }
    bool isInteger = false;
    const qint64 integer = value.type() == QVariant::String ? 0 : value.toLongLong(&isInteger);
    return isInteger && value.type() != QVariant::ByteArray ? setInt(integer) : setString(value.toString());
}

bool Node::set(QStringView path, double value)
{
    const Place place = locate(path);
    if (!place.node)
        return false;
    if (place.element < 0)
        return place.node->setDouble(value);
    const double old = place.node->number(place.element);
    const bool same = place.node->isPackedDoubles() && std::memcmp(&old, &value, sizeof value) == 0;
    return !same && place.node->setNumber(place.element, value);
}

bool Node::set(QStringView path, const QVariant &value)
{
    if (value.type() == QVariant::Double)
        return set(path, value.toDouble());
    const Place place = locate(path);
    if (!place.node)
        return false;
    if (place.element < 0)
        return place.node->setValue(value);
    if (this->value(path) == value && this->value(path).type() == value.type())
        return false;
    return place.node->at(place.element)->setValue(value);
}

} // namespace orba

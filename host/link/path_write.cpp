#include "link/path_write.h"

#include <QList>

#include <algorithm>

namespace host {

using orba::Node;

namespace {

bool isIndex(QStringView key)
{
    return key.startsWith(QLatin1Char('#'));
}

/// "#n" as n, or -1.
int indexOf(QStringView key)
{
    const QStringView digits = key.mid(1);
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    bool isNumber = false;
    const int index = digits.toInt(&isNumber); // takes signs and blanks, too
    return isNumber && std::all_of(digits.begin(), digits.end(), isDigit) ? index : -1;
}

/// Whether a node of that many children can get this one as its next.
bool fits(QStringView key, int size)
{
    return !key.isEmpty() && (!isIndex(key) || indexOf(key) == size);
}

bool canGrow(const Node &node, const QList<QStringView> &keys, int from)
{
    if ((!node.isNull() && !node.isContainer()) || !fits(keys[from], node.size()))
        return false;
    for (int i = from + 1; i < keys.size(); ++i)
        if (!fits(keys[i], 0))
            return false;
    return true;
}

} // namespace

bool applyWrite(Node &root, QStringView path, Node &payload)
{
    const QList<QStringView> keys = path.split(QLatin1Char('.'));
    Node *node = &root;
    int known = 0;
    for (; known < keys.size() && !keys[known].isEmpty(); ++known) {
        Node *next = node->find(keys[known]);
        if (!next)
            break;
        node = next;
    }
    if (known < keys.size() && !canGrow(*node, keys, known))
        return false;
    for (; known < keys.size(); ++known)
        node = isIndex(keys[known]) ? node->add() : node->add(orba::Name(keys[known]));
    node->take(payload);
    return true;
}

} // namespace host

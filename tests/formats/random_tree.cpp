#include "formats/random_tree.h"

#include <QStringList>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

using orba::Name;
using orba::Node;

double RandomTree::number()
{
    static const double kOdd[] = {
        0.0, -0.0, 0.1, 5e-324, 1.5e23, 1e-7, 9007199254740993.0, 1.7976931348623157e308};
    if (below(3) == 0)
        return kOdd[below(std::size(kOdd))];
    for (;;) {
        const quint64 bits = random_();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value))
            return value;
    }
}

qint64 RandomTree::integer()
{
    static const qint64 kOdd[] = {0, 1, -1, INT64_MAX, INT64_MIN, 4294967296, -2147483649, 2147483648};
    return below(2) == 0 ? kOdd[below(std::size(kOdd))] : static_cast<qint64>(random_());
}

QString RandomTree::text()
{
    static const QString kPieces = QStringLiteral("Box \r\n\t<&>\"']]>\\u0041Короб\u7bb1\U0001F4E6&amp;#.") +
                                   QChar(0) + QChar(0x1b) + QChar(0xd800) + QChar(0xdc00) + QChar(0xfffe) +
                                   QChar(0xffff) + QChar(0x7f) + QChar(0x85) + QChar(0x2028) + QChar(0xfeff);
    QString text;
    for (int n = below(5); n > 0; --n)
        text += kPieces.mid(below(kPieces.size()), 1 + below(6));
    return text;
}

Name RandomTree::name()
{
    static const QStringList kNames = {
        QString(QLatin1String("")), QStringLiteral("#"),      QStringLiteral("#1"),
        QStringLiteral("##"),       QStringLiteral("#mixed"), QStringLiteral("#utf16"),
        QStringLiteral("name"),     QStringLiteral("value"),  QStringLiteral("a.b")};
    return Name(below(3) == 0 ? text() : kNames[below(kNames.size())]);
}

void RandomTree::fillNumbers(Node *node)
{
    std::vector<double> doubles;
    std::vector<qint64> ints;
    for (int n = below(5); n > 0; --n) {
        doubles.push_back(number());
        ints.push_back(integer());
    }
    if (below(2) == 0)
        node->setDoubles(doubles.data(), static_cast<int>(doubles.size()));
    else
        node->setInts(ints.data(), static_cast<int>(ints.size()));
    if (below(3) == 0)
        node->at(0); // a list that somebody unpacked
    if (below(3) == 0)
        node->add()->setInt(7); // and one of two kinds
}

void RandomTree::fill(Node *node, int depth)
{
    switch (depth == 0 ? 6 : below(depth > 5 ? 6 : 10)) {
    case 0:
        return;
    case 1:
        node->setBool(below(2) == 0);
        return;
    case 2:
        node->setInt(integer());
        return;
    case 3:
        node->setDouble(number());
        return;
    case 4:
        node->reset(Node::Kind::String);
        node->setString(text());
        return;
    case 5:
        fillNumbers(node);
        return;
    default:
        break;
    }
    const bool isMap = below(2) == 0;
    const bool isMixed = below(5) == 0;
    node->reset(isMap ? Node::Kind::Map : Node::Kind::List);
    for (int n = below(8); n > 0; --n) {
        const bool isNamed = isMixed ? below(2) == 0 : isMap;
        fill(node->add(isNamed ? name() : Name()), depth + 1);
    }
}

Node RandomTree::make()
{
    Node node;
    fill(&node, 0);
    return node;
}

#include "controller/recipe_check.h"

#include "controller/pose.h"
#include "controller/texts.h"

namespace controller {

using orba::Node;

namespace {

constexpr QStringView kWayPoints[] = {u"enter_p", u"ready_p",   u"approach_p",
                                      u"put_p",   u"retract_p", u"exit_p"};

bool isListOrNull(const Node *node)
{
    return !node || node->isNull() || node->kind() == Node::Kind::List;
}

QString pointFault(const Node &product, QStringView name)
{
    const Node *point = product.child(name);
    if (!point)
        return Texts::tr("\"%1\" is missing").arg(name.toString());
    for (const QStringView key : {QStringView(u"trans"), QStringView(u"rot")}) {
        const QString why = numbersFault(*point, key, 3);
        if (!why.isEmpty())
            return Texts::tr("in \"%1\": %2").arg(name.toString(), why);
    }
    return {};
}

QString productFault(const Node *product)
{
    if (!product || product->kind() != Node::Kind::Map)
        return Texts::tr("this is no product with its points");
    for (const QStringView name : kWayPoints) {
        QString why = pointFault(*product, name);
        if (!why.isEmpty())
            return why;
    }
    return {};
}

QString putFault(const Node *put)
{
    if (!isListOrNull(put))
        return Texts::tr("\"points.put\" is no list of layers");
    for (int i = 0; put && i < put->size(); ++i) {
        const Node *layer = put->at(i);
        if (!layer || !isListOrNull(layer))
            return Texts::tr("\"points.put.#%1\" is no list of products").arg(i);
        for (int k = 0; k < layer->size(); ++k) {
            const QString why = productFault(layer->at(k));
            if (!why.isEmpty())
                return Texts::tr("\"points.put.#%1.#%2\": %3").arg(i).arg(k).arg(why);
        }
    }
    return {};
}

} // namespace

QString recipeFault(const Node &record)
{
    if (record.kind() != Node::Kind::Map)
        return Texts::tr("this is no record with names");
    const Node *name = record.child(QStringView(u"name"));
    if (!name || name->kind() != Node::Kind::String || name->toString().trimmed().isEmpty())
        return Texts::tr("\"name\" is missing or no text");
    const Node *points = record.child(QStringView(u"points"));
    if (!points || points->kind() != Node::Kind::Map)
        return Texts::tr("\"points\" is missing");
    if (!isListOrNull(record.child(QStringView(u"layers"))))
        return Texts::tr("\"layers\" is no list");
    return putFault(points->child(QStringView(u"put")));
}

} // namespace controller

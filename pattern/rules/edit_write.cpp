#include "pattern/rules/edit_write.h"

#include "stack/recipe_edit.h"

#include <cmath>
#include <numeric>

namespace palx {

namespace {

using orba::Node;

/// Whole numbers stay integers where the record holds one.
void putNumber(Node *record, QStringView key, double was, double is)
{
    if (was == is)
        return;
    Node *field = record->ensureChild(orba::Name(key));
    if (field->isContainer())
        field->clear();
    if (field->kind() == Node::Kind::Int && is == std::trunc(is))
        field->setInt(static_cast<qint64>(is));
    else
        field->setDouble(is);
}

void putWhole(Node *record, QStringView key, int was, int is)
{
    if (was != is)
        record->ensureChild(orba::Name(key))->setValue(is);
}

void putChanges(Node *record, const PatternItem &was, const PatternItem &is)
{
    putNumber(record, u"x", was.x, is.x);
    putNumber(record, u"y", was.y, is.y);
    putNumber(record, u"w", was.w, is.w);
    putNumber(record, u"h", was.h, is.h);
    putNumber(record, u"dx", was.dx, is.dx);
    putNumber(record, u"dy", was.dy, is.dy);
    putNumber(record, u"dz", was.dz, is.dz);
    putWhole(record, u"r", was.r, is.r);
    putWhole(record, u"index", was.index, is.index);
    putWhole(record, u"orient", was.orient, is.orient);
    if (was.directionText != is.directionText)
        record->ensureChild(orba::Name(u"direction"))->setString(is.directionText);
}

void appendChanged(Node *target, const Node *record, const PatternItem &was, const PatternItem &is)
{
    const bool isRecord = record && record->isContainer() && !record->isPacked();
    if (!isRecord && was != is) { // an element that is no record becomes one when it is edited
        appendPatternItem(*target, is);
        return;
    }
    Node *copy = target->add(record ? record->name() : orba::Name());
    if (record)
        copy->assign(*record);
    if (isRecord)
        putChanges(copy, was, is);
}

/// The pattern with its elements as nodes of their own.
Node unpacked(const Node &pattern)
{
    Node copy = pattern;
    if (copy.isPacked())
        copy.at(0);
    return copy;
}

} // namespace

void writeItems(orba::ModuleObject *pattern, const QVector<PatternItem> &was, const QVector<PatternItem> &is,
                const QVector<int> &origin)
{
    if (pattern->isEmptyMobj())
        return;
    const Node old = unpacked(pattern->node());
    Node target(old.name());
    target.reset(old.isContainer() ? old.kind() : Node::Kind::List);
    for (int i = 0; i < is.size(); ++i) {
        if (origin[i] < 0)
            appendPatternItem(target, is[i]);
        else
            appendChanged(&target, old.at(origin[i]), was[origin[i]], is[i]);
    }
    for (int i = was.size(); i < old.size(); ++i) {
        if (const Node *rest = old.at(i))
            target.add(rest->name())->assign(*rest);
    }
    restoreNode(pattern, target);
}

void writeItems(orba::ModuleObject *pattern, const QVector<PatternItem> &was, const QVector<PatternItem> &is)
{
    QVector<int> origin(is.size());
    std::iota(origin.begin(), origin.end(), 0);
    writeItems(pattern, was, is, origin);
}

} // namespace palx

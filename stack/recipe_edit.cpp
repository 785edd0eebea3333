#include "stack/recipe_edit.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace palx {

namespace {

struct RecipeText
{
    Q_DECLARE_TR_FUNCTIONS(RecipeText)
};

const char *const kOffsetKeys[] = {"enter_x",    "enter_y",   "enter_h", "ready_h",
                                   "approach_h", "retract_h", "exit_h"};

bool nameTaken(const orba::Node &stacks, const QString &name, const orba::Node *self)
{
    for (int i = 0; i < stacks.size(); ++i) {
        const orba::Node *stack = stacks.at(i);
        if (stack && stack != self && stack->getString(u"name") == name)
            return true;
    }
    return false;
}

bool hasControlCharacter(const QString &name)
{
    return std::any_of(name.begin(), name.end(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

/// Inserts an unnamed or named child; imported lists may name their recipes.
orba::ModuleObject *insertChild(orba::ModuleObject *list, int index, orba::Name name)
{
    const int place = std::clamp(index, 0, list->cmobjCount());
    if (name.isNull())
        return list->insert(place);
    orba::ModuleObject *child = list->add(name.toString());
    list->move(list->cmobjCount() - 1, place);
    return child;
}

/// A key that holds nothing where the prototype holds a record counts as lacking.
bool lacks(const orba::Node *have, const orba::Node &want)
{
    return !have || (have->isNull() && want.size() > 0);
}

bool addMissing(orba::Node &target, const orba::Node &prototype)
{
    bool added = false;
    for (int i = 0; i < prototype.size(); ++i) {
        const orba::Node *want = prototype.at(i);
        if (!want || want->name().isNull())
            continue;
        orba::Node *have = target.child(want->name());
        if (lacks(have, *want)) {
            orba::ModuleObject *parent = orba::ModuleObject::of(&target);
            orba::ModuleObject *child =
                have ? orba::ModuleObject::of(have) : parent->add(want->name().toString());
            child->copyFrom(*want);
            added = true;
        } else if (want->kind() == orba::Node::Kind::Map && have->kind() == orba::Node::Kind::Map) {
            added = addMissing(*have, *want) || added;
        }
    }
    return added;
}

/// Null counts as lacking: a field of an old recipe that was never written.
bool ensureValue(orba::ModuleObject *stack, const QString &path, const QVariant &value)
{
    const orba::Node &node = stack->node();
    if (const orba::Node *have = node.find(path); have && !have->isNull())
        return false;
    stack->ensure(path);
    return stack->set(nullptr, path, value);
}

bool ensureOffsets(orba::ModuleObject *stack)
{
    bool added = false;
    for (const char *side : {"left_offsets", "right_offsets"}) {
        for (const char *key : kOffsetKeys)
            added = ensureValue(stack, mName(QStringLiteral("put"), QLatin1String(side), QLatin1String(key)),
                                0) ||
                    added;
    }
    return added;
}

bool ensureLayerKeys(orba::ModuleObject *stack)
{
    bool added = false;
    const int count = stack->node().find(u"layers") ? stack->node().find(u"layers")->size() : 0;
    for (int i = 0; i < count; ++i) {
        const QString layer = QStringLiteral("layers.#%1").arg(i);
        added = ensureValue(stack, mName(layer, QStringLiteral("pattern")), QString()) || added;
        added = ensureValue(stack, mName(layer, QStringLiteral("h_offset")), 0) || added;
    }
    return added;
}

} // namespace

QString recipeNameProblem(const orba::Node &stacks, const QString &name, const orba::Node *self)
{
    if (name.trimmed().isEmpty())
        return RecipeText::tr("The name is empty.");
    if (name.trimmed() != name)
        return RecipeText::tr("The name begins or ends with a blank.");
    if (name.size() > kMaxRecipeName)
        return RecipeText::tr("The name has %1 characters; at most %2 are allowed.")
            .arg(name.size())
            .arg(kMaxRecipeName);
    if (hasControlCharacter(name))
        return RecipeText::tr("The name holds a line break or another control character.");
    if (nameTaken(stacks, name, self))
        return RecipeText::tr("There is a recipe \"%1\" already.").arg(name);
    return QString();
}

QString proposeRecipeName(const orba::Node &stacks, const QString &wanted)
{
    constexpr int kMaxDigits = 18; // fits a 64-bit number
    const QString name = wanted.trimmed();
    if (!name.isEmpty() && name.size() <= kMaxRecipeName && !nameTaken(stacks, name, nullptr))
        return name;
    static const QRegularExpression digits(QStringLiteral("[0-9]+$"));
    const QRegularExpressionMatch match = digits.match(name);
    const bool counts = match.hasMatch() && match.capturedLength() <= kMaxDigits;
    const int stemEnd = counts ? match.capturedStart() : name.size();
    const QString stem = name.left(std::min(stemEnd, kMaxRecipeName - kMaxDigits - 1));
    qulonglong number = name.mid(stemEnd).toULongLong();
    QString candidate;
    do {
        candidate = stem + QString::number(++number);
    } while (nameTaken(stacks, candidate, nullptr));
    return candidate;
}

orba::ModuleObject *copyStack(orba::ModuleObject *stack, const QString &name)
{
    orba::ModuleObject *stacks = stack->p();
    if (stack->isEmptyMobj() || stacks->isEmptyMobj())
        return emptyMobj();
    orba::Node content = stack->node();
    content.ensureChild(orba::Name(u"name"))->setString(name);
    orba::ModuleObject *copy = insertChild(stacks, stacks->node().size(), orba::Name());
    copy->copyFrom(content);
    return copy;
}

void renameStack(orba::ModuleObject *stack, const QString &name, const QString &desc)
{
    stack->ensure("name");
    stack->ensure("desc");
    stack->set(nullptr, "name", name);
    stack->set(nullptr, "desc", desc);
}

RemovedStack removeStack(orba::ModuleObject *stack)
{
    RemovedStack removed;
    if (stack->isEmptyMobj() || stack->p()->isEmptyMobj())
        return removed;
    removed.node = stack->node();
    removed.index = stack->p()->node().indexOf(&stack->node());
    stack->remove();
    return removed;
}

orba::ModuleObject *restoreStack(orba::ModuleObject *stacks, const RemovedStack &removed)
{
    if (!removed.isSet() || stacks->isEmptyMobj())
        return emptyMobj();
    orba::Node content = removed.node;
    const QString name = proposeRecipeName(stacks->node(), content.getString(u"name"));
    content.ensureChild(orba::Name(u"name"))->setString(name);
    orba::ModuleObject *stack = insertChild(stacks, removed.index, content.name());
    stack->copyFrom(content);
    return stack;
}

bool ensureRecipeKeys(orba::ModuleObject *stack, const orba::Node &prototype)
{
    if (stack->isEmptyMobj())
        return false;
    bool added = addMissing(stack->node(), prototype);
    added = ensureValue(stack, QStringLiteral("name"), QString()) || added;
    added = ensureValue(stack, QStringLiteral("desc"), QString()) || added;
    added = ensureOffsets(stack) || added;
    return ensureLayerKeys(stack) || added;
}

} // namespace palx

#include "stack/recipe_edit.h"

// What undo keeps of a recipe and how it is put back.
namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

void restoreNumbers(ModuleObject *target, const Node &source)
{
    for (int i = 0; i < source.size(); ++i) {
        const QString place = QStringLiteral("#%1").arg(i);
        target->set(nullptr, place, source.value(place));
    }
}

/// Lists are matched by position.
void restoreList(ModuleObject *target, const Node &source)
{
    while (target->cmobjCount() > source.size())
        target->cmobj(target->cmobjCount() - 1)->remove();
    for (int i = 0; i < source.size(); ++i) {
        const Node *want = source.at(i);
        if (i < target->cmobjCount())
            restoreNode(target->cmobj(i), *want);
        else
            target->addUnnamed()->copyFrom(*want);
    }
}

void removeSurplus(ModuleObject *target, const Node &source)
{
    for (int i = target->cmobjCount() - 1; i >= 0; --i) {
        ModuleObject *child = target->cmobj(i);
        if (!source.child(child->node().name()))
            child->remove();
    }
}

/// Maps are matched by name; equal names count once.
void restoreMap(ModuleObject *target, const Node &source)
{
    removeSurplus(target, source);
    for (int i = 0; i < source.size(); ++i) {
        const Node *want = source.at(i);
        ModuleObject *have = target->c(want->name().view());
        if (have->isEmptyMobj())
            have = target->add(want->name().toString());
        restoreNode(have, *want);
        const int at = target->node().indexOf(&have->node());
        if (at != i && i < target->cmobjCount())
            target->move(at, i);
    }
}

bool hasUniqueNames(const Node &node)
{
    for (int i = 0; i < node.size(); ++i) {
        const Node *child = node.at(i);
        if (!child || child->name().isNull() || node.child(child->name()) != child)
            return false;
    }
    return true;
}

bool hasNoNames(const Node &node)
{
    for (int i = 0; i < node.size(); ++i) {
        if (const Node *child = node.at(i); !child || !child->name().isNull())
            return false;
    }
    return true;
}

} // namespace

void restoreNode(ModuleObject *target, const Node &source)
{
    const Node &have = target->node();
    if (have == source)
        return;
    const bool sameKind = have.kind() == source.kind();
    if (!source.isContainer())
        sameKind || !have.isContainer() ? void(target->set(nullptr, "", source.value()))
                                        : target->copyFrom(source);
    else if (sameKind && source.isPacked() && have.size() == source.size())
        restoreNumbers(target, source);
    else if (sameKind && !source.isPacked() && hasNoNames(source) && hasNoNames(have))
        restoreList(target, source);
    else if (sameKind && !source.isPacked() && hasUniqueNames(source) && hasUniqueNames(have))
        restoreMap(target, source);
    else
        target->copyFrom(source);
}

namespace {

/// The generated points, and what the dialogs of templates and automatic layouts were last told.
bool isKept(const Node &child)
{
    const QStringView name = child.name().view();
    return name == u"points" || name == u"pattern_cfg" || name == u"automatic_stacker";
}

} // namespace

Node recipeContent(const Node &stack)
{
    Node content(stack.name());
    content.reset(Node::Kind::Map);
    for (int i = 0; i < stack.size(); ++i) {
        const Node *child = stack.at(i);
        if (child && !isKept(*child))
            content.add(child->name())->assign(*child);
    }
    return content;
}

void restoreContent(ModuleObject *stack, const Node &content)
{
    Node whole = content;
    for (int i = 0; i < stack->node().size(); ++i) {
        if (const Node *child = stack->node().at(i); child && isKept(*child))
            whole.insert(std::min(i, whole.size()), child->name())->assign(*child);
    }
    restoreNode(stack, whole);
}

} // namespace palx

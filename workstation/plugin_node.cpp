#include "workstation/plugin_node.h"

namespace palx {

const QStringList trans_list{QStringLiteral("dspnX"), QStringLiteral("dspnY"), QStringLiteral("dspnZ")};
const QStringList rot_list{QStringLiteral("dspnA"), QStringLiteral("dspnB"), QStringLiteral("dspnC")};
const QString hidden_project_name = QStringLiteral("palx_default");

namespace {

using orba::ModuleObject;
using orba::Name;
using orba::Node;

struct NumberList
{
    const char *path;
    int size;
};
// What a new record holds; the controller of the cell delivers eight configuration numbers.
constexpr NumberList kPointLists[] = {{"trans", 3}, {"rot", 3}, {"near", 6}, {"conf", 8}};
constexpr NumberList kToolsetLists[] = {{"end.trans", 3}, {"end.rot", 3},  {"ref.trans", 3},
                                        {"ref.rot", 3},   {"load.cog", 3}, {"load.inertia", 3}};

/// For each index the lists in their order, all set to zero.
void zeroInterleaved(ModuleObject *record, std::initializer_list<const char *> lists)
{
    for (int i = 0; i < 3; ++i)
        for (const char *list : lists)
            record->set(nullptr, QStringLiteral("%1.#%2").arg(QLatin1String(list)).arg(i), 0.0);
}

Node zeroPoint()
{
    Node point;
    point.reset(Node::Kind::Map);
    const double zeros[8] = {};
    for (const NumberList &list : kPointLists)
        point.ensure(orba::Path(list.path))->setDoubles(zeros, list.size);
    return point;
}

} // namespace

QString getPluginName()
{
    return QStringLiteral("palx_workstation");
}

ModuleObject *pluginNode()
{
    return m(getPluginName());
}

ModuleObject *stacksNode()
{
    return m("palx.stacks");
}

ModuleObject *triggerNode()
{
    return pluginNode()->r("trigger");
}

// ---------------------------------------------------------------- stacks

namespace {

Node *findStack(const QString &name)
{
    static const Name kName(u"name");
    Node &stacks = stacksNode()->node();
    for (int i = 0; i < stacks.size(); ++i) {
        const Node *stackName = stacks.at(i)->child(kName);
        if (stackName && stackName->toString() == name)
            return stacks.at(i);
    }
    return nullptr;
}

} // namespace

bool hasStack(const QString &name)
{
    return findStack(name) != nullptr;
}

ModuleObject *getStack(const QString &name)
{
    Node *stack = name.trimmed().isEmpty() ? nullptr : findStack(name);
    return stack ? ModuleObject::of(stack) : emptyMobj();
}

ModuleObject *addStack(const QString &name, const QString &desc)
{
    ModuleObject *stacks = stacksNode();
    if (stacks->isEmptyMobj())
        return emptyMobj();
    Node *stack = stacks->node().add();
    if (!stack)
        return emptyMobj();
    if (const Node *prototype = pluginNode()->node().child(u"default"))
        stack->assign(*prototype);
    stack->ensure(u"name")->setString(name);
    stack->ensure(u"desc")->setString(desc);
    ModuleObject *made = ModuleObject::of(stack);
    stacks->announceStructure();
    return made;
}

const Node &pluginNodeOf(const Node &stack)
{
    static const Name kStacks(u"stacks");
    static const Node kNone;
    for (const Node *above = stack.parent(); above; above = above->parent())
        if (above->child(kStacks))
            return *above;
    const Node *module = orba::findGlobal(getPluginName());
    return module ? *module : kNone;
}

// ---------------------------------------------------------------- records

void identityPointNode(ModuleObject *point)
{
    zeroInterleaved(point, {"trans", "rot"});
    for (int i = 0; i < 6; ++i)
        point->set(nullptr, QStringLiteral("near.#%1").arg(i), 0.0);
}

void identityToolNode(ModuleObject *tool)
{
    zeroInterleaved(tool, {"end.trans", "end.rot", "load.cog", "load.inertia"});
    tool->set(nullptr, "load.mass", 0.0);
}

void identityToolsetNode(ModuleObject *toolset)
{
    zeroInterleaved(toolset, {"end.trans", "end.rot", "ref.trans", "ref.rot", "load.cog", "load.inertia"});
    toolset->set(nullptr, "load.mass", 0.0);
}

void copyPointData(ModuleObject *dst, ModuleObject *src)
{
    for (const char *list : {"conf", "near", "rot", "trans"}) {
        const Node *source = src->node().find(orba::Path(list));
        const int count = source ? source->size() : 0;
        for (int i = 0; i < count; ++i)
            dst->set(nullptr, QStringLiteral("%1.#%2").arg(QLatin1String(list)).arg(i), source->number(i));
    }
}

void copyPointData(Node &dst, const Node &src)
{
    static const Name kLists[] = {Name(u"conf"), Name(u"near"), Name(u"rot"), Name(u"trans")};
    for (const Name list : kLists) {
        const Node *from = src.child(list);
        Node *to = dst.child(list);
        if (!from || !to)
            continue;
        if (from->isPackedDoubles() && to->isPackedDoubles() && from->size() == to->size()) {
            to->assign(*from); // shares the block
            continue;
        }
        const int count = std::min(from->size(), to->size());
        for (int i = 0; i < count; ++i)
            to->setNumber(i, from->number(i));
    }
}

const Node *recordOfName(const Node &list, const QString &name)
{
    for (int i = 0; !list.isPacked() && i < list.size(); ++i)
        if (const Node *record = list.at(i); record && record->getString(u"name") == name)
            return record;
    return nullptr;
}

void makePointRecord(Node &point)
{
    static const Node kZero = zeroPoint(); // copies share its blocks of numbers
    point.assign(kZero);
}

Node &ensurePointRecord(Node &parent, Name name)
{
    Node *point = parent.ensureChild(name);
    if (!point->isContainer()) {
        makePointRecord(*point);
        return *point;
    }
    // A record from a file may lack numbers; writing them later would go astray.
    for (const NumberList &list : kPointLists) {
        Node *numbers = point->ensureChild(Name(orba::Path(list.path)));
        while (numbers->size() < list.size && numbers->add())
            numbers->at(numbers->size() - 1)->setDouble(0);
        numbers->pack();
    }
    return *point;
}

void ensureToolsetRecord(Node &toolset)
{
    const double zeros[8] = {};
    for (const NumberList &list : kToolsetLists) {
        Node *numbers = toolset.ensure(orba::Path(list.path));
        if (numbers && numbers->isNull())
            numbers->setDoubles(zeros, list.size);
    }
    Node *mass = toolset.ensure(u"load.mass");
    if (mass && mass->isNull())
        mass->setDouble(0);
}

} // namespace palx

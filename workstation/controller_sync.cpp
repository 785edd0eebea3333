#include "workstation/controller_sync.h"

#include "stack/way_points.h"
#include "workstation/config_log.h"
#include "workstation/plugin_log.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <memory>

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

const QString kAllStacks = QStringLiteral("pallet.data");
const QString kModifyVariables = QStringLiteral("monitor.pers.modify");
constexpr const char *kAxes[] = {"x", "y", "z"};
constexpr const char *kEulerAngles[] = {"a", "b", "c"};

QString element(const QString &list, int i)
{
    return QStringLiteral("%1.#%2").arg(list).arg(i);
}

void zeroFrame(Node &toolset, const QString &frame)
{
    for (const char *part : {".trans", ".rot"})
        for (int i = 0; i < 3; ++i)
            toolset.set(element(frame + QLatin1String(part), i),
                        QVariant(0)); // whole numbers, as the controller does
}

/// A toolset record with the numbers of a global tool.
Node toolsetOfGlobalTool(const Node &tool)
{
    Node record;
    ensureToolsetRecord(record);
    for (int i = 0; i < 3; ++i) {
        const auto copy = [&](const char *to, const QString &from) {
            record.set(element(QLatin1String(to), i), tool.getDouble(from));
        };
        copy("end.rot", QStringLiteral("load.pose.ori.euler.") + QLatin1String(kEulerAngles[i]));
        copy("end.trans", QStringLiteral("frame.pos.") + QLatin1String(kAxes[i]));
        copy("load.cog", QStringLiteral("load.pose.pos.") + QLatin1String(kAxes[i]));
        copy("load.inertia", element(QStringLiteral("load.moment"), i));
    }
    record.set(u"load.mass", tool.getDouble(u"load.mass"));
    return record;
}

/// Sends a toolset under a name and shows it as the active tool.
bool activate(const Node &record, const QString &name)
{
    ModuleObject toolset(QStringLiteral("temp_toolset"));
    toolset.copyFrom(record);
    toolset.ensure("name")->set(nullptr, "", name);
    if (xservice()->set(nullptr, QStringLiteral("sys.toolset"), &toolset).toInt() < 0)
        return false;
    ModuleObject *selection = m("quill.toolpage.toolset");
    (selection->isEmptyMobj() ? m("quill.body.toolset") : selection)->set(nullptr, "", name);
    writePluginInfo(QStringLiteral("set toolset success"));
    return true;
}

/// Puts the change of a persistent variable into the payload; other types and unknown or plain variables add nothing.
void addChange(const QString &name, const QString &value, Node *modify)
{
    const Node &variables = m("quill.project.var._list")->node();
    for (int i = 0; i < variables.size(); ++i) {
        const Node *variable = variables.at(i);
        if (!variable || !variable->getBool(u"pers") || variable->getString(u"name") != name)
            continue;
        const QString type = variable->getString(u"type");
        if (type == QLatin1String("double"))
            modify->ensureChild(orba::Name(name))->setDouble(value.toDouble());
        else if (type == QLatin1String("bool") || type == QLatin1String("int"))
            modify->ensureChild(orba::Name(name))->setInt(value.toLongLong());
    }
    writePluginLog(QStringLiteral("Modify PERS Var: ") + name + QStringLiteral(" = ") + value);
}

ModuleObject *firstGlobalTool()
{
    return pluginNode()->c("global_tool")->cmobj(0);
}

} // namespace

void saveToRC(ModuleObject *stack)
{
    xservice()->execCommand(nullptr, QStringLiteral("pallet.set.one"), stack);
}

XReply sendAllStacks()
{
    writePluginLog(QStringLiteral("Sync..."));
    XReply reply = xservice()->set(nullptr, kAllStacks, stacksNode());
    writePluginLog(QStringLiteral("Refresh General Palx Data Table..."));
    m("palx.trigger")->c("refresh_table")->trigger();
    return reply;
}

void saveAllToRC(bool async)
{
    if (!async) {
        sendAllStacks(); // nobody asks how it went; what went wrong is in the log
        return;
    }
    writePluginLog(QStringLiteral("Async..."));
    // Copied here, so that editing may go on while the task sends.
    const auto stacks = std::make_shared<const Node>(stacksNode()->node());
    QThreadPool::globalInstance()->start([stacks] { xservice()->set(nullptr, kAllStacks, *stacks); });
}

void genPointsAndSaveToRC(ModuleObject *stack, bool report)
{
    genStackWayPoints(stack);
    if (report)
        recordCfgLog(QCoreApplication::translate("palx", "The way points have regenerated!"), false);
    saveToRC(stack);
}

void saveNameToRC(int index, const QString &name, const QString &desc)
{
    ModuleObject record(QStringLiteral("temp"));
    record.ensure("index")->set(nullptr, "", index);
    record.ensure("name")->set(nullptr, "", name);
    record.ensure("desc")->set(nullptr, "", desc);
    xservice()->execCommand(nullptr, QStringLiteral("pallet.set.name"), &record);
}

void setValueOfPERSVar(const QString &name, const QString &value)
{
    ModuleObject modify(QStringLiteral("modify"));
    modify.node().reset(Node::Kind::Map);
    addChange(name, value, &modify.node());
    xservice()->command(nullptr, kModifyVariables, &modify);
}

void setValueOfPERSVar(const VariableChanges &changes, QObject *sender,
                       std::function<void(const XReply &)> answered)
{
    ModuleObject modify(QStringLiteral("modify"));
    modify.node().reset(Node::Kind::Map);
    for (const auto &[name, value] : changes) {
        addChange(name, value, &modify.node());
        if (modify.node().child(name))
            continue;
        XReply refusal;
        refusal.status = XReply::Status::Refused;
        refusal.error = QCoreApplication::translate("palx", "The project has no such variable: %1").arg(name);
        return answered(refusal);
    }
    xservice()->command(sender, kModifyVariables, &modify, std::move(answered));
}

bool checkNexoVersion(const QString &prefix)
{
    return m("nexo.r.version")->getString().startsWith(prefix);
}

void syncData() {}

bool switchToTool()
{
    ModuleObject *tool = firstGlobalTool();
    if (tool->isEmptyMobj())
        return false;
    Node record = toolsetOfGlobalTool(tool->node());
    zeroFrame(record, QStringLiteral("ref"));
    return activate(record, tool->getString("name"));
}

bool switchToToolset(ModuleObject *toolset, bool zeroReference, bool zeroEnd, bool useDefaultName)
{
    if (toolset->isEmptyMobj())
        return false;
    Node record(toolset->node());
    ensureToolsetRecord(record);
    ModuleObject *stack = toolset->p();
    QString name = useDefaultName ? QStringLiteral("default") : stack->getString("name");
    if (stack->getBool("use_global_tool"))
        name = firstGlobalTool()->getString("name");
    if (zeroReference)
        zeroFrame(record, QStringLiteral("ref"));
    if (zeroEnd)
        zeroFrame(record, QStringLiteral("end"));
    return activate(record, name);
}

} // namespace palx

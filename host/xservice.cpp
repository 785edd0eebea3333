#include "xservice.h"

#include "core/controller_link.h"

using host::ControllerLink;
using orba::Node;

namespace {

const Node &nodeOf(const orba::ModuleObject *payload)
{
    static const Node nothing{};
    return payload ? payload->node() : nothing;
}

} // namespace

XService *xservice()
{
    static auto *service = new XService; // leaked: used by objects that end after main
    return service;
}

XReply XService::get(QObject *, const QString &name, int timeoutMs)
{
    return ControllerLink::ask(name, Node(), timeoutMs, false);
}

XReply XService::set(QObject *, const QString &name, const orba::ModuleObject *payload, int timeoutMs)
{
    return ControllerLink::ask(name, nodeOf(payload), timeoutMs, true);
}

XReply XService::set(QObject *, const QString &name, const Node &payload, int timeoutMs)
{
    return ControllerLink::ask(name, payload, timeoutMs, true);
}

XReply XService::execCommand(QObject *, const QString &name, const orba::ModuleObject *payload, int timeoutMs)
{
    return ControllerLink::ask(name, nodeOf(payload), timeoutMs, true);
}

bool XService::command(QObject *, const QString &name, const orba::ModuleObject *payload)
{
    ControllerLink *link = ControllerLink::current();
    return link && link->command(name, nodeOf(payload));
}

bool XService::command(QObject *sender, const QString &name, const orba::ModuleObject *payload,
                       std::function<void(const XReply &)> answered)
{
    ControllerLink *link = ControllerLink::current();
    const auto answer = [context = QPointer<QObject>(sender), answered](const XReply &reply) {
        if (context)
            answered(reply);
    };
    return link && link->command(name, nodeOf(payload), answer);
}

void XService::watch(const QString &name, QObject *context, std::function<void(const Node &)> told)
{
    QVector<Watcher> &watchers = watchers_[name];
    const auto isGone = [](const Watcher &watcher) { return watcher.context.isNull(); };
    watchers.erase(std::remove_if(watchers.begin(), watchers.end(), isGone), watchers.end());
    watchers.append({context, std::move(told)});
}

void XService::publish(const QString &name, const Node &value)
{
    const QVector<Watcher> watchers = watchers_.value(name); // a listener may watch, too
    for (const Watcher &watcher : watchers)
        if (watcher.context)
            watcher.told(value);
}

#include "nexo/controller_manager.h"

#include "core/controller_link.h"
#include "xservice.h"

namespace nexo {

ControllerManager *ControllerManager::instance()
{
    static auto *manager = new ControllerManager; // leaked: used by objects that end after main
    return manager;
}

bool ControllerManager::rcConnected() const
{
    const host::ControllerLink *link = host::ControllerLink::current();
    return link && link->isConnected();
}

orba::ModuleObject *ControllerManager::request(const QString &name)
{
    orba::ModuleObject *known = requests_.c(name);
    return known->isEmptyMobj() ? requests_.add(name) : known;
}

orba::ModuleObject *ControllerManager::cmdItemMobj(const QString &request, const QString &item)
{
    orba::ModuleObject *node = this->request(request);
    orba::ModuleObject *known = node->c(item);
    return known->isEmptyMobj() ? node->add(item) : known;
}

XReply ControllerManager::execRequest(const QString &name, int timeoutMs)
{
    return xservice()->execCommand(this, name, request(name), timeoutMs);
}

void ControllerManager::forgetRequests()
{
    requests_.clear();
}

} // namespace nexo

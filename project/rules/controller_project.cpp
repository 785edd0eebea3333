#include "project/rules/controller_project.h"

#include "nexo/controller_manager.h"
#include "orba/module_object.h"
#include "xservice.h"

namespace palx {

using orba::ModuleObject;

namespace {

constexpr int kRequestMs = 1600;

} // namespace

bool switchProject(const QString &key)
{
    ModuleObject *current = m("quill.project.cur_project");
    const bool isCurrent = current->getString() == key;
    current->set(nullptr, "", key);
    return isCurrent || nexo::ControllerManager::instance()->rcConnected();
}

void removeControllerTasks(const QString &project)
{
    ModuleObject payload(QStringLiteral("tmp"));
    payload.ensure("name")->set(nullptr, "", project);
    xservice()->execCommand(nullptr, QStringLiteral("project.remove_task"), &payload, kRequestMs);
}

bool setAutoload(const QString &path)
{
    const QString request = QStringLiteral("project.overview.set_autoload");
    auto *controller = nexo::ControllerManager::instance();
    controller->cmdItemMobj(request, QStringLiteral("autoload_prj_path"))->set(nullptr, "", path);
    return controller->execRequest(request, kRequestMs).isOk();
}

void rebuildProject()
{
    for (ModuleObject *part : m("quill.project")->cmobjs())
        part->set(nullptr, "built", false);
    m("quill.project.rsync.build")->trigger();
}

} // namespace palx

#include "bwaf/bmodule.h"

#include "core/tree_binder.h"
#include "nexo/manager_helper.h"
#include "shell/center_provider.h"
#include "shell/life_cycle.h"

namespace bwaf {

BModule::BModule(QObject *parent) : QObject(parent) {}

BModule::~BModule()
{
    while (!submodules_.isEmpty())
        delete submodules_.constLast(); // takes itself out of the list
    if (owner_)
        owner_->submodules_.removeOne(this);
}

QString BModule::name() const
{
    return objectName();
}

void BModule::init() {}
void BModule::afterInit() {}
void BModule::setup() {}
void BModule::afterSetup() {}
void BModule::render() {}
void BModule::afterRender() {}
void BModule::idle() {}
void BModule::afterIdle() {}
void BModule::beforeDetach() {}
void BModule::detach() {}

QWidget *BModule::wgt()
{
    return nullptr;
}

void BModule::bindMobjJson(const QString &name, const QString &templatePath, bool persistent)
{
    QString error;
    mobj_ = host::bindTree(name, templatePath, persistent, &error);
    if (error.isEmpty())
        return;
    nexo::ManagerHelper::instance()->throwLog(
        this, QStringLiteral("error"), tr("The data of the module %1 is incomplete: %2").arg(name, error));
}

orba::ModuleObject *BModule::mobj() const
{
    if (mobj_)
        return mobj_;
    const BModule *parent = parentModule();
    return parent ? parent->mobj() : emptyMobj();
}

BModule *BModule::parentModule() const
{
    return owner_ ? owner_ : qobject_cast<BModule *>(parent());
}

void BModule::addSubmodule(BModule *module)
{
    for (const BModule *above = this; above; above = above->parentModule())
        if (above == module)
            return;
    if (!module || submodules_.contains(module))
        return;
    if (module->owner_)
        module->owner_->submodules_.removeOne(module);
    module->owner_ = this;
    module->setParent(this);
    submodules_.append(module);
    LifeCycle::catchUp(this, module);
}

orba::CreatorManager<BModule *, BModule *(QObject *)> &bfactory()
{
    // Leaked on purpose, like the other registries.
    static auto *factory =
        new orba::CreatorManager<BModule *, BModule *(QObject *)>(QStringLiteral("bfactory"));
    return *factory;
}

CenterWidget *instantiatedCenterWidget(BModule *)
{
    return host::centerWidget();
}

} // namespace bwaf

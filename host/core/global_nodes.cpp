#include "core/global_nodes.h"

#include "nexo/setting_manager.h"
#include "orba/module_manager.h"
#include "orba/tree_registry.h"

#include <QDateTime>

namespace host {

namespace {

const char *const kTemplate = ":/palx_host/template/host.json";
const char *const kCurrentLog = "quill.log.current";

/// Gives `target` the children of `source` that it lacks, at every depth of named children.
void addMissing(orba::Node &target, const orba::Node &source)
{
    if (target.isNull() && !source.isNull()) {
        target.assign(source);
        return;
    }
    for (int i = 0; source.kind() == orba::Node::Kind::Map && i < source.size(); ++i) {
        const orba::Node *wanted = source.at(i);
        if (orba::Node *child = target.ensureChild(wanted->name()))
            addMissing(*child, *wanted);
    }
}

void mirrorSetting(orba::Node &settings, const QString &key)
{
    const orba::Node *known = settings.child(key);
    if (known)
        m("nexo.setting")
            ->c(key)
            ->set(nullptr, "", nexo::SettingManager::instance()->getStr(key, QStringLiteral("")));
}

void mirrorSettings()
{
    orba::ModuleObject *settings = m("nexo.setting");
    for (int i = 0; i < settings->cmobjCount(); ++i)
        mirrorSetting(settings->node(), settings->c(i)->name());
    QObject::connect(nexo::SettingManager::instance(), &nexo::SettingManager::changed, settings,
                     [settings](const QString &key) { mirrorSetting(settings->node(), key); });
}

} // namespace

bool buildGlobalNodes(QString *error)
{
    orba::Node source;
    orba::FormatError fault;
    if (!orba::ModuleManager::readFromJson(QLatin1String(kTemplate), &source, &fault)) {
        if (error)
            *error = fault.text();
        return false;
    }
    orba::TreeRegistry &registry = orba::TreeRegistry::instance();
    for (int i = 0; i < source.size(); ++i) {
        const QString name = source.at(i)->name().toString();
        orba::Node *tree = registry.module(name);
        addMissing(tree ? *tree : *registry.addModule(name), *source.at(i));
    }
    m(kCurrentLog)->node().setEvent(true); // the same record twice is two events
    mirrorSettings();
    return true;
}

void removeGlobalNodes()
{
    for (const char *name : {"nexo", "quill", "ix"})
        orba::TreeRegistry::instance().removeModule(QLatin1String(name));
}

orba::Node makeRecord(const QString &level, const QString &title)
{
    orba::Node record;
    record.ensure(u"level")->setString(level);
    record.ensure(u"title")->setString(title);
    record.ensure(u"date_time")
        ->setString(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd/HH:mm:ss")));
    record.ensure(u"rcid")->setString(m("nexo.r.id")->getString());
    return record;
}

void publishRecord(const QString &level, const QString &title)
{
    const QByteArray text = orba::ModuleManager::toJson(makeRecord(level, title), true);
    m(kCurrentLog)->set(nullptr, "", QString::fromUtf8(text));
}

} // namespace host

#include "orba/managers.h"

namespace orba {

namespace {

// The registries are leaked on purpose: libraries that registered here are never unloaded, and their
// functions must outlive every static object that could still ask for them at exit.
QList<Registration> &registrationList()
{
    static auto *list = new QList<Registration>;
    return *list;
}

} // namespace

QList<Registration> registrations()
{
    return registrationList();
}

void recordRegistration(const QString &registry, const QString &key, bool taken)
{
    registrationList().append({registry, key, taken});
}

VersionManager &pluginManager()
{
    static auto *manager = new VersionManager(QStringLiteral("pluginManager"));
    return *manager;
}

VersionManager &versionManager()
{
    static auto *manager = new VersionManager(QStringLiteral("versionManager"));
    return *manager;
}

} // namespace orba

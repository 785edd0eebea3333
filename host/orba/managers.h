#pragma once

#include "orba/export.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

namespace orba {

/// One call of some manager's `regist`, in the order in which libraries of this process made them.
struct PALX_API Registration
{
    QString registry; ///< "bfactory", "pluginManager", "versionManager"
    QString key;
    bool taken = true; ///< false when the key was there already and the first value stayed
};

/// Every registration of this process so far, oldest first. GUI thread; libraries register while they are
/// loaded.
PALX_API QList<Registration> registrations();
PALX_API void recordRegistration(const QString &registry, const QString &key, bool taken);

/// Functions by key. `F` is the function's type, `T` what it returns. A key is registered once; the first
/// function stays and a further registration is harmless, so that two sources of a library may both name what
/// they share.
template <typename T, typename F> class CreatorManager
{
public:
    using Creator = std::function<F>;

    explicit CreatorManager(QString registry) : registry_(std::move(registry)) {}
    CreatorManager(const CreatorManager &) = delete;
    CreatorManager &operator=(const CreatorManager &) = delete;

    /// Returns whether the key was free.
    bool regist(const QString &key, Creator creator)
    {
        const bool taken = !creators_.contains(key);
        if (taken) {
            keys_.append(key);
            creators_.insert(key, std::move(creator));
        }
        recordRegistration(registry_, key, taken);
        return taken;
    }
    bool contains(const QString &key) const { return creators_.contains(key); }
    /// In the order of registration.
    QStringList keys() const { return keys_; }
    /// The function of that key; an empty one when there is none.
    Creator creator(const QString &key) const { return creators_.value(key); }
    /// Calls the function of that key; a default value (null, 0) when there is none.
    template <typename... Args> T create(const QString &key, Args &&...args) const
    {
        const Creator found = creators_.value(key);
        return found ? found(std::forward<Args>(args)...) : T();
    }

private:
    QString registry_;
    QStringList keys_;
    QHash<QString, Creator> creators_;
};

using VersionManager = CreatorManager<int, int()>;

/// Version number of each plug-in library by its name.
PALX_API VersionManager &pluginManager();
/// Version numbers of the parts of plug-ins, by "plugin.part".
PALX_API VersionManager &versionManager();

} // namespace orba

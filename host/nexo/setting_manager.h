#pragma once

#include "orba/export.h"

#include <QHash>
#include <QObject>
#include <QString>

namespace nexo {

/// Settings of the panel: texts by key. Order of precedence: override (command line), environment
/// (PALX_SETTING_<KEY IN UPPER CASE>), settings file (a JSON object), default.
///
/// Known keys: "data" (folder of the panel's store and logs), "workspace" (controller workspace), "language"
/// ("en", "cn", "ru", "jp", "kr"), "touch" ("true": numeric fields open a keypad), "rc_timeout" (what a
/// request to the controller waits, in milliseconds).
class PALX_API SettingManager : public QObject
{
    Q_OBJECT

public:
    static SettingManager *instance();

    QString getStr(const QString &key, const QString &def = QString()) const;
    bool getBool(const QString &key, bool def = false) const;
    /// Stores in the settings file's layer and sends `changed` when the effective value changes.
    void setStr(const QString &key, const QString &value);
    /// Until the process ends; not stored. A null text takes the override away.
    void setOverride(const QString &key, const QString &value);
    /// Reads the file now (missing is fine) and keeps writing to it; an empty name forgets what was read.
    /// False with a reason on a damaged file, whose content is then set aside under a dated name.
    bool useFile(const QString &file, QString *error = nullptr);
    bool save(QString *error = nullptr) const;

Q_SIGNALS:
    void changed(const QString &key, const QString &value);

private:
    SettingManager() = default;
    QString effective(const QString &key) const;
    void replaceStored(const QHash<QString, QString> &values);
    void announceIfChanged(const QString &key, const QString &before);
    QHash<QString, QString> stored_;
    QHash<QString, QString> overrides_;
    QString file_;
};

} // namespace nexo

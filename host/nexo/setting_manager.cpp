#include "nexo/setting_manager.h"

#include "nexo/manager_helper.h"
#include "orba/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QSet>

namespace nexo {

namespace {

// A settings file holds a few keys; anything larger is something else.
constexpr qint64 kMaxFileBytes = 1024LL * 1024;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(nexo::SettingManager)
};

void tell(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

QByteArray environmentName(const QString &key)
{
    QByteArray name = "PALX_SETTING_" + key.toUpper().toLatin1();
    for (char &letter : name)
        if (!((letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9')))
            letter = '_';
    return name;
}

/// Null unless the file holds a JSON object whose values are texts, numbers or booleans.
bool parseSettings(const QByteArray &text, QHash<QString, QString> *values, QString *why)
{
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(text, &fault);
    if (fault.error != QJsonParseError::NoError) {
        *why = Text::tr("%1 at byte %2").arg(fault.errorString()).arg(fault.offset);
        return false;
    }
    if (!document.isObject()) {
        *why = Text::tr("it holds no JSON object");
        return false;
    }
    const QJsonObject object = document.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (entry->isObject() || entry->isArray() || entry->isNull()) {
            *why = Text::tr("the value of \"%1\" is no text").arg(entry.key());
            return false;
        }
        values->insert(entry.key(), entry->toVariant().toString());
    }
    return true;
}

bool readSettings(const QString &file, QHash<QString, QString> *values, QString *why)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        *why = input.errorString();
        return false;
    }
    if (input.size() > kMaxFileBytes) {
        *why = Text::tr("it is larger than %1 bytes").arg(kMaxFileBytes);
        return false;
    }
    return parseSettings(input.readAll(), values, why);
}

} // namespace

SettingManager *SettingManager::instance()
{
    static auto *manager = new SettingManager; // leaked: used by objects that end after main
    return manager;
}

QString SettingManager::effective(const QString &key) const
{
    if (overrides_.contains(key))
        return overrides_.value(key);
    const QByteArray variable = environmentName(key);
    if (qEnvironmentVariableIsSet(variable.constData()))
        return qEnvironmentVariable(variable.constData());
    return stored_.value(key);
}

QString SettingManager::getStr(const QString &key, const QString &def) const
{
    const QString value = effective(key);
    return value.isNull() ? def : value;
}

bool SettingManager::getBool(const QString &key, bool def) const
{
    const QString value = effective(key);
    if (value.isNull())
        return def;
    return !value.isEmpty() && value != QLatin1String("0") &&
           value.compare(u"false", Qt::CaseInsensitive) != 0;
}

void SettingManager::announceIfChanged(const QString &key, const QString &before)
{
    const QString now = effective(key);
    if (now != before)
        Q_EMIT changed(key, now);
}

void SettingManager::setStr(const QString &key, const QString &value)
{
    const QString before = effective(key);
    stored_.insert(key, value);
    QString error;
    if (!save(&error))
        ManagerHelper::instance()->throwLog(this, QStringLiteral("error"), error);
    announceIfChanged(key, before);
}

void SettingManager::setOverride(const QString &key, const QString &value)
{
    const QString before = effective(key);
    if (value.isNull())
        overrides_.remove(key);
    else
        overrides_.insert(key, value);
    announceIfChanged(key, before);
}

void SettingManager::replaceStored(const QHash<QString, QString> &values)
{
    QHash<QString, QString> before;
    for (const QHash<QString, QString> &layer : {stored_, values})
        for (auto entry = layer.begin(); entry != layer.end(); ++entry)
            before.insert(entry.key(), effective(entry.key()));
    stored_ = values;
    for (auto entry = before.begin(); entry != before.end(); ++entry)
        announceIfChanged(entry.key(), entry.value());
}

bool SettingManager::useFile(const QString &file, QString *error)
{
    file_ = file;
    QHash<QString, QString> values;
    QString why;
    const bool missing = file.isEmpty() || !QFileInfo::exists(file);
    const bool good = missing || readSettings(file, &values, &why);
    replaceStored(good ? values : QHash<QString, QString>());
    if (good)
        return true;
    const QString aside = orba::setAside(file);
    if (aside.isEmpty())
        file_.clear(); // what cannot be moved away must not be overwritten either
    tell(error, aside.isEmpty()
                    ? tr("Cannot use the settings file %1: %2. Settings are not saved.").arg(file, why)
                    : tr("Cannot use the settings file %1: %2. It is kept as %3.").arg(file, why, aside));
    return false;
}

bool SettingManager::save(QString *error) const
{
    if (file_.isEmpty())
        return true;
    QJsonObject object;
    for (auto entry = stored_.begin(); entry != stored_.end(); ++entry)
        object.insert(entry.key(), entry.value());
    QSaveFile output(file_);
    const QByteArray text = QJsonDocument(object).toJson();
    if (output.open(QIODevice::WriteOnly) && output.write(text) == text.size() && output.commit())
        return true;
    tell(error, tr("Cannot save the settings file %1: %2").arg(file_, output.errorString()));
    return false;
}

} // namespace nexo

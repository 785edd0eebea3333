#include "panel/log_export.h"

#include "nexo/setting_manager.h"
#include "orba/format_detail.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace panel {

namespace {

const char *const kByteOrderMark = "\xef\xbb\xbf";
const char *const kHeader[] = {"level", "time", "message", "robot"};

QString quoted(QString text)
{
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

QString ownFolder()
{
    const auto *settings = nexo::SettingManager::instance();
    const QString chosen = settings->getStr(QStringLiteral("export"));
    if (!chosen.isEmpty())
        return QDir::cleanPath(chosen);
    const QString data = settings->getStr(QStringLiteral("data"));
    return data.isEmpty() ? QDir::tempPath() : QDir(data).filePath(QStringLiteral("export"));
}

/// By where the system mounts what is plugged in.
bool isRemovable(const QStorageInfo &volume)
{
    const QString path = volume.rootPath();
    return volume.isReady() && !volume.isReadOnly() &&
           (path.startsWith(QLatin1String("/media/")) || path.startsWith(QLatin1String("/run/media/")) ||
            path.startsWith(QLatin1String("/mnt/")));
}

QStringList fields(const LogRecord &record)
{
    return {record.level, record.time, record.title, record.robot};
}

} // namespace

QByteArray logAsCsv(const QVector<LogRecord> &records)
{
    QStringList header;
    for (const char *title : kHeader)
        header.append(QLatin1String(title));
    QString text = header.join(QLatin1Char(',')) + QLatin1String("\r\n");
    for (const LogRecord &record : records) {
        QStringList cells;
        for (const QString &field : fields(record))
            cells.append(quoted(field));
        text += cells.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return kByteOrderMark + text.toUtf8();
}

QByteArray logAsText(const QVector<LogRecord> &records)
{
    QString text;
    for (const LogRecord &record : records) {
        QStringList cells;
        for (const QString &field : fields(record))
            cells.append(field.simplified()); // one line each, without further tabs
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text.toUtf8();
}

QString exportLog(const QVector<LogRecord> &records, const QString &file)
{
    const bool isText = file.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive);
    QDir().mkpath(QFileInfo(file).path()); // writing says why, when there is no folder
    orba::FormatError error;
    if (orba::format::saveFile(file, isText ? logAsText(records) : logAsCsv(records), &error))
        return QString();
    return QStringLiteral("%1: %2").arg(file, error.what);
}

QStringList exportFolders()
{
    QStringList folders(ownFolder());
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes())
        if (isRemovable(volume))
            folders.append(volume.rootPath());
    return folders;
}

} // namespace panel

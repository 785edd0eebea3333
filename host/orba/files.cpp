#include "orba/files.h"

#include <QDateTime>
#include <QFile>

namespace orba {

QString damagedName(const QString &file)
{
    const QString name = file + QStringLiteral(".damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    QString free = name;
    for (int more = 2; QFile::exists(free); ++more) // another one in the same millisecond
        free = QStringLiteral("%1-%2").arg(name).arg(more);
    return free;
}

QString setAside(const QString &file)
{
    const QString name = damagedName(file);
    return QFile::rename(file, name) ? name : QString();
}

} // namespace orba

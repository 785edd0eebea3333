#include "orba/files.h"

#include <QDateTime>
#include <QFile>

namespace orba {

QString damagedName(const QString &file)
{
    return file + QStringLiteral(".damaged-") +
           QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
}

QString setAside(const QString &file)
{
    const QString name = damagedName(file);
    return QFile::rename(file, name) ? name : QString();
}

} // namespace orba

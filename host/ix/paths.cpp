#include "ix/paths.h"

namespace ix {

QString templatePath(const QString &plugin, const QString &name)
{
    return QStringLiteral(":/%1/template/%2.json").arg(plugin, name);
}

QString translationPath(const QString &plugin, const QString &language)
{
    return QStringLiteral(":/%1/language/%1_%2.qm").arg(plugin, language);
}

} // namespace ix

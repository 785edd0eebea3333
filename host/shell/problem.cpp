#include "shell/problem.h"

namespace host {

QString Problem::text() const
{
    QString text = what;
    for (const QString &part : {where, why})
        if (!part.isEmpty())
            text += QStringLiteral(": ") + part;
    return text;
}

} // namespace host

#include "fixtures.h"

#include <QCoreApplication>
#include <QVariant>

QString fixtureFile(const char *name)
{
    return QStringLiteral("%1/libfixture_%2.so").arg(QStringLiteral(PALX_FIXTURES), QLatin1String(name));
}

QStringList takeSampleNotes()
{
    const QStringList notes = QCoreApplication::instance()->property("sample.notes").toStringList();
    QCoreApplication::instance()->setProperty("sample.notes", QStringList());
    return notes;
}

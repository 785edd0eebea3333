#include "controller/cell/faults.h"

namespace controller::cell {

namespace {

const char *const kNames[kFaults] = {"no-vacuum", "lost-box",  "conveyor-jam", "pallet-pulled",
                                     "e-stop",    "collision", "power-cut"};

} // namespace

QString faultName(Fault fault)
{
    return QString::fromLatin1(kNames[static_cast<int>(fault)]);
}

QStringList faultNames()
{
    QStringList names;
    for (const char *name : kNames)
        names.append(QString::fromLatin1(name));
    return names;
}

bool faultOfName(const QString &name, Fault *fault)
{
    const int found = faultNames().indexOf(QString(name).replace(QLatin1Char(' '), QLatin1Char('-')));
    if (found < 0)
        return false;
    *fault = static_cast<Fault>(found);
    return true;
}

} // namespace controller::cell

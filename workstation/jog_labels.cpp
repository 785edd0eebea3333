#include "workstation/jog_labels.h"

#include <QCoreApplication>

namespace palx {

namespace {

struct Label
{
    const char *text;
    bool translated;
};

constexpr Label kJoints[] = {{QT_TRANSLATE_NOOP("palx::JogLabels", "J1(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J2(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J3(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J4(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J5(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J6(%1)"), true},
                             {QT_TRANSLATE_NOOP("palx::JogLabels", "J7(%1)"), true}};

constexpr Label kCartesian[] = {{"X(mm)", false},
                                {"Y(mm)", false},
                                {"Z(mm)", false},
                                {QT_TRANSLATE_NOOP("palx::JogLabels", "A(%1)"), true},
                                {QT_TRANSLATE_NOOP("palx::JogLabels", "B(%1)"), true},
                                {QT_TRANSLATE_NOOP("palx::JogLabels", "C(%1)"), true}};

template <int count> QStringList labels(const Label (&table)[count])
{
    QStringList list;
    for (const Label &label : table)
        list.append(label.translated
                        ? QCoreApplication::translate("palx::JogLabels", label.text).arg(QChar(u'\u00b0'))
                        : QLatin1String(label.text));
    return list;
}

} // namespace

const QStringList joint_labels = labels(kJoints);
const QStringList cartesian_labels = labels(kCartesian);

QStringList jointLabels()
{
    return labels(kJoints);
}

QStringList cartesianLabels()
{
    return labels(kCartesian);
}

} // namespace palx

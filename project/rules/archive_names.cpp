#include "project/rules/archive_names.h"

#include "project/rules/archive_check.h"
#include "project/rules/project_messages.h"

#include <QDir>

#include <algorithm>

namespace palx {

namespace {

QString keyOf(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

bool isControl(QChar sign)
{
    return sign.category() == QChar::Other_Control;
}

bool startsWithDrive(const QString &name)
{
    return name.size() > 1 && name.at(1) == QLatin1Char(':') && name.at(0).isLetter();
}

bool isUtf8(const QString &name)
{
    return !name.contains(QChar::ReplacementCharacter) && QString::fromUtf8(name.toUtf8()) == name;
}

} // namespace

QString entryNameProblem(const QString &name, const ArchiveLimits &limits)
{
    const QString path = name.endsWith(QLatin1Char('/')) ? name.chopped(1) : name;
    const QStringList parts = path.split(QLatin1Char('/'));
    const bool hasEmptyPart = parts.contains(QString()) || parts.contains(QStringLiteral("."));
    const struct
    {
        bool holds;
        const char *text;
    } problems[] = {
        {QDir::isAbsolutePath(name) || startsWithDrive(name),
         QT_TRANSLATE_NOOP("palx::ProjectText", "has an absolute name")},
        {parts.contains(QStringLiteral("..")),
         QT_TRANSLATE_NOOP("palx::ProjectText", "leads out of the folder")},
        {name.contains(QLatin1Char('\\')),
         QT_TRANSLATE_NOOP("palx::ProjectText", "has a backslash in its name")},
        {hasEmptyPart, QT_TRANSLATE_NOOP("palx::ProjectText", "has a name that is no path")},
        {!isUtf8(name), QT_TRANSLATE_NOOP("palx::ProjectText", "has a name that is no text in UTF-8")},
        {std::any_of(name.begin(), name.end(), isControl),
         QT_TRANSLATE_NOOP("palx::ProjectText", "has a control character in its name")},
        {name.toUtf8().size() > limits.nameBytes,
         QT_TRANSLATE_NOOP("palx::ProjectText", "has too long a name")},
    };
    for (const auto &problem : problems)
        if (problem.holds)
            return ProjectText::tr(problem.text);
    return QString();
}

QString EntryNames::add(const QString &name)
{
    for (int slash = name.indexOf(QLatin1Char('/')); slash >= 0 && slash < name.size() - 1;
         slash = name.indexOf(QLatin1Char('/'), slash + 1))
        if (!addFolderOnTheWay(name.left(slash)))
            return ProjectText::tr("needs a folder where there is another entry");
    const bool isFolder = name.endsWith(QLatin1Char('/'));
    const QString path = isFolder ? name.chopped(1) : name;
    Seen &seen = seen_[keyOf(path)];
    if (seen.isEntry || (!seen.name.isEmpty() && !(isFolder && seen.isFolder && seen.name == path)))
        return ProjectText::tr("is there twice");
    seen = {path, isFolder, true};
    return QString();
}

bool EntryNames::addFolderOnTheWay(const QString &name)
{
    Seen &seen = seen_[keyOf(name)];
    if (seen.name.isEmpty())
        seen = {name, true, false};
    return seen.isFolder && seen.name == name;
}

QString shownEntryName(const QString &name)
{
    constexpr int kMost = 100;
    QString shown = name.size() > kMost ? name.left(kMost) + QChar(0x2026) : name;
    std::replace_if(shown.begin(), shown.end(), isControl, QLatin1Char('?'));
    return shown;
}

} // namespace palx

#include "workstation/medium_names.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace palx {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::MediumNames)
};

constexpr int kLongestName = 255; ///< UTF-16 units on the one kind of file system, bytes on the other

/// File systems that a PC writes; their names are also refused by it.
bool isOfPc(const QString &fileSystem)
{
    static const QStringList names{QStringLiteral("vfat"), QStringLiteral("msdos"), QStringLiteral("exfat"),
                                   QStringLiteral("ntfs"), QStringLiteral("ntfs3"), QStringLiteral("fuseblk"),
                                   QStringLiteral("cifs")};
    return names.contains(fileSystem);
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

QString pcRefusal(const QString &name)
{
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|");
    static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|(com|lpt)[1-9])(\\.|$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    const auto found = std::find_if(name.begin(), name.end(), [](QChar c) { return forbidden.contains(c); });
    if (found != name.end())
        return Text::tr("This disk cannot keep a name with %1.").arg(*found);
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        return Text::tr("This disk cannot keep a name that ends with a dot or a blank.");
    if (device.match(name).hasMatch())
        return Text::tr("A PC cannot open a file named %1.").arg(name);
    if (name.size() > kLongestName)
        return Text::tr("The name is too long: %1 of %2 characters.").arg(name.size()).arg(kLongestName);
    return QString();
}

QString linuxRefusal(const QString &name)
{
    const int bytes = QFile::encodeName(name).size();
    if (name.contains(QLatin1Char('/')))
        return Text::tr("This disk cannot keep a name with %1.").arg(QLatin1Char('/'));
    if (bytes > kLongestName)
        return Text::tr("The name is too long: %1 of %2 bytes.").arg(bytes).arg(kLongestName);
    return QString();
}

FileFilter parseFilter(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\(([^()]*)\\)\\s*$"));
    static const QRegularExpression gap(QStringLiteral("[\\s;]+"));
    const QRegularExpressionMatch match = form.match(text);
    const QString patterns = match.hasMatch() ? match.captured(1) : text;
    return {text.trimmed(), patterns.split(gap, Qt::SkipEmptyParts)};
}

} // namespace

QString nameRefusal(const QString &name, const QString &fileSystem)
{
    if (name.isEmpty())
        return Text::tr("The file needs a name.");
    if (name.startsWith(QLatin1Char('.')))
        return Text::tr("A name does not begin with a dot: the file would be hidden.");
    if (std::any_of(name.begin(), name.end(), isControl))
        return Text::tr("The name holds a character that cannot be seen.");
    return isOfPc(fileSystem) ? pcRefusal(name) : linuxRefusal(name);
}

bool FileFilter::matches(const QString &name) const
{
    return patterns.isEmpty() || QDir::match(patterns, name);
}

QString FileFilter::completed(const QString &name) const
{
    static const QRegularExpression suffix(QStringLiteral("^\\*(\\.[^*?\\[]+)$"));
    if (name.isEmpty() || matches(name))
        return name;
    return name + suffix.match(patterns.constFirst()).captured(1);
}

QVector<FileFilter> parseFilters(const QString &filter)
{
    QVector<FileFilter> filters;
    for (const QString &part : filter.split(QStringLiteral(";;"), Qt::SkipEmptyParts))
        filters.append(parseFilter(part));
    if (filters.isEmpty())
        filters.append(FileFilter());
    return filters;
}

} // namespace palx

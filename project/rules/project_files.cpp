#include "project/rules/project_files.h"

#include "project/rules/program_template.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "workstation/plugin_node.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <filesystem>

namespace palx {

namespace {

const QString kProjectFile = QStringLiteral(".rlprog");

TemplateChoice templateChoice()
{
    const orba::Node &record = currentProjectRecord();
    const orba::Node &frames = pluginNode()->c("global_wobj")->node();
    TemplateChoice choice;
    choice.schemeLayout = static_cast<int>(record.getInt(u"scheme_layout"));
    choice.bollard = static_cast<int>(record.getInt(u"bollard"));
    choice.towardsLeft = static_cast<int>(frames.getInt(u"#0.towards"));
    choice.towardsRight = static_cast<int>(frames.getInt(u"#1.towards"));
    return choice;
}

/// All or nothing: a disk that gets full must not leave half a program. Without `flush` a full disk goes unnoticed when
/// the content is short enough for the file's buffer.
bool writeWhole(const QString &name, const QByteArray &content)
{
    QSaveFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
           file.commit();
}

ProgramResult fail(bool report, QObject *parent, const QString &text)
{
    if (report)
        reportProject("error", text, parent);
    return ProgramResult::Failed;
}

/// A name between the quotes of a JSON text. A quotation mark gets its number, because whoever looks for the end of the
/// text looks for the next one; a backslash too, because in what replaces a match it would name a part of it.
QString jsonText(const QString &name)
{
    QString text;
    for (const QChar sign : name) {
        if (sign == QLatin1Char('"') || sign == QLatin1Char('\\') || sign.unicode() < 0x20)
            text += QStringLiteral("\\u%1").arg(sign.unicode(), 4, 16, QLatin1Char('0'));
        else
            text += sign;
    }
    return text;
}

/// Bytes are taken for letters, so that files in other encodings keep what is not replaced.
bool copyProjectFile(const QString &source, const QString &destination, const QString &newName)
{
    static const QRegularExpression field(QStringLiteral(R"("project_name":\s*"[^"]*")"));
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QString text = QString::fromLatin1(file.readAll());
    const QString value = QStringLiteral("\"project_name\": \"%1\"").arg(jsonText(newName));
    text.replace(field, QString::fromLatin1(value.toUtf8()));
    return file.error() == QFileDevice::NoError && writeWhole(destination, text.toLatin1()) &&
           QFile::setPermissions(destination, file.permissions());
}

bool copyLink(const QString &source, const QString &destination)
{
    std::error_code error;
    std::filesystem::copy_symlink(QFile::encodeName(source).constData(),
                                  QFile::encodeName(destination).constData(), error);
    return !error;
}

/// Anything else, such as a pipe, would make the copy wait for ever.
bool copyEntry(const QFileInfo &entry, const QString &destination, const QString &newName)
{
    const QString source = entry.filePath();
    if (entry.isSymLink())
        return copyLink(source, destination);
    if (entry.isDir())
        return copyDirectory(source, destination, newName);
    if (!entry.isFile())
        return false;
    return entry.fileName() == kProjectFile ? copyProjectFile(source, destination, newName)
                                            : QFile::copy(source, destination);
}

} // namespace

QString readResourceFile(const QString &name, bool *isRead)
{
    QFile file(name);
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (isRead)
        *isRead = file.isOpen() && file.error() == QFileDevice::NoError;
    return QString::fromUtf8(text);
}

ProgramResult writeProgram(QObject *parent, const QString &fileName, const QString &taskName, bool report)
{
    const QString target = getFileName(fileName + QStringLiteral(".mod"), taskName);
    if (report && QFileInfo::exists(target)) {
        reportProject("warning", ProjectText::tr("File %1 already exists!").arg(fileName), parent);
        return ProgramResult::Exists;
    }
    if (!QDir().mkpath(getFileName(QString(), taskName)))
        return fail(report, parent, ProjectText::tr("Cannot create task folder: %1").arg(taskName));
    const QString path = programTemplate(taskName, fileName, templateChoice());
    bool isRead = true;
    QString text;
    if (!path.isEmpty())
        text = readResourceFile(programTemplateRoot() + path, &isRead);
    if (!isRead)
        return fail(report, parent,
                    ProjectText::tr("Cannot read program template: %1").arg(programTemplateRoot() + path));
    if (!writeWhole(target, text.toUtf8()))
        return fail(report, parent, ProjectText::tr("Cannot write to file: %1").arg(target));
    return ProgramResult::Written;
}

bool createMod(QObject *parent, const QString &fileName, const QString &taskName, bool report)
{
    return writeProgram(parent, fileName, taskName, report) == ProgramResult::Written;
}

bool copyDirectory(const QString &source, const QString &destination, const QString &newName)
{
    const QDir from(source);
    const QString inside = QDir::cleanPath(QFileInfo(destination).absoluteFilePath()) + QLatin1Char('/');
    if (source.isEmpty() || !from.exists() ||
        inside.startsWith(QDir::cleanPath(from.absolutePath()) + QLatin1Char('/')))
        return false; // a copy inside of what it is made from would have no end
    if (!QDir().mkpath(destination))
        return false;
    const QFileInfoList entries =
        from.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    return std::all_of(entries.begin(), entries.end(), [&](const QFileInfo &entry) {
        return copyEntry(entry, QDir(destination).filePath(entry.fileName()), newName);
    });
}

} // namespace palx

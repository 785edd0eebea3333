#include "orba/module_manager.h"

#include "orba/file_writer.h"
#include "orba/format_detail.h"

#include <QBuffer>
#include <QFile>

namespace orba {

namespace {

bool named(bool done, const QString &file, FormatError *error)
{
    if (!done && error)
        error->file = file;
    return done;
}

/// Writing "there is none" would hide a mistake, reading into it would lose the content.
bool isUsable(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    const bool usable = mobj && !mobj->isEmptyMobj();
    return usable || named(format::fail(error, format::Texts::tr("there is no such node")), file, error);
}

using Read = bool (*)(const QString &, Node *, FormatError *, const ReadLimits &);

bool read(const QString &file, ModuleObject *mobj, Read readNode, FormatError *error)
{
    Node node;
    if (!isUsable(mobj, file, error) || !readNode(file, &node, error, ReadLimits()))
        return false;
    mobj->copyFrom(node);
    return true;
}

} // namespace

QString FormatError::text() const
{
    QString place = file;
    if (line > 0)
        place += (file.isEmpty() ? QStringLiteral("%1:%2") : QStringLiteral(":%1:%2")).arg(line).arg(column);
    return place.isEmpty() ? what : place + QStringLiteral(": ") + what;
}

QByteArray ModuleManager::toJson(const Node &node, bool compact, FormatError *error)
{
    QByteArray bytes;
    return format::writeJson(node, compact, &bytes, error) ? bytes : QByteArray();
}

bool ModuleManager::fromJson(const QByteArray &text, Node *node, FormatError *error, const ReadLimits &limits)
{
    return format::readJson(text, limits, node, error);
}

bool ModuleManager::writeToJson(const Node &node, const QString &file, FormatError *error)
{
    QByteArray bytes;
    bool done = format::writeJson(node, false, &bytes, error);
    if (done && bytes.size() > ReadLimits().maxBytes)
        done = format::failTooLarge(error);
    return named(done && format::saveFile(file, bytes, error), file, error);
}

bool ModuleManager::readFromJson(const QString &file, Node *node, FormatError *error,
                                 const ReadLimits &limits)
{
    QByteArray bytes;
    const bool done =
        format::loadFile(file, limits, &bytes, error) && format::readJson(bytes, limits, node, error);
    return named(done, file, error);
}

QByteArray ModuleManager::toXml(const Node &node, FormatError *error)
{
    QByteArray bytes;
    return format::writeXml(node, &bytes, error) ? bytes : QByteArray();
}

bool ModuleManager::fromXml(const QByteArray &text, Node *node, FormatError *error, const ReadLimits &limits)
{
    QBuffer source;
    source.setData(text);
    source.open(QIODevice::ReadOnly);
    return format::readXml(&source, limits, Watch(), node, error);
}

bool ModuleManager::writeToXmlFile(const Node &node, const QString &file, FormatError *error)
{
    return writeToXmlFile(node, file, error, ReadLimits(), Watch());
}

bool ModuleManager::readFromXmlFile(const QString &file, Node *node, FormatError *error,
                                    const ReadLimits &limits)
{
    return readFromXmlFile(file, node, error, limits, Watch());
}

bool ModuleManager::writeToXmlFile(const Node &node, const QString &file, FormatError *error,
                                   const ReadLimits &limits, const Watch &watch)
{
    FileWriter target(file);
    const bool done =
        target.open(error) && format::writeXml(node, &target, limits, watch, error) && target.commit(error);
    return named(done, file, error);
}

bool ModuleManager::readFromXmlFile(const QString &file, Node *node, FormatError *error,
                                    const ReadLimits &limits, const Watch &watch)
{
    QFile source(file);
    const bool done =
        format::openFile(&source, limits, error) && format::readXml(&source, limits, watch, node, error);
    return named(done, file, error);
}

bool ModuleManager::writeToXmlFile(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    return isUsable(mobj, file, error) && writeToXmlFile(mobj->node(), file, error);
}

bool ModuleManager::readFromXmlFile(const QString &file, ModuleObject *mobj, FormatError *error)
{
    return read(file, mobj, &ModuleManager::readFromXmlFile, error);
}

bool ModuleManager::writeToJson(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    return isUsable(mobj, file, error) && writeToJson(mobj->node(), file, error);
}

bool ModuleManager::readFromJson(const QString &file, ModuleObject *mobj, FormatError *error)
{
    return read(file, mobj, &ModuleManager::readFromJson, error);
}

} // namespace orba

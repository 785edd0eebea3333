#include "orba/module_manager.h"

#include "orba/format_detail.h"

namespace orba {

namespace {

using Encode = bool (*)(const Node &, QByteArray *, FormatError *);
using Decode = bool (*)(const QByteArray &, const ReadLimits &, Node *, FormatError *);

bool encodeJson(const Node &node, QByteArray *out, FormatError *error)
{
    return format::writeJson(node, false, out, error);
}

bool named(bool done, const QString &file, FormatError *error)
{
    if (!done && error)
        error->file = file;
    return done;
}

bool write(const Node &node, const QString &file, Encode encode, FormatError *error)
{
    QByteArray bytes;
    bool done = encode(node, &bytes, error);
    if (done && bytes.size() > ReadLimits().maxBytes) // nobody could read it back
        done = format::fail(error, format::Texts::tr("the tree is too large to be written"));
    return named(done && format::saveFile(file, bytes, error), file, error);
}

bool read(const QString &file, Node *node, Decode decode, FormatError *error, const ReadLimits &limits)
{
    QByteArray bytes;
    const bool done = format::loadFile(file, limits, &bytes, error) && decode(bytes, limits, node, error);
    return named(done, file, error);
}

/// Writing "there is none" would hide a mistake, reading into it would lose the content.
bool isUsable(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    const bool usable = mobj && !mobj->isEmptyMobj();
    return usable || named(format::fail(error, format::Texts::tr("there is no such node")), file, error);
}

bool read(const QString &file, ModuleObject *mobj, Decode decode, FormatError *error)
{
    Node node;
    if (!isUsable(mobj, file, error) || !read(file, &node, decode, error, ReadLimits()))
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
    return write(node, file, encodeJson, error);
}

bool ModuleManager::readFromJson(const QString &file, Node *node, FormatError *error,
                                 const ReadLimits &limits)
{
    return read(file, node, format::readJson, error, limits);
}

QByteArray ModuleManager::toXml(const Node &node, FormatError *error)
{
    QByteArray bytes;
    return format::writeXml(node, &bytes, error) ? bytes : QByteArray();
}

bool ModuleManager::fromXml(const QByteArray &text, Node *node, FormatError *error, const ReadLimits &limits)
{
    return format::readXml(text, limits, node, error);
}

bool ModuleManager::writeToXmlFile(const Node &node, const QString &file, FormatError *error)
{
    return write(node, file, format::writeXml, error);
}

bool ModuleManager::readFromXmlFile(const QString &file, Node *node, FormatError *error,
                                    const ReadLimits &limits)
{
    return read(file, node, format::readXml, error, limits);
}

bool ModuleManager::writeToXmlFile(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    return isUsable(mobj, file, error) && writeToXmlFile(mobj->node(), file, error);
}

bool ModuleManager::readFromXmlFile(const QString &file, ModuleObject *mobj, FormatError *error)
{
    return read(file, mobj, format::readXml, error);
}

bool ModuleManager::writeToJson(const ModuleObject *mobj, const QString &file, FormatError *error)
{
    return isUsable(mobj, file, error) && writeToJson(mobj->node(), file, error);
}

bool ModuleManager::readFromJson(const QString &file, ModuleObject *mobj, FormatError *error)
{
    return read(file, mobj, format::readJson, error);
}

} // namespace orba

#include "orba/format_detail.h"

#include "orba/file_writer.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace orba::format {

char *writeShortest(char *buffer, double value)
{
    return std::to_chars(buffer, buffer + kNumberLength, value).ptr;
}

QByteArray toBase64(const QString &text)
{
    QByteArray units(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<quint16>(text.utf16(), text.size(), units.data());
    return units.toBase64();
}

bool fromBase64(const QByteArray &base64, QString *text)
{
    const auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.size() % 2 != 0)
        return false;
    *text = QString(decoded.decoded.size() / 2, Qt::Uninitialized);
    qFromBigEndian<quint16>(decoded.decoded.constData(), text->size(), text->data());
    return true;
}

bool fail(FormatError *error, const QString &what, qint64 line, qint64 column)
{
    if (error)
        *error = FormatError{QString(), what, line, column};
    return false;
}

bool failAt(FormatError *error, const QString &what, const char *text, std::size_t offset)
{
    const std::string_view before(text, offset);
    const std::string_view lineBefore =
        before.substr(before.rfind('\n') + 1); // the whole of it on the first line
    const auto isCharacter = [](char c) { return (c & 0xc0) != 0x80; };
    return fail(error, what, std::count(before.begin(), before.end(), '\n') + 1,
                std::count_if(lineBefore.begin(), lineBefore.end(), isCharacter) + 1);
}

QString refusal(const QString &why, const Node &node, const Node &root)
{
    const QString path = node.pathFrom(root);
    return path.isEmpty() ? why : Texts::tr("%1 (at \"%2\")").arg(why, path);
}

QString depthText()
{
    return Texts::tr("lists and maps are nested more than %1 deep").arg(ReadLimits::kMaxDepth);
}

bool failTooLarge(FormatError *error)
{
    return fail(error, Texts::tr("the tree is too large to be written"));
}

bool failStopped(FormatError *error)
{
    fail(error, Texts::tr("was stopped"));
    if (error)
        error->isStopped = true;
    return false;
}

bool openFile(QFile *file, const ReadLimits &limits, FormatError *error)
{
    const QFileInfo info(file->fileName());
    if (!info.exists())
        return fail(error, Texts::tr("the file does not exist"));
    if (!info.isFile()) // reading a pipe or a device might never end
        return fail(error, Texts::tr("this is no regular file"));
    if (info.size() > limits.maxBytes)
        return fail(error, Texts::tr("the file has %1 bytes, more than the %2 that are read")
                               .arg(info.size())
                               .arg(limits.maxBytes));
    return file->open(QIODevice::ReadOnly) ||
           fail(error, Texts::tr("cannot be opened: %1").arg(file->errorString()));
}

bool loadFile(const QString &file, const ReadLimits &limits, QByteArray *bytes, FormatError *error)
{
    QFile source(file);
    if (!openFile(&source, limits, error))
        return false;
    *bytes = source.readAll();
    if (source.error() != QFileDevice::NoError)
        return fail(error, Texts::tr("cannot be read: %1").arg(source.errorString()));
    return true;
}

bool syncFolder(const QString &folder, QString *why)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return true; // a folder that may be written but not listed
    const bool synced = ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
    if (!synced)
        *why = qt_error_string(errno);
    ::close(descriptor);
    return synced;
}

bool saveFile(const QString &file, const QByteArray &bytes, FormatError *error)
{
    FileWriter target(file);
    return target.open(error) && target.write(bytes.constData(), bytes.size(), error) && target.commit(error);
}

} // namespace orba::format

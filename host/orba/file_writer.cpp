#include "orba/file_writer.h"

#include "orba/format_detail.h"

#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace orba {

bool FileWriter::refuse(const QString &why, FormatError *error)
{
    return format::fail(error, format::Texts::tr("cannot be written: %1").arg(why));
}

bool FileWriter::open(FormatError *error)
{
    return target_.open(QIODevice::WriteOnly) || refuse(target_.errorString(), error);
}

bool FileWriter::write(const char *bytes, qint64 size, FormatError *error)
{
    return target_.write(bytes, size) == size || refuse(target_.errorString(), error);
}

bool FileWriter::commit(FormatError *error)
{
    if (!target_.flush())
        return refuse(target_.errorString(), error);
    if (::fsync(target_.handle()) != 0)
        return refuse(qt_error_string(errno), error);
    if (!target_.commit())
        return refuse(target_.errorString(), error);
    QString why;
    return format::syncFolder(QFileInfo(target_.fileName()).absolutePath(), &why) ||
           format::fail(error,
                        format::Texts::tr("is written, but may be lost when the power fails: %1").arg(why));
}

} // namespace orba

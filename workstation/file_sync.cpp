#include "workstation/file_sync.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace palx {

namespace {

bool refuse(const QString &path, int number, QString *error)
{
    if (error)
        *error = QStringLiteral("%1: %2").arg(path, qt_error_string(number));
    return false;
}

} // namespace

bool syncFileSystem(const QString &path, QString *error)
{
    if (path.isEmpty())
        return refuse(path, ENOENT, error);
    // Not blocking: a pipe of that name would wait for its writer.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return refuse(path, errno, error);
    const int result = ::syncfs(descriptor);
    const int number = errno;
    ::close(descriptor);
    return result == 0 || refuse(path, number, error);
}

} // namespace palx

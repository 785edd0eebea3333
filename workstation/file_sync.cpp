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

/// The file itself as well: kernels before 5.8 tell of failed writes only there. Pipes and the like have nothing to sync.
bool syncAll(int descriptor)
{
    const bool isFileSynced =
        ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
    return isFileSynced && ::syncfs(descriptor) == 0;
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
    const bool isSynced = syncAll(descriptor);
    const int number = errno;
    ::close(descriptor);
    return isSynced || refuse(path, number, error);
}

} // namespace palx

#include "controller/state_folder.h"

#include "controller/texts.h"
#include "orba/files.h"
#include "orba/format_detail.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <zlib.h>

namespace controller {

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

namespace {

constexpr const char *kHead = "palx_controller 1 ";
constexpr qint64 kMaxBytes = 256LL * 1024 * 1024; // as much as one message can bring

QByteArray headOf(const QByteArray &body)
{
    const auto sum = crc32(crc32(0, nullptr, 0), reinterpret_cast<const Bytef *>(body.constData()),
                           static_cast<uInt>(body.size()));
    return kHead + QByteArray::number(body.size()) + ' ' + QByteArray::number(quint32(sum), 16) + '\n';
}

/// The tree behind a good head; false with a reason.
bool parse(const QByteArray &bytes, Node *node, QString *why)
{
    const int end = bytes.indexOf('\n') + 1;
    const QByteArray body = QByteArray::fromRawData(bytes.constData() + end, bytes.size() - end);
    if (end == 0 || !bytes.startsWith(kHead))
        *why = Texts::tr("this is no file of a controller");
    else if (bytes.left(end) != headOf(body))
        *why = Texts::tr("length and checksum do not fit the content");
    else {
        FormatError error;
        orba::ReadLimits limits;
        limits.maxBytes = kMaxBytes;
        if (ModuleManager::fromJson(body, node, &error, limits))
            return true;
        *why = error.text();
    }
    return false;
}

} // namespace

std::unique_ptr<StateFolder> StateFolder::open(const QString &folder, QString *why)
{
    if (!QDir().mkpath(folder)) {
        *why = Texts::tr("the folder \"%1\" cannot be made").arg(folder);
        return nullptr;
    }
    const int lock =
        ::open(QFile::encodeName(QDir(folder).filePath(QStringLiteral("controller.lock"))).constData(),
               O_CREAT | O_RDWR | O_CLOEXEC, 0644);
    if (lock < 0 || ::flock(lock, LOCK_EX | LOCK_NB) != 0) {
        *why = lock >= 0 && errno == EWOULDBLOCK
                   ? Texts::tr("another controller uses the folder \"%1\"").arg(folder)
                   : Texts::tr("the folder \"%1\" cannot be written: %2").arg(folder, qt_error_string(errno));
        if (lock >= 0)
            ::close(lock);
        return nullptr;
    }
    std::unique_ptr<StateFolder> state(new StateFolder(QDir(folder).absolutePath(), lock));
    state->signLock();
    return state;
}

/// For people who look who holds the folder; what holds is the lock itself, which ends with the process whatever happens.
void StateFolder::signLock() const
{
    const QByteArray line = QByteArray::number(QCoreApplication::applicationPid()) + '\n';
    const bool isSigned =
        ::ftruncate(lock_, 0) == 0 && ::write(lock_, line.constData(), static_cast<size_t>(line.size())) > 0;
    static_cast<void>(isSigned); // a full disk shows when something is to be kept
}

StateFolder::~StateFolder()
{
    ::close(lock_);
}

QString StateFolder::pathOf(const QString &name) const
{
    return QDir(folder_).filePath(name);
}

StateFolder::Found StateFolder::read(const QString &name, Node *node)
{
    if (!QFileInfo::exists(pathOf(name)))
        return Found::Missing;
    QByteArray bytes;
    FormatError error;
    orba::ReadLimits limits;
    limits.maxBytes = kMaxBytes;
    QString why;
    if (!orba::format::loadFile(pathOf(name), limits, &bytes, &error))
        why = error.text();
    else if (parse(bytes, node, &why))
        return Found::Good;
    setAside(name, why);
    return Found::Damaged;
}

void StateFolder::setAside(const QString &name, const QString &why)
{
    const QString aside = QFileInfo(orba::setAside(pathOf(name))).fileName();
    reports_.append(
        aside.isEmpty()
            ? Texts::tr("\"%1\" is damaged (%2) and cannot be moved").arg(name, why)
            : Texts::tr("\"%1\" is damaged (%2) and was set aside as \"%3\"").arg(name, why, aside));
}

bool StateFolder::write(const QString &name, const Node &node, QString *why)
{
    FormatError error;
    const QByteArray body = ModuleManager::toJson(node, true, &error);
    const QString file = pathOf(name);
    if (!error.isSet() && QDir().mkpath(QFileInfo(file).path()) &&
        orba::format::saveFile(file, headOf(body) + body, &error))
        return true;
    *why = error.isSet() ? QStringLiteral("%1: %2").arg(file, error.text())
                         : Texts::tr("%1: the folder cannot be made").arg(file);
    return false;
}

void StateFolder::remove(const QString &name)
{
    QFile::remove(pathOf(name));
}

QStringList StateFolder::files(const QString &subfolder) const
{
    return QDir(pathOf(subfolder)).entryList({QStringLiteral("*.state")}, QDir::Files, QDir::Name);
}

} // namespace controller

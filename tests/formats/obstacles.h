#pragma once

#include <QByteArray>
#include <QString>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/// Writing a file stops at that many bytes, as on a full disk, until the end of the scope.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit tight{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit old_{};
    void (*handler_)(int) = nullptr;
};

/// A folder that may be read and not written, until the end of the scope. The rights of root are laid down for that
/// time, because root may write anyway.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(const QString &folder) : folder_(folder.toLocal8Bit()), user_(geteuid())
    {
        ::chmod(folder_.constData(), 0555);
        if (user_ == 0)
            isOther_ = ::seteuid(65534) == 0;
    }
    ~ReadOnlyFolder()
    {
        if (isOther_ && ::seteuid(user_) != 0)
            std::abort(); // the rest of the tests must not run as somebody else
        ::chmod(folder_.constData(), 0755);
    }
    ReadOnlyFolder(const ReadOnlyFolder &) = delete;
    ReadOnlyFolder &operator=(const ReadOnlyFolder &) = delete;

private:
    QByteArray folder_;
    uid_t user_;
    bool isOther_ = false;
};

#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <unistd.h>

/// Redirects standard error into a file while it lives.
class StderrCapture
{
public:
    StderrCapture() : saved_(::dup(STDERR_FILENO))
    {
        file_.open();
        ::dup2(file_.handle(), STDERR_FILENO);
    }
    ~StderrCapture()
    {
        ::dup2(saved_, STDERR_FILENO);
        ::close(saved_);
    }
    StderrCapture(const StderrCapture &) = delete;
    StderrCapture &operator=(const StderrCapture &) = delete;

    /// Everything written so far.
    QByteArray take()
    {
        file_.seek(0);
        return file_.readAll();
    }

private:
    int saved_;
    QTemporaryFile file_;
};

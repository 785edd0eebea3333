#pragma once

#include "project_fixture.h"
#include "raw_zip.h"

#include "project/rules/project_export.h"
#include "project/rules/project_import.h"

#include <functional>

/// Counts its steps, and does something at one of them.
class CountingProgress : public palx::Progress
{
public:
    void step(int, int, const QString &) override
    {
        if (steps++ == at && act)
            act();
    }
    bool isCancelled() override { return isCancelled_; }
    bool enterLastPart() override { return !isCancelled_; }

    int steps = 0;
    int at = -1; ///< the step at which `act` is called
    std::function<void()> act;
    void cancel() { isCancelled_ = true; }

private:
    bool isCancelled_ = false;
};

/// Projects of a temporary workspace and a folder for archives, a disk to be pulled.
class ExchangeTest : public ProjectTest
{
protected:
    ExchangeTest();

    QString disk() const { return outside_.filePath(QStringLiteral("disk")); }
    QString onDisk(const QString &name) const { return disk() + QLatin1Char('/') + name; }
    QString programs() const { return outside_.filePath(QStringLiteral("program")); }
    void putArchive(const QString &name, const std::vector<RawEntry> &entries) const;
    /// A project's folder with a task and hidden file; "var.xml" is written when it is given.
    void putProject(const QString &name, const QByteArray &variables = QByteArray()) const;

    bool exportNames(const QStringList &names, palx::Progress *progress = nullptr) const;
    bool import(const QStringList &names, palx::OnClash onClash, palx::Progress *progress = nullptr) const;
    static QString record(const QString &name);
    static void setRecord(const QString &name, const char *parameters);
    /// Everything below the folder for archives, or any other.
    static QStringList names(const QString &folder);

private:
    QTemporaryDir outside_;
};

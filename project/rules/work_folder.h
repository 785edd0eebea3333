#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// A folder for what is no project yet or no more: beside the robot's folder, so that it is on the same disk and one
/// renaming makes it a project. This process's own; what a process that was killed left behind is removed by
/// `removeAbandonedWork`.
class PALX_API WorkFolder
{
public:
    /// Makes an empty folder of that name, which is one folder's; what stood there is removed.
    WorkFolder(const QString &robotFolder, const QString &name);
    /// Removes it with all that is in it.
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;

    /// Empty when it could not be made.
    QString path() const { return path_; }
    QString filePath(const QString &name) const { return path_ + QLatin1Char('/') + name; }

private:
    QString path_;
};

/// The name of a folder that tells whose it is.
QString ofThisProcess(const QString &prefix, const QString &name);
/// Whether the process that named a folder so has not ended.
bool isOfRunningProcess(const QString &prefix, const QString &folder);

/// Removes the work folders beside the robot's folder whose processes have ended.
PALX_API void removeAbandonedWork(const QString &robotFolder);

} // namespace palx

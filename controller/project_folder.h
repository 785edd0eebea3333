#pragma once

#include "orba/node.h"

namespace controller {

/// What stands in the folder of a project besides its programs, so that a copy of the folder is a copy of the project:
/// ".rlprog", JSON with its name and tasks, "var.xml" with its variables, and "var_monitor.json", which the panel writes, with
/// those that are monitored. The folder may have come from anywhere.
class ProjectFolder
{
public:
    /// An empty path has nothing.
    explicit ProjectFolder(QString path) : path_(std::move(path)) {}

    /// Whether it is there with nothing in it, as the panel makes it for a new project.
    bool isBlank() const;
    /// Differs when ".rlprog" or "var.xml" differ; empty when there is no ".rlprog".
    QString mark() const;
    /// Exchanges the lists that the folder has for its own; what it says nothing of stays. False with the reason, and all are as
    /// before, when a file is no file, cannot be read, holds something else, or more than a controller keeps of a project.
    bool read(orba::Node *tasks, orba::Node *variables, orba::Node *monitored, QString *why) const;
    /// Writes ".rlprog" and "var.xml" where they are not the same already. False with the reason.
    bool write(const QString &project, const orba::Node &tasks, const orba::Node &variables,
               QString *why) const;

private:
    QString filePath(const char *name) const { return path_ + QLatin1Char('/') + QLatin1String(name); }

    QString path_;
};

} // namespace controller

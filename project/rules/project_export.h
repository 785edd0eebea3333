#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QStringList>

/// Robot projects and the program templates as zip archives.
namespace palx {

struct ExportRequest
{
    QStringList projects;
    bool hasTemplates = false; ///< the program templates as "mod.zip"
    QString target;            ///< folder; must be there
    QString programFolder;     ///< where "mod" may stand
};

/// Writes one archive for each project, its name + ".zip", into the target folder; an older one of that name is replaced when
/// the new one is whole. An archive holds the project's folder as it stands, and the project's parameters as variables in its
/// "var.xml"; the folder itself is not touched. The end is told through the host's messages, a reason also as a record
/// of the operator's log. False when it was refused, failed or was cancelled: a failure leaves the archives of the projects before,
/// a cancelled export leaves the target folder as it was.
///
/// GUI thread. Asks `progress` often, and events may be handled meanwhile.
PALX_API bool exportProjects(const ExportRequest &request, Progress *progress);

/// The file that a project is exported to.
PALX_API QString archivePath(const QString &target, const QString &project);

} // namespace palx

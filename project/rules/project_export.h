#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QDateTime>
#include <QStringList>
#include <QVector>

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

/// What an export would make of one archive.
struct ExportPlan
{
    QString file;       ///< its name
    QString problem;    ///< why the disk does not take it; empty when nothing is in the way
    QDateTime replaced; ///< time of the archive whose place it takes; invalid when there is none
};

/// What would become of the archives of those projects, in this order. Without a target nothing is in the way. Asks the disk, which
/// may take a while: once for each target, not at each touch.
PALX_API QVector<ExportPlan> planExport(const QString &target, const QStringList &projects);

/// What the program templates go by among projects; see `archivePath`.
PALX_API QString templatesName();

/// The file that a project is exported to.
PALX_API QString archivePath(const QString &target, const QString &project);

} // namespace palx

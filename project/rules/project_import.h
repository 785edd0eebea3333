#pragma once

#include "orba/export.h"
#include "project/rules/archive_check.h"
#include "project/rules/template_exchange.h"
#include "workstation/progress.h"

#include <QStringList>
#include <QVector>

/// Robot projects from zip archives.
namespace palx {

/// What happens to a project whose name is taken.
enum class OnClash {
    Rename, ///< the imported one gets "(1)", "(2)", ... behind its name, the first that is free
    Replace ///< the imported one takes its place
};

/// What becomes of one archive.
struct ImportPlan
{
    QString archive;
    QString name; ///< of the project that comes of it; empty when `problem` says why none can
    bool isRenamed = false;
    bool isReplacing = false;
    QString problem;
};

/// What would become of archives that are imported in this order. The name of a project is its archive's without ".zip".
PALX_API QVector<ImportPlan> planImport(const QStringList &archives, OnClash onClash);

/// Why an archive whose content is fine is none of a project; empty when it is.
PALX_API QString projectProblem(const ArchiveContent &content);

struct ImportRequest
{
    QStringList archives;
    OnClash onClash = OnClash::Rename;
    TemplateAction templates = TemplateAction::None;
    QString templateArchive; ///< for TemplateAction::Custom
    QString programFolder;   ///< where "mod" stands
};

/// Imports projects and then templates. Each archive is judged and unpacked beside the projects, gets its parameters read
/// and everybody's permissions, and then takes its place by one renaming; a project that it replaces is kept for
/// `undoLastImport`. Before the end of it no project is touched: whatever fails, or a killed process at its next start, leaves the
/// old project with its record. An archive that cannot be imported is told and the next one taken. False when one was not
/// imported, or the import was cancelled: everything is then as it was before. A project that cannot be taken out of the way ends the
/// import. `failed` gets the archives that were not imported. What the import before kept to be undone goes when this one
/// brought something.
///
/// GUI thread. Asks `progress` often, and events may be handled meanwhile.
PALX_API bool importProjects(const ImportRequest &request, Progress *progress, QStringList *failed = nullptr);

/// Puts right what an import, an export or another operation left that was killed in the middle, templates included. See
/// `recoverProjects`.
PALX_API void recoverExchange(const QString &programFolder);

/// What the last import of this session made; empty when there is nothing to undo, or
/// another robot is connected now.
PALX_API QStringList lastImported();
/// Puts everything back that the last import changed, projects and templates. False, after the message, when a
/// folder could not be moved.
PALX_API bool undoLastImport();
/// Removes what is kept to undo the last import, as the end of the session does.
PALX_API void forgetLastImport();

} // namespace palx

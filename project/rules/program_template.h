#pragma once

#include "orba/export.h"

#include <QCoreApplication>
#include <QStringList>

/// Robot program templates: which one a program file of a project starts from, and where they lie.
namespace palx {

/// What decides on a template besides the names of task and file; as in the project's record and the global work objects.
struct TemplateChoice
{
    int schemeLayout = 0; ///< "scheme_layout": 0 left, 1 right, 2 both; 3 (double line) has no templates
    int bollard = 0;      ///< "bollard": 0 with lift column, anything else without
    int towardsLeft = 0;  ///< "towards" of the first global work object
    int towardsRight = 0; ///< of the second
};

/// The template of a program file, as path below the template root ("/motion/main/main_single_left.mod"); empty when the
/// file starts empty. `task` and `file` (without ".mod") are compared to the letter.
PALX_API QString programTemplate(const QString &task, const QString &file, const TemplateChoice &choice);

/// Every path that programTemplate can give.
PALX_API QStringList programTemplates();

/// The folder "mod" in the program's folder when there is one, else the built-in tree ":/palx_workstation/mod".
PALX_API QString programTemplateRoot(const QString &programFolder = QCoreApplication::applicationDirPath());

/// Reads the template of that path, or nothing for an empty path. False with a reason when it cannot be read.
PALX_API bool readProgramTemplate(const QString &path, QByteArray *text, QString *why,
                                  const QString &root = programTemplateRoot());

} // namespace palx

#pragma once

#include "panel_data.h"
#include "recipe_commands.h"

#include <QMap>

namespace cli {

/// What a `palx project` command is asked.
struct ProjectRequest
{
    enum class What { List, Create, Edit, Delete, Switch, StartUp, Import, Export } what = What::List;
    QString name;
    QString newName;           ///< of an edited project; empty: the same
    QString source;            ///< project to be copied; empty: none
    QStringList files;         ///< archives to import, or names of projects to export
    bool isReplacing = false;  ///< imported projects replace those of their names
    bool hasTemplates = false; ///< program templates are exported, too
    QString targetFolder;      ///< of exported archives; made when missing
    QMap<QString, int>
        parameters; ///< by key of the record; those that are missing stay, or are 0 in a new project
    QMap<QString, QString> recipes; ///< the two recipes by their names
    PanelPlaces places;
    Output output = Output::Table;
};

/// Does it and prints the project, or all of them. Returns the exit code.
int runProject(const ProjectRequest &request);

} // namespace cli

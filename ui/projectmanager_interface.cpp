// What the page offers by its class to other pages; the rules do it.

#include "ui/projectmanager.h"

#include "project/rules/project_files.h"
#include "project/rules/project_place.h"
#include "project/rules/project_variables.h"
#include "ui/projectparamsetuppage.h"

QString ProjectManager::getFileName(const QString &fileName, const QString &taskName)
{
    return palx::getFileName(fileName, taskName);
}

bool ProjectManager::createMod(QObject *parent, const QString &fileName, const QString &taskName, bool report)
{
    return palx::createMod(parent, fileName, taskName, report);
}

bool ProjectManager::copyDirectory(const QString &source, const QString &destination, const QString &newName)
{
    return palx::copyDirectory(source, destination, newName);
}

bool ProjectManager::checkVarExists(const QString &name)
{
    return palx::checkVarExists(name);
}

void ProjectManager::createVar(const QString &name, const QString &description, const QString &type,
                               const QString &value)
{
    palx::createVar(name, description, type, value);
}

void ProjectManager::createPERSVar(const QString &name, const QString &description, const QString &type,
                                   const QString &value)
{
    palx::createPERSVar(name, description, type, value);
}

void ProjectManager::saveDataToOrba(const QString &projectName) const
{
    parameters_->dataToOrbaSaved(projectName);
}

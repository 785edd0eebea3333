#pragma once

#include "controller/in_process_carrier.h"
#include "project/rules/project_commit.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "shell/host_session.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QDir>

#include <memory>

/// Makes projects for both sides.
class BothSides : public palx::ProjectSteps
{
public:
    void saveParameters(const QString &name) override
    {
        orba::Node both;
        both.ensure(u"scheme_layout")->setInt(2);
        palx::writeProjectParameters(name, both);
    }
    void becameCurrent() override { palx::createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool) override {}
};

/// The plug-in without pages, and a controller of this process that keeps its state; "workspace" and "controller" in the folder.
inline std::unique_ptr<host::HostSession> startLinked(const QString &folder)
{
    host::SessionOptions options;
    options.workspaceFolder = QDir(folder).filePath(QStringLiteral("workspace"));
    options.linkedPlugins = QStringList(palx::getPluginName());
    options.pages = false;
    controller::StationOptions station;
    station.workspaceFolder = options.workspaceFolder;
    station.dataFolder = QDir(folder).filePath(QStringLiteral("controller"));
    options.carrier = [station] {
        return std::make_unique<controller::InProcessCarrier>(
            std::make_shared<controller::Controller>(station));
    };
    auto session = std::make_unique<host::HostSession>(options);
    if (!session->start())
        qFatal("the session does not start");
    while (m("nexo.r.id")->getString().isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return session;
}

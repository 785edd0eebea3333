#pragma once

#include "controller/controller.h"
#include "controller/faulty_carrier.h"
#include "project/rules/project_commit.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "shell/host_session.h"
#include "support/test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <memory>

/// Stands in for the page: has the parameters.
class ScriptedSteps : public palx::ProjectSteps
{
public:
    void saveParameters(const QString &name) override { palx::writeProjectParameters(name, parameters); }
    void becameCurrent() override { palx::createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool) override {}

    orba::Node parameters;
};

/// The plug-in in a session without pages, linked to a simulated controller of this process; everything in a temporary
/// workspace. The robot is "SIM-0001".
class ProjectTest : public ::testing::Test
{
protected:
    ProjectTest();
    void SetUp() override { start(); }

    /// Ends a running session first. The controller goes on, and tells the new session what it knows.
    void start();
    void startWithoutController();
    /// Waits until the controller has taken every edit and told what came of it.
    static void settle();
    /// The cable between panel and controller.
    void pullPlug() { way_->cut(); }
    void plugIn() { way_->restore(); }

    QString workspace() const { return folder_.filePath(QStringLiteral("workspace")); }
    /// A path below the robot's folder.
    QString place(const QString &path) const;
    QByteArray content(const QString &path) const;
    void putFile(const QString &path, const QByteArray &content) const;
    /// Every folder ("name/") and file of the workspace with its content, without the hidden project's files.
    std::map<std::string, std::string> files() const;
    /// The messages and questions since the last call, "level: text" and "ask: text", in order of their kinds.
    QStringList takeMessages();
    /// Adds a project that must succeed, and forgets what was told.
    void add(const QString &name, const char *parameters = "{}");
    /// Names of the current project's tasks with their files, "task0: main BackHome".
    static QStringList tasks();
    static QString current();

    ScriptedPresenter presenter;
    ScriptedSteps steps;
    QStringList records; ///< operator's log records, "level: title"

private:
    void open(bool isLinked);

    QTemporaryDir folder_;
    std::shared_ptr<controller::Controller> controller_;
    controller::FaultyCarrier *way_ = nullptr; ///< of the session
    std::unique_ptr<host::HostSession> session_;
};

#include "project_command.h"

#include "nexo/controller_manager.h"
#include "orba/module_manager.h"
#include "project/rules/project_commit.h"
#include "project/rules/project_export.h"
#include "project/rules/project_import.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_tasks.h"
#include "project/rules/project_variables.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>
#include <QDir>

namespace cli {
namespace {

using orba::Node;
using What = ProjectRequest::What;

class Steps : public palx::ProjectSteps
{
public:
    explicit Steps(Node parameters) : parameters_(std::move(parameters)) {}
    void saveParameters(const QString &name) override { palx::writeProjectParameters(name, parameters_); }
    void becameCurrent() override { palx::createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool) override {}

private:
    Node parameters_;
};

// ---------------------------------------------------------------- what is asked

/// The place of a recipe in its side's list; -1, with the reason said, when there is none.
int recipePlace(const QString &key, const QString &name)
{
    const bool isLeft = key == QLatin1String("left_stack_recipe");
    const QStringList names = palx::sideRecipes(palx::stacksNode()->node(), isLeft);
    if (!names.contains(name))
        say(QStringLiteral("no recipe of the %1 pallet is called \"%2\"; there are: %3")
                .arg(isLeft ? QStringLiteral("left") : QStringLiteral("right"), name,
                     names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "))));
    return names.indexOf(name);
}

/// Those of the project that is edited or copied, with what was asked on top.
bool readParameters(const ProjectRequest &request, Node *parameters)
{
    const QString from = request.what == What::Edit ? request.name : request.source;
    if (!from.isEmpty())
        parameters->assign(palx::projectRecord(from)->node());
    for (auto each = request.parameters.begin(); each != request.parameters.end(); ++each)
        parameters->ensure(each.key())->setInt(each.value());
    for (auto each = request.recipes.begin(); each != request.recipes.end(); ++each) {
        const int place = recipePlace(each.key(), each.value());
        if (place < 0)
            return false;
        parameters->ensure(each.key())->setInt(place);
    }
    return true;
}

/// Whether the projects that a command speaks of are there.
bool areThere(const ProjectRequest &request)
{
    QStringList wanted;
    if (request.what != What::Create && !request.name.isEmpty())
        wanted.append(request.name);
    if (!request.source.isEmpty())
        wanted.append(request.source);
    if (request.what == What::Export)
        wanted += request.files;
    const QStringList names = palx::projectNames();
    for (const QString &name : wanted) {
        if (names.contains(name))
            continue;
        say(QStringLiteral("no project is called \"%1\"; there are: %2")
                .arg(name, names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "))));
        return false;
    }
    return true;
}

/// Shows how far an exchange has come, on a terminal.
class TerminalProgress : public palx::NoProgress
{
public:
    void step(int done, int total, const QString &text) override { line_.show(text, done, total); }

private:
    cli::Progress line_;
};

bool importArchives(const ProjectRequest &request)
{
    palx::ImportRequest import;
    for (const QString &file : request.files)
        import.archives.append(QFileInfo(file).absoluteFilePath());
    import.onClash = request.isReplacing ? palx::OnClash::Replace : palx::OnClash::Rename;
    import.programFolder = QCoreApplication::applicationDirPath();
    TerminalProgress progress;
    return palx::importProjects(import, &progress);
}

bool exportArchives(const ProjectRequest &request)
{
    const QString target = QDir(request.targetFolder).absolutePath();
    if (!QDir().mkpath(target)) {
        say(target + QStringLiteral(": the folder cannot be made"));
        return false;
    }
    TerminalProgress progress;
    return palx::exportProjects(
        {request.files, request.hasTemplates, target, QCoreApplication::applicationDirPath()}, &progress);
}

bool carryOut(const ProjectRequest &request, Steps *steps)
{
    switch (request.what) {
    case What::List:
        return true;
    case What::Create:
        return palx::addProject(request.name,
                                request.source.isEmpty() ? std::nullopt : std::make_optional(request.source),
                                steps);
    case What::Edit:
        return palx::editProject(request.newName.isEmpty() ? request.name : request.newName, request.name,
                                 steps);
    case What::Delete:
        return palx::deleteProject(request.name, steps);
    case What::Switch:
        return palx::reloadProject(request.name, steps);
    case What::StartUp:
        return palx::setDefaultProject(request.name);
    case What::Import:
        return importArchives(request);
    case What::Export:
        return exportArchives(request);
    }
    return false;
}

// ---------------------------------------------------------------- what is printed

void describeFiles(const QString &project, Node *files)
{
    files->reset(Node::Kind::List);
    for (const palx::ProgramFile &program : palx::projectPrograms(project)) {
        Node *file = files->add();
        file->ensure(u"task")->setString(program.task);
        file->ensure(u"name")->setString(program.name);
        file->ensure(u"path")->setString(QDir::cleanPath(program.path));
    }
}

void describe(const QString &project, Node *described)
{
    described->ensure(u"name")->setString(project);
    described->ensure(u"folder")->setString(QDir::cleanPath(palx::projectFolder(project)));
    described->ensure(u"current")->setBool(project == palx::currentProject());
    described->ensure(u"start_up")->setBool(project == palx::startUpProject());
    Node *parameters = described->ensure(u"parameters");
    parameters->reset(Node::Kind::Map);
    for (const QString &key : palx::projectParameters())
        if (const Node *value = palx::projectRecord(project)->node().child(QStringView(key)))
            parameters->ensure(key)->assign(*value);
    describeFiles(project, described->ensure(u"files"));
}

Node describeAll()
{
    Node all;
    Node *projects = all.ensure(u"projects");
    projects->reset(Node::Kind::List);
    for (const QString &name : palx::projectNames())
        describe(name, projects->add());
    return all;
}

QByteArray table(const Node &projects)
{
    QString text;
    for (int i = 0; i < projects.size(); ++i) {
        const Node &project = *projects.at(i);
        QStringList marks;
        if (project.getBool(u"current"))
            marks.append(QStringLiteral("current"));
        if (project.getBool(u"start_up"))
            marks.append(QStringLiteral("loaded at start-up"));
        text += QStringLiteral("%1  %2 program files  %3\n")
                    .arg(project.getString(u"name"))
                    .arg(project.child(QStringView(u"files"))->size())
                    .arg(marks.join(QStringLiteral(", ")));
    }
    return text.toUtf8();
}

bool print(Output output)
{
    const Node all = describeAll();
    if (output == Output::Json)
        return putResult(orba::ModuleManager::toJson(all, false));
    return putResult(table(*all.child(QStringView(u"projects"))));
}

/// Whether a connected controller took the current project into use; the reason is told among its notices.
bool isBuilt(const ProjectRequest &request)
{
    const bool isUsed = request.what == What::Create || request.what == What::Edit ||
                        (request.what == What::Switch && !request.name.isEmpty());
    return !isUsed || !nexo::ControllerManager::instance()->rcConnected() ||
           m("quill.project.task.built")->getBool();
}

} // namespace

int runProject(const ProjectRequest &request)
{
    const auto session = openPanel(request.places);
    Node parameters;
    if (!session || !areThere(request) || !readParameters(request, &parameters))
        return kRefused;
    palx::recoverExchange(QCoreApplication::applicationDirPath());
    Steps steps(parameters);
    const bool isDone = carryOut(request, &steps);
    return settlePanel(session.get()) && isDone && print(request.output) && isBuilt(request) ? kDone
                                                                                             : kRefused;
}

} // namespace cli

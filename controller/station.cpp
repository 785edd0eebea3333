#include "controller/station.h"

#include "controller/texts.h"
#include "controller/tree_depth.h"
#include "orba/module_manager.h"

#include <QDir>

namespace controller {

using orba::Node;

namespace {

constexpr double kPublishTime = 0.02; // [s] a moving robot is told 50 times a second
constexpr QStringView kProject = u"quill.project";
constexpr int kMaxPath = 1000; // characters

/// What the panel is told before anything happened. "built" says of a part of the project that it is in use as it stands.
constexpr const char *kTree = R"({
  "nexo": {"r": {"id": "", "version": "", "name": "", "report": []}, "robot": {}, "cell": {}},
  "quill": {
    "project": {
      "cur_project": "", "autoload_prj_path": "", "_list": [],
      "task": {"built": false, "_list": [],
        "default": {"name": "", "description": "", "type": "normal", "priority": 2,
                    "files": [{"name": "main", "description": "", "type": "MOD"}]}},
      "var": {"built": false, "_list": []},
      "var_monitor": {"built": false, "_list": [],
        "default": {"name": "", "description": "", "type": ""}}},
    "body": {"toolset": ""}}})";

Node templateTree()
{
    Node tree;
    orba::ModuleManager::fromJson(kTree, &tree);
    return tree;
}

QStringList folderNames(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    names.removeAll(QStringLiteral("_build"));
    names.removeAll(QStringLiteral("palx_default"));
    return names;
}

void setTexts(Node *list, const QStringList &texts)
{
    list->reset(Node::Kind::List);
    for (const QString &text : texts)
        list->add()->setString(text);
}

} // namespace

// ---------------------------------------------------------------- start, state

Station::Station(StationOptions options)
    : options_(std::move(options)), keeper_(openState(options_.dataFolder, &reports_)),
      start_(keeper_ ? keeper_->load() : StateSnapshot()), tree_(templateTree()), pallets_(start_.recipes),
      projects_(&project(), start_.projects), desk_(&pallets_, options_.seed), mirror_(&tree_)
{
    desk_.setSpeed(options_.speed);
    restore(start_.own ? *start_.own : Node());
    restoreCell(start_.cell ? *start_.cell : Node());
    start_ = StateSnapshot();
    tree_.set(u"nexo.r.version", options_.version);
    tree_.set(u"nexo.r.name", Texts::tr("Simulated controller"));
    tree_.set(u"quill.body.toolset", tools_.active());
    if (keeper_)
        reports_ += keeper_->reports();
    setTexts(tree_.find(u"nexo.r.report"), reports_);
    for (const QString &report : std::as_const(reports_))
        notice("warning", report);
    listProjects();
    publishRobot();
    publishCellNodes();
}

std::shared_ptr<StateKeeper> Station::openState(const QString &folder, QStringList *reports)
{
    QString why;
    if (folder.isEmpty())
        return nullptr;
    auto state = StateFolder::open(folder, &why);
    if (state)
        return std::make_shared<StateKeeper>(std::move(state));
    reports->append(Texts::tr("nothing will be kept: %1").arg(why));
    return nullptr;
}

void Station::restore(const Node &kept)
{
    QString id = options_.id.isEmpty() ? kept.getString(u"id") : options_.id;
    if (id.isEmpty())
        id = QStringLiteral("SIM-0001");
    tree_.set(u"nexo.r.id", id);
    const QString autoload = kept.getString(u"autoload");
    project().set(u"autoload_prj_path", autoload);
    const QString startUp = autoload.section(QLatin1Char('/'), 0, 0);
    project().set(u"cur_project",
                  startUp.isEmpty() ? kept.getString(u"current") : id + QLatin1Char('/') + startUp);
    exchangeLists();
    if (const Node *tools = kept.child(QStringView(u"tools")))
        tools_.restore(*tools);
    if (const Node *joints = kept.child(QStringView(u"joints")))
        restoreJoints(*joints);
    changed_ = kept.getString(u"id") != id;
}

/// The robot stands where it stood.
void Station::restoreJoints(const Node &kept)
{
    Joints joints;
    for (std::size_t i = 0; i < joints.size(); ++i)
        joints[i] = kept.number(static_cast<int>(i));
    if (kept.size() == static_cast<int>(joints.size()) && arm::limitFault(joints).isEmpty())
        robot_ = Robot(joints);
}

QString Station::title() const
{
    return QStringLiteral("%1 %2").arg(tree_.getString(u"nexo.r.name"), options_.version);
}

StateSnapshot Station::takeSnapshot()
{
    auto own = std::make_shared<Node>();
    own->ensure(u"id")->setString(robotId());
    own->ensure(u"autoload")->setString(project().getString(u"autoload_prj_path"));
    own->ensure(u"current")->setString(projects_.current());
    own->ensure(u"tools")->assign(tools_.saved());
    own->ensure(u"joints")->setDoubles(robot_.joints().data(), static_cast<int>(robot_.joints().size()));
    changed_ = false;
    auto cell = std::make_shared<Node>(desk_.runner().cell().world().saved());
    return {own, cell, pallets_.snapshot(), projects_.snapshot()};
}

void Station::snapshotWritten(const QString &why)
{
    if (!why.isEmpty() && why != saveFault_)
        notice("error", Texts::tr("The controller cannot keep its state: %1").arg(why));
    changed_ = changed_ || !why.isEmpty();
    saveFault_ = why;
}

bool Station::save()
{
    QString why;
    if (!isChanged())
        return true;
    keeper_->save(takeSnapshot(), &why);
    snapshotWritten(why);
    return why.isEmpty();
}

// ---------------------------------------------------------------- projects

bool Station::write(const QString &path, Node &payload, QString *why)
{
    const bool isInside = path == kProject || path.startsWith(kProject.toString() + QLatin1Char('.'));
    if (!isInside || (path == kProject && payload.kind() != Node::Kind::Map))
        *why = Texts::tr("the panel does not write \"%1\"").arg(path.left(100));
    else if (path.size() > kMaxPath || !isShallow(payload))
        *why = Texts::tr("what was written at \"%1\" is nested too deep").arg(path.left(100));
    else {
        if (path == kProject)
            projects_.keepLists(); // others may take their place
        if (mirror_.write(path, payload)) {
            written(path);
            return true;
        }
        *why = Texts::tr("there is no place \"%1\"").arg(path.left(100));
    }
    mirror_.force(kProject.toString()); // the panel has something that the controller has not
    return false;
}

void Station::written(const QString &path)
{
    changed_ = true;
    if (path == QLatin1String("quill.project.cur_project"))
        switchProject();
    else
        projects_.follow();
    desk_.variablesChanged(projects_.variableList());
}

void Station::switchProject()
{
    desk_.leaveProject(&projects_.variableList());
    exchangeLists();
    setBuilt(false);
    listProjects();
    tellLists();
    publishAll();
}

/// A folder that is in use and cannot be read is told when it is built as well.
void Station::exchangeLists()
{
    const QString key = project().getString(u"cur_project");
    const QString why = projects_.exchange(ProjectFolder(folderOf(key)));
    if (!why.isEmpty())
        notice("error", Texts::tr("The project %1 cannot be read: %2").arg(key, why));
}

/// Another folder may have taken the place of the current project's. What runs goes on with what it has. The operator is told
/// why a folder is unusable.
Station::Folder Station::followFolder()
{
    const ProjectFolder folder(projectFolder());
    if (!projects_.isReplaced(folder))
        return Folder::Same;
    if (desk_.runner().state() == Runner::State::Stopped)
        switchProject();
    else
        notice("warning",
               Texts::tr(
                   "The folder of the project %1 was exchanged while its program runs; what is in it counts "
                   "when the program is stopped and started again")
                   .arg(projects_.current()));
    return projects_.isReplaced(folder) ? Folder::Unusable : Folder::Exchanged;
}

void Station::tellLists()
{
    for (const QStringView list : Projects::kLists)
        mirror_.force(mName(kProject.toString(), list.toString()));
}

bool Station::trigger(const QString &path, QString *why)
{
    if (path == QLatin1String("quill.project.refresh_project"))
        refreshProjects();
    else if (path == QLatin1String("quill.project.rsync.build"))
        buildProject();
    else if (path == QLatin1String("quill.project.rsync.push"))
        tellLists();
    else
        *why = Texts::tr("there is no event \"%1\"").arg(path.left(100));
    return why->isEmpty();
}

void Station::refreshProjects()
{
    listProjects();
    followFolder();
}

void Station::listProjects()
{
    Node *list = project().ensure(u"_list");
    if (list && !options_.workspaceFolder.isEmpty())
        setTexts(list, folderNames(QDir(options_.workspaceFolder).filePath(robotId())));
}

/// The folder of a project; empty when its key leads out of the workspace.
QString Station::folderOf(const QString &key) const
{
    const QString workspace = QDir::cleanPath(options_.workspaceFolder) + QLatin1Char('/');
    const QString folder = QDir::cleanPath(workspace + key);
    return !options_.workspaceFolder.isEmpty() && folder.startsWith(workspace) ? folder : QString();
}

/// Takes the current project into use. Without one there is nothing to build.
void Station::buildProject()
{
    const QString key = projects_.current();
    const QString folder = projectFolder();
    const bool isThere = !folder.isEmpty() && QDir(folder).exists();
    const bool isReady = isThere && followFolder() != Folder::Unusable;
    setBuilt(key.isEmpty() || isReady);
    listProjects();
    if (isReady) {
        writeLists();
        if (project().find(Projects::kLists[0])->size() == 0)
            notice("warning",
                   Texts::tr("The project %1 has no tasks: edit it, and they are made anew").arg(key));
        desk_.check(projectInUse());
        publishAll();
    }
    if (!key.isEmpty() && !isThere)
        notice("error", Texts::tr("The project %1 cannot be built: it has no folder in the workspace \"%2\"")
                            .arg(key, options_.workspaceFolder));
}

/// So that a copy of the folder is a copy of the project.
void Station::writeLists()
{
    desk_.flushVariables(&projects_.variableList());
    const QString why = projects_.writeTo(ProjectFolder(projectFolder()));
    if (!why.isEmpty())
        notice("warning", Texts::tr("The folder of the project %1 does not take its tasks and variables: %2")
                              .arg(projects_.current(), why));
}

void Station::setBuilt(bool built)
{
    for (int i = 0; i < project().size(); ++i)
        if (Node *flag = project().at(i)->child(QStringView(u"built")))
            flag->setBool(built);
}

QString Station::assignVariable(const QString &name, const Node &value)
{
    QString why = Variables::assign(projects_.variableList(), name, value);
    changed_ = changed_ || why.isEmpty();
    return why;
}

// ---------------------------------------------------------------- time

void Station::panelLost()
{
    robot_.stop(Texts::tr("stopped: the link to the panel is lost"));
    publishRobot();
}

void Station::advance(double seconds)
{
    if (!isBusy())
        return;
    sincePublished_ += seconds;
    sinceCellPublished_ += seconds;
    if (robot_.isMoving()) {
        robot_.advance(seconds, desk_.speed());
        desk_.runner().cell().world().way().standAt(robot_.joints());
        changed_ = changed_ || !robot_.isMoving();
    }
    desk_.advance(seconds);
    followRobot();
    if (!isBusy() || sincePublished_ >= kPublishTime)
        publishRobot();
    if (!isBusy() || sinceCellPublished_ >= CellDesk::kPublishTime)
        publishCellNodes();
}

void Station::publishRobot()
{
    sincePublished_ = 0;
    Node *node = tree_.find(u"nexo.robot");
    robot_.publish(node);
    const cell::Way &way = desk_.runner().cell().world().way();
    if (way.isMoving()) {
        node->ensure(u"moving")->setBool(true);
        node->ensure(u"progress")->setDouble(way.progress());
    }
    node->ensure(u"toolset")->setString(tools_.active());
}

void Station::notice(const char *level, const QString &text)
{
    Node value;
    value.ensure(u"level")->setString(QLatin1String(level));
    value.ensure(u"text")->setString(text);
    events_.push_back({QStringLiteral("controller.notice"), value});
}

std::deque<Station::Event> Station::takeEvents()
{
    return std::exchange(events_, {});
}

} // namespace controller

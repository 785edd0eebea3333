#include "controller/cell_desk.h"

#include "controller/texts.h"

#include <QHash>

#include <cmath>

namespace controller {

using orba::Node;

namespace {

constexpr int kToldProblems = 20; // more are only counted

bool readFlag(const Node &payload, bool *on, QString *why)
{
    const Node *node = payload.child(QStringView(u"on"));
    if (node && node->kind() == Node::Kind::Bool) {
        *on = node->toBool();
        return true;
    }
    *why = Texts::tr("\"on\" is missing or neither true nor false");
    return false;
}

/// A finite number of a payload, or `fallback`.
double numberOf(const Node &payload, QStringView key, double fallback)
{
    const Node *node = payload.child(key);
    const bool isNumber = node && (node->kind() == Node::Kind::Int || node->kind() == Node::Kind::Double);
    return isNumber && std::isfinite(node->toDouble()) ? node->toDouble() : fallback;
}

} // namespace

CellDesk::Handler CellDesk::handlerOf(const QString &name)
{
    static const QHash<QString, Handler> handlers{
        {QStringLiteral("program.run"), &CellDesk::run},
        {QStringLiteral("program.pause"), &CellDesk::pause},
        {QStringLiteral("program.step"), &CellDesk::step},
        {QStringLiteral("program.stop"), &CellDesk::stop},
        {QStringLiteral("program.reset"), &CellDesk::reset},
        {QStringLiteral("program.speed"), &CellDesk::changeSpeed},
        {QStringLiteral("cell.input"), &CellDesk::setInput},
        {QStringLiteral("cell.fault"), &CellDesk::setFault},
        {QStringLiteral("cell.pallet"), &CellDesk::changePallet},
        {QStringLiteral("cell.gripper"), &CellDesk::clearGripper},
    };
    return handlers.value(name, nullptr);
}

bool CellDesk::knows(const QString &request)
{
    return handlerOf(request) != nullptr;
}

QString CellDesk::request(const QString &name, const Node &payload, const ProjectInUse &project)
{
    return (this->*handlerOf(name))(payload, project);
}

// ---------------------------------------------------------------- programs

LoadedPrograms CellDesk::load(const ProjectInUse &project, const std::vector<script::VariableInfo> &variables)
{
    LoadedPrograms programs;
    if (!project.folder.isEmpty())
        programs = loadPrograms(*project.tasks, project.folder, variables);
    problems_.clear();
    for (const TaskProblem &problem : programs.problems)
        problems_.append(toText(problem));
    for (const QString &problem : problems_.mid(0, kToldProblems))
        tell("error", problem);
    if (problems_.size() > kToldProblems)
        tell("error",
             Texts::tr("and %1 more problems in the programs").arg(problems_.size() - kToldProblems));
    return programs;
}

void CellDesk::check(const ProjectInUse &project)
{
    load(project, ProgramVariables(*project.variables).infos());
}

QString CellDesk::run(const Node &, const ProjectInUse &project)
{
    if (runner_.state() == Runner::State::Paused)
        return runner_.resume();
    if (runner_.state() == Runner::State::Running)
        return {};
    if (project.key.isEmpty())
        return Texts::tr("there is no current project");
    if (project.folder.isEmpty())
        return Texts::tr("the project %1 has no folder in the workspace").arg(project.key);
    flushVariables(project.variables);
    auto variables = std::make_unique<ProgramVariables>(*project.variables);
    LoadedPrograms programs = load(project, variables->infos());
    if (!problems_.isEmpty())
        return Texts::tr("the programs have problems: %1").arg(problems_.first());
    return runner_.start(std::move(programs.tasks), std::move(variables));
}

QString CellDesk::pause(const Node &, const ProjectInUse &)
{
    runner_.pause(Texts::tr("paused at the panel"));
    return {};
}

QString CellDesk::step(const Node &, const ProjectInUse &)
{
    return runner_.step();
}

QString CellDesk::stop(const Node &, const ProjectInUse &project)
{
    flushVariables(project.variables);
    runner_.stop(QString());
    return {};
}

QString CellDesk::reset(const Node &, const ProjectInUse &)
{
    return runner_.reset();
}

QString CellDesk::changeSpeed(const Node &payload, const ProjectInUse &)
{
    const double factor = numberOf(payload, u"factor", 0);
    if (factor < kMinSpeed || factor > kMaxSpeed)
        return Texts::tr("\"factor\" is no number from %1 to %2").arg(kMinSpeed).arg(kMaxSpeed);
    speed_ = factor;
    return {};
}

// ---------------------------------------------------------------- the cell

QString CellDesk::setInput(const Node &payload, const ProjectInUse &)
{
    QString why;
    bool on = false;
    const QString name = payload.getString(u"signal");
    const int index = cell::inputOfName(name);
    if (index < 0)
        return Texts::tr("there is no input \"%1\"").arg(name.left(100));
    const double seconds = numberOf(payload, u"seconds", 0);
    if (seconds > 0)
        runner_.press(index, std::min(seconds, 60.0));
    else if (readFlag(payload, &on, &why))
        runner_.cell().world().setInput(index, on);
    return why;
}

QString CellDesk::setFault(const Node &payload, const ProjectInUse &project)
{
    cell::Fault fault;
    QString why;
    bool on = false;
    const QString name = payload.getString(u"name");
    if (!cell::faultOfName(name, &fault))
        return Texts::tr("there is no fault \"%1\", there are %2")
            .arg(name.left(100), cell::faultNames().join(QStringLiteral(", ")));
    if (!readFlag(payload, &on, &why))
        return why;
    powerCut_ = powerCut_ || (fault == cell::Fault::PowerCut && on);
    flushVariables(project.variables);
    runner_.setFault(fault, on);
    return {};
}

QString CellDesk::changePallet(const Node &payload, const ProjectInUse &)
{
    const double side = numberOf(payload, u"side", -1);
    const QString action = payload.getString(u"action");
    if (side != 0 && side != 1)
        return Texts::tr("\"side\" is neither 0 (left) nor 1 (right)");
    cell::World &world = runner_.cell().world();
    if (action == QLatin1String("take"))
        world.takePallet(static_cast<int>(side));
    else if (action == QLatin1String("bring"))
        world.bringPallet(static_cast<int>(side));
    else
        return Texts::tr("\"action\" is \"%1\", neither \"take\" nor \"bring\"").arg(action.left(100));
    return {};
}

QString CellDesk::clearGripper(const Node &payload, const ProjectInUse &)
{
    const QString action = payload.getString(u"action");
    if (action != QLatin1String("clear"))
        return Texts::tr("\"action\" is \"%1\", not \"clear\"").arg(action.left(100));
    if (runner_.state() == Runner::State::Running)
        return Texts::tr("a program runs; pause it first");
    runner_.cell().world().clearGripper();
    return {};
}

// ---------------------------------------------------------------- project, variables

void CellDesk::leaveProject(Node *variables)
{
    flushVariables(variables);
    runner_.leave();
    problems_.clear();
}

void CellDesk::variablesChanged(const Node &list)
{
    if (runner_.variables() && runner_.variables()->reload(list))
        runner_.cell().world().touch();
}

bool CellDesk::flushVariables(Node *list)
{
    return runner_.variables() && runner_.variables()->flush(list);
}

// ---------------------------------------------------------------- what is told

void CellDesk::publish(Node *node, const QString &project) const
{
    publishCell(runner_, node);
    node->ensure(u"speed")->setDouble(speed_);
    node->ensure(u"program.project")->setString(project);
    Node *list = node->ensure(u"program.problems");
    Node problems;
    problems.reset(Node::Kind::List);
    for (const QString &problem : problems_)
        problems.add()->setString(problem);
    if (*list != problems)
        list->assign(problems);
}

std::vector<CellDesk::Notice> CellDesk::takeNotices()
{
    const bool isOther = runner_.state() != toldState_ || runner_.why() != toldWhy_;
    if (isOther && !runner_.why().isEmpty())
        tell(runner_.isFault() ? "error" : "warning", Texts::tr("Program: %1").arg(runner_.why()));
    toldState_ = runner_.state();
    toldWhy_ = runner_.why();
    const auto &violations = runner_.cell().world().violations();
    for (; toldViolations_ < violations.size(); ++toldViolations_) {
        const cell::Violation &violation = violations[toldViolations_];
        tell("warning", Texts::tr("%1 %2:%3, layer %4, piece %5: %6")
                            .arg(QString::fromStdString(violation.where.task),
                                 QString::fromStdString(violation.where.file))
                            .arg(violation.where.line)
                            .arg(violation.layer)
                            .arg(violation.piece)
                            .arg(QString::fromStdString(violation.what)));
    }
    return std::exchange(notices_, {});
}

} // namespace controller

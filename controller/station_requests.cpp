#include "controller/station.h"
#include "controller/texts.h"

#include <QHash>

namespace controller {

using orba::Node;

namespace {

constexpr int kMaxQuoted = 100; // characters of a foreign text in an answer

/// A text of a record that must be there; false with a reason.
bool readText(const Node &record, const char16_t *key, QString *text, QString *why)
{
    const Node *node = record.child(QStringView(key));
    if (node && node->kind() == Node::Kind::String) {
        *text = node->toString();
        return true;
    }
    *why = Texts::tr("\"%1\" is missing or no text").arg(QString::fromUtf16(key));
    return false;
}

} // namespace

Station::Handler Station::handlerOf(const QString &name)
{
    static const QHash<QString, Handler> handlers{
        {QStringLiteral("pallet.set.one"), &Station::palletSetOne},
        {QStringLiteral("pallet.data"), &Station::palletData},
        {QStringLiteral("pallet.set.name"), &Station::palletSetName},
        {QStringLiteral("pallet.get.list"), &Station::palletList},
        {QStringLiteral("monitor.pers.modify"), &Station::modifyVariables},
        {QStringLiteral("sys.toolset"), &Station::setToolset},
        {QStringLiteral("project.remove_task"), &Station::removeTasks},
        {QStringLiteral("project.overview.set_autoload"), &Station::setAutoload},
        {QStringLiteral("motion.check"), &Station::checkMotion},
        {QStringLiteral("motion.start"), &Station::startMotion},
        {QStringLiteral("motion.hold"), &Station::holdMotion},
        {QStringLiteral("motion.stop"), &Station::stopMotion},
    };
    return handlers.value(name, nullptr);
}

Station::Answer Station::request(const QString &name, Node &payload)
{
    if (CellDesk::knows(name)) {
        if (name == QLatin1String("program.run") && desk_.runner().state() == Runner::State::Stopped &&
            followFolder() != Folder::Same)
            return {Texts::tr("the folder of the project was exchanged, and its counters with it: look at "
                              "them before it runs"),
                    Node()};
        Answer answer{desk_.request(name, payload, projectInUse()), Node()};
        followCell();
        if (name == QLatin1String("program.stop"))
            followFolder();
        return answer;
    }
    const Handler handler = handlerOf(name);
    if (!handler)
        return {Texts::tr("the controller knows no request \"%1\"").arg(name.left(kMaxQuoted)), Node()};
    return (this->*handler)(payload);
}

/// The answer of something that is to be kept when it was not refused.
Station::Answer Station::changed(const QString &refusal)
{
    changed_ = changed_ || refusal.isEmpty();
    return {refusal, Node()};
}

// ---------------------------------------------------------------- recipes

Station::Answer Station::palletSetOne(Node &payload)
{
    return changed(pallets_.setOne(payload));
}

Station::Answer Station::palletData(Node &payload)
{
    return changed(pallets_.setAll(payload));
}

Station::Answer Station::palletSetName(Node &payload)
{
    return changed(pallets_.setName(payload));
}

Station::Answer Station::palletList(Node &)
{
    return {QString(), pallets_.summaries()};
}

// ---------------------------------------------------------------- variables, projects

Station::Answer Station::modifyVariables(Node &payload)
{
    changed_ = desk_.flushVariables(&projects_.variableList()) || changed_;
    Answer answer = changed(Variables::modify(projects_.variableList(), payload));
    desk_.variablesChanged(projects_.variableList());
    return answer;
}

Station::Answer Station::removeTasks(Node &payload)
{
    Answer answer;
    QString name;
    if (readText(payload, u"name", &name, &answer.refusal)) {
        projects_.removeTasks(robotId() + QLatin1Char('/') + name);
        changed_ = true;
    }
    return answer;
}

Station::Answer Station::setAutoload(Node &payload)
{
    Answer answer;
    QString path;
    if (readText(payload, u"autoload_prj_path", &path, &answer.refusal)) {
        project().ensureChild(orba::Name(u"autoload_prj_path"))->setString(path);
        changed_ = true;
    }
    return answer;
}

// ---------------------------------------------------------------- robot

/// The result is negative on failure: the panel looks at nothing else.
Station::Answer Station::setToolset(Node &payload)
{
    Answer answer;
    const bool isMoving = robot_.isMoving() || desk_.runner().cell().world().way().isMoving();
    answer.refusal = isMoving ? Texts::tr("the robot is moving") : tools_.activate(payload);
    answer.result.setInt(answer.refusal.isEmpty() ? 0 : -1);
    if (answer.refusal.isEmpty()) {
        tree_.set(u"quill.body.toolset", tools_.active());
        useActiveTool();
        changed_ = true;
        publishRobot();
    }
    return answer;
}

Station::Answer Station::checkMotion(Node &payload)
{
    Answer answer;
    answer.refusal = robot_.check(payload, tools_, &answer.result);
    return answer;
}

/// The result is the number of the move.
Station::Answer Station::startMotion(Node &payload)
{
    Answer answer;
    answer.refusal = programBlockade();
    if (answer.refusal.isEmpty())
        answer.refusal = robot_.start(payload, tools_);
    if (answer.refusal.isEmpty())
        answer.result.setInt(robot_.lastMove());
    publishRobot();
    return answer;
}

Station::Answer Station::holdMotion(Node &)
{
    robot_.hold();
    return {};
}

Station::Answer Station::stopMotion(Node &)
{
    robot_.stop(QString());
    publishRobot();
    return {};
}

} // namespace controller

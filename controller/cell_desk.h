#pragma once

#include "controller/cell_nodes.h"

#include <utility>

namespace controller {

/// What the cell and its programs need of the current project.
struct ProjectInUse
{
    QString key;    ///< "SIM-0001/Line 1"
    QString folder; ///< empty: there is none
    const orba::Node *tasks = nullptr;
    orba::Node *variables = nullptr; ///< the list that the panel sees
};

/// What somebody asks of the programs and the cell over the link, and what they are told: between the station's tree and
/// the runner. See docs/controller-link.md for the requests "program.*" and "cell.*".
class CellDesk
{
public:
    static constexpr double kMinSpeed = 0.1;
    static constexpr double kMaxSpeed = 1000;
    static constexpr double kPublishTime = 0.1; ///< [s] of real time

    CellDesk(const PalletStore *recipes, std::uint64_t seed) : runner_(recipes, seed) {}

    static bool knows(const QString &request);
    /// Returns why not; empty when done.
    QString request(const QString &name, const orba::Node &payload, const ProjectInUse &project);
    /// Checks the programs of the project; the problems are kept to be shown and told.
    void check(const ProjectInUse &project);
    /// Another project, or none: nothing runs any more. What programs did to variables is put into the list first.
    void leaveProject(orba::Node *variables);
    /// The panel changed variables.
    void variablesChanged(const orba::Node &list);
    /// Puts what programs did to variables into the list. Returns whether something persistent changed.
    bool flushVariables(orba::Node *list);

    /// Real time [s].
    void advance(double seconds) { runner_.advance(seconds * speed_); }
    Runner &runner() { return runner_; }
    const Runner &runner() const { return runner_; }
    /// Simulated seconds a second.
    double speed() const { return speed_; }
    void setSpeed(double speed) { speed_ = speed; }
    /// The power was cut since the last call.
    bool takePowerCut() { return std::exchange(powerCut_, false); }

    void publish(orba::Node *node, const QString &project) const;
    /// What the operator is to be told since the last call.
    struct Notice
    {
        const char *level; ///< "info", "warning", "error"
        QString text;
    };
    std::vector<Notice> takeNotices();

private:
    using Handler = QString (CellDesk::*)(const orba::Node &payload, const ProjectInUse &project);
    static Handler handlerOf(const QString &name);
    QString run(const orba::Node &payload, const ProjectInUse &project);
    QString pause(const orba::Node &payload, const ProjectInUse &project);
    QString step(const orba::Node &payload, const ProjectInUse &project);
    QString stop(const orba::Node &payload, const ProjectInUse &project);
    QString reset(const orba::Node &payload, const ProjectInUse &project);
    QString changeSpeed(const orba::Node &payload, const ProjectInUse &project);
    QString setInput(const orba::Node &payload, const ProjectInUse &project);
    QString setFault(const orba::Node &payload, const ProjectInUse &project);
    QString changePallet(const orba::Node &payload, const ProjectInUse &project);
    QString clearGripper(const orba::Node &payload, const ProjectInUse &project);
    LoadedPrograms load(const ProjectInUse &project, const std::vector<script::VariableInfo> &variables);
    void tell(const char *level, const QString &text) { notices_.push_back({level, text}); }

    Runner runner_;
    QStringList problems_;
    double speed_ = 1;
    bool powerCut_ = false;
    std::vector<Notice> notices_;
    Runner::State toldState_ = Runner::State::Stopped;
    QString toldWhy_;
    std::size_t toldViolations_ = 0;
};

} // namespace controller

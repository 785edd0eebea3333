#pragma once

#include "controller/cell_desk.h"
#include "controller/mirror.h"
#include "controller/pallet_store.h"
#include "controller/projects.h"
#include "controller/robot.h"
#include "controller/state_keeper.h"

namespace controller {

/// How to start a controller.
struct StationOptions
{
    QString version = QStringLiteral("2.3.0"); ///< software version that it says it has
    QString id;                                ///< robot id; empty: as stored, or "SIM-0001" for a new one
    QString dataFolder;                        ///< state kept from run to run; empty: nothing is kept
    QString workspaceFolder;                   ///< project folders lie in it, below the robot id
    double speed = 1;                          ///< simulated seconds per second
    std::uint64_t seed = 1;                    ///< of what varies a little in the cell
};

/// What the controller is and does, apart from the link: recipes, projects, variables, tools and the robot. Deterministic:
/// what comes out depends on what goes in, and on the folders.
class Station
{
public:
    /// Reads the state that was kept. A folder that cannot be used is reported, and nothing is kept then.
    explicit Station(StationOptions options);

    struct Answer
    {
        QString refusal; ///< why not, for the operator; empty when done
        orba::Node result;
    };
    /// Carries out a request. The payload may be taken.
    Answer request(const QString &name, orba::Node &payload);
    /// The panel wrote a value or subtree; false with a reason when it may not.
    bool write(const QString &path, orba::Node &payload, QString *why);
    /// The panel raised an event node.
    bool trigger(const QString &path, QString *why);
    /// Nobody holds the button any more.
    void panelLost();
    void advance(double seconds);

    struct Event
    {
        QString topic;
        orba::Node value;
    };
    Mirror &mirror() { return mirror_; }
    /// What to tell besides changes: {"level", "text"} under "controller.notice".
    std::deque<Event> takeEvents();
    /// Whether time matters at the moment.
    bool isBusy() const { return robot_.isMoving() || desk_.runner().isBusy(); }
    /// Simulated time alone, as much as is asked for and as fast as it goes.
    void simulate(double seconds);
    /// Brings the tree up to date, which advance() does a few times a second.
    void publishAll();
    CellDesk &desk() { return desk_; }

    /// Whether something changed that is to be kept, since the last snapshot.
    bool isChanged() const { return keeper_ && changed_; }
    StateSnapshot takeSnapshot();
    /// How writing the last snapshot ended: empty, or why it failed. A failure is told to the operator once, and what was
    /// not written counts as changed.
    void snapshotWritten(const QString &why);
    /// Writes a snapshot now; false when that failed.
    bool save();
    /// Null when nothing is kept. Another thread may write snapshots with it, one at a time.
    std::shared_ptr<StateKeeper> keeper() const { return keeper_; }

    QString title() const; ///< name and version, for the operator
    const QStringList &reports() const { return reports_; }
    const PalletStore &pallets() const { return pallets_; }
    const orba::Node &tree() const { return tree_; }
    /// What a program does to a variable. Returns why not.
    QString assignVariable(const QString &name, const orba::Node &value);

private:
    using Handler = Answer (Station::*)(orba::Node &);
    static Handler handlerOf(const QString &name);
    Answer changed(const QString &refusal);
    Answer palletSetOne(orba::Node &payload);
    Answer palletData(orba::Node &payload);
    Answer palletSetName(orba::Node &payload);
    Answer palletList(orba::Node &payload);
    Answer modifyVariables(orba::Node &payload);
    Answer setToolset(orba::Node &payload);
    Answer removeTasks(orba::Node &payload);
    Answer setAutoload(orba::Node &payload);
    Answer checkMotion(orba::Node &payload);
    Answer startMotion(orba::Node &payload);
    Answer holdMotion(orba::Node &payload);
    Answer stopMotion(orba::Node &payload);

    static std::shared_ptr<StateKeeper> openState(const QString &folder, QStringList *reports);
    void restore(const orba::Node &kept);
    void restoreJoints(const orba::Node &kept);
    void written(const QString &path);
    void tellLists();
    QString folderOf(const QString &key) const;
    QString projectFolder() const { return folderOf(projects_.current()); }
    void exchangeLists();
    enum class Folder {
        Same,      ///< it says what the tree has
        Exchanged, ///< another one was there, and the tree has its lists now
        Unusable,  ///< its lists count, and cannot be had: it cannot be read, or a program runs
    };
    Folder followFolder();
    void buildProject();
    void writeLists();
    void listProjects();
    void refreshProjects();
    void setBuilt(bool built);
    void switchProject();
    void publishRobot();
    void notice(const char *level, const QString &text);
    ProjectInUse projectInUse();
    void restoreCell(const orba::Node &kept);
    void followCell();
    void followRobot();
    QString programBlockade() const;
    void useActiveTool();
    void afterPowerCut();
    void publishCellNodes();
    orba::Node &project() { return *tree_.find(u"quill.project"); }
    QString robotId() const { return tree_.getString(u"nexo.r.id"); }

    StationOptions options_;
    QStringList reports_;
    std::shared_ptr<StateKeeper> keeper_;
    StateSnapshot start_; ///< what was kept
    orba::Node tree_;
    PalletStore pallets_;
    Projects projects_;
    Toolsets tools_;
    Robot robot_;
    CellDesk desk_;
    Mirror mirror_;
    std::deque<Event> events_;
    double sincePublished_ = 0;     ///< of the robot [s]
    double sinceCellPublished_ = 0; ///< [s]
    std::uint64_t keptCell_ = 0;    ///< version of what is kept of the cell
    bool changed_ = false;
    QString saveFault_; ///< told last
};

} // namespace controller

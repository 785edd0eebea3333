#pragma once

#include "controller/record_files.h"

namespace controller {

/// One moment of the controller's state. Quick to take, because its parts are shared and never change in it.
struct StateSnapshot
{
    std::shared_ptr<const orba::Node> own;  ///< id, current project, tools, posture
    std::shared_ptr<const orba::Node> cell; ///< what lies on the pallets
    std::vector<KeptRecord> recipes;
    std::vector<KeptRecord> projects;
};

/// Writes snapshots to a folder, as much of them as changed. One thread at a time; which one may change.
class StateKeeper
{
public:
    explicit StateKeeper(std::unique_ptr<StateFolder> folder);

    /// What was kept; `own` and `cell` are never null.
    StateSnapshot load();
    /// False with a reason; each part that is not written stays as it was.
    bool save(const StateSnapshot &snapshot, QString *why);
    /// What was damaged.
    const QStringList &reports() const { return folder_->reports(); }

private:
    bool saveTree(const char *file, const std::shared_ptr<const orba::Node> &tree,
                  std::shared_ptr<const orba::Node> *saved, QString *why);

    std::unique_ptr<StateFolder> folder_;
    std::shared_ptr<const orba::Node> own_;
    std::shared_ptr<const orba::Node> cell_;
    RecordFiles recipes_;
    RecordFiles projects_;
};

} // namespace controller

#pragma once

#include "controller/pose.h"

#include <QString>

namespace controller {

/// The tools of the robot: records as the panel sent them, and which of them is active. A record has "name",
/// "end.trans", "end.rot" (the tool's point seen from the flange), "ref.trans", "ref.rot" (the frame in which points are
/// given) and "load".
class Toolsets
{
public:
    /// Stands for no tool at all: points are those of the flange in the robot's base.
    static constexpr const char16_t *kNone = u"no use";

    /// Keeps the record and makes it active. Returns why not, empty when done; nothing is changed then.
    QString activate(const orba::Node &record);
    const QString &active() const { return active_; }

    struct Frames
    {
        Pose reference = Pose::Identity();
        Pose tool = Pose::Identity();
    };
    /// False with a reason when no tool of that name was ever sent.
    bool frames(const QString &name, Frames *frames, QString *why) const;

    /// {"active", "list"} to keep, and back; what is no toolset is left out.
    orba::Node saved() const;
    void restore(const orba::Node &saved);

private:
    const orba::Node *find(const QString &name) const;

    QString active_ = QString::fromUtf16(kNone);
    orba::Node list_;
};

} // namespace controller

#pragma once

#include "link/frame.h"

#include <QStringList>

#include <deque>
#include <utility>

namespace host {

/// What the panel changed below "quill.project" and the controller does not know yet. Nobody announces these
/// changes; they are found by comparing the tree with a copy of what the controller was told. GUI thread.
class LinkEdits
{
public:
    /// Takes the present content as what the controller has. The tree must outlive this object.
    explicit LinkEdits(orba::Node *tree);

    /// A Write or a Trigger.
    struct Edit
    {
        std::uint64_t number;
        LinkMessage::Kind kind;
        QString path; ///< from the root of all trees
        orba::Node payload;
        std::string frame;
    };

    /// Numbers what was changed since the last call. What cannot be written as a message is left out and
    /// told.
    void collect();
    QStringList takeProblems() { return std::exchange(problems_, {}); }
    /// Numbers what was changed, then the trigger. One that was raised before and has not left yet is not
    /// raised twice.
    void trigger(const QString &path, const QVariant &value);
    /// Numbers what was changed before the project was switched, then the switch.
    void switchProject();
    /// The tree was made equal to what the controller has, apart from edits.
    void tookOver();

    /// The edits that must be sent next, in order; `markSent` once they left.
    std::vector<const Edit *> unsent() const;
    void markSent(std::uint64_t number) { sent_ = number; }
    /// Everything that is left must be sent again.
    void unsend() { sent_ = taken_; }

    std::uint64_t last() const { return last_; }
    std::uint64_t taken() const { return taken_; }
    std::uint64_t sent() const { return sent_; }
    /// How many are not known to be taken.
    int waiting() const { return static_cast<int>(last_ - taken_); }
    bool areUnderWay() const { return sent_ > taken_; }
    /// The edits up to that number need not be sent any more; false when that is nothing new.
    bool noteTaken(std::uint64_t taken);
    /// And what the controller tells from now on has them in it: they are forgotten.
    void forget(std::uint64_t taken);

    /// Puts the edits on top of a state that the controller told for a path. False when nothing of the state
    /// is left, because an edit covers it.
    bool putOnTop(const QString &path, orba::Node *state) const;

    static const QString kProject; ///< "quill.project"
    /// Lists that belong to the current project, as paths from the root.
    static const QStringList &projectLists();

private:
    void append(LinkMessage::Kind kind, const QString &path, const orba::Node &payload);

    orba::Node *tree_;
    orba::Node told_;        ///< the tree as of the last edit or update
    std::deque<Edit> edits_; ///< not forgotten yet
    QStringList problems_;
    std::uint64_t last_ = 0;
    std::uint64_t taken_ = 0;
    std::uint64_t sent_ = 0;
};

} // namespace host

#include "core/link_edits.h"

#include "core/tree_compare.h"
#include "link/path_write.h"

#include <algorithm>

namespace host {

using orba::Node;
using Kind = LinkMessage::Kind;

const QString LinkEdits::kProject = QStringLiteral("quill.project");

namespace {

const QString kCurrent = QStringLiteral("cur_project");
const QString kCurrentPath = QStringLiteral("quill.project.cur_project");

bool isAtOrBelow(const QString &path, const QString &top)
{
    return path.startsWith(top) && (path.size() == top.size() || path[top.size()] == QLatin1Char('.'));
}

bool belongsToProject(const QString &path)
{
    const QStringList &lists = LinkEdits::projectLists();
    return std::any_of(lists.begin(), lists.end(),
                       [&path](const QString &list) { return isAtOrBelow(path, list); });
}

/// The path from `top`, which is at or above it; empty for `top` itself.
QStringView below(const QString &path, const QString &top)
{
    return QStringView(path).mid(std::min(path.size(), top.size() + 1));
}

void emptyProjectLists(const QString &top, Node *state)
{
    for (const QString &list : LinkEdits::projectLists())
        if (isAtOrBelow(list, top))
            if (Node *node = state->find(below(list, top)))
                node->clear();
}

} // namespace

const QStringList &LinkEdits::projectLists()
{
    static const QStringList lists{QStringLiteral("quill.project.task._list"),
                                   QStringLiteral("quill.project.var._list"),
                                   QStringLiteral("quill.project.var_monitor._list")};
    return lists;
}

LinkEdits::LinkEdits(Node *tree) : tree_(tree), told_(*tree) {}

// ---------------------------------------------------------------- finding and numbering

void LinkEdits::append(Kind kind, const QString &path, const Node &payload)
{
    LinkMessage message;
    message.kind = kind;
    message.id = last_ + 1;
    message.name = path;
    QString why;
    std::string frame = encodeFrame(message, payload, &why);
    if (frame.empty())
        problems_.append(QStringLiteral("%1: %2").arg(path, why));
    else
        edits_.push_back({++last_, kind, path, payload, std::move(frame)});
}

void LinkEdits::collect()
{
    const std::vector<TreeDifference> found = differences(told_, *tree_);
    if (found.empty())
        return;
    for (const TreeDifference &difference : found)
        append(Kind::Write, difference.path.isEmpty() ? kProject : mName(kProject, difference.path),
               *difference.now);
    told_ = *tree_;
}

void LinkEdits::trigger(const QString &path, const QVariant &value)
{
    collect();
    if (!edits_.empty() && edits_.back().kind == Kind::Trigger && edits_.back().path == path &&
        edits_.back().number > sent_)
        return;
    Node payload;
    payload.setValue(value);
    append(Kind::Trigger, path, payload);
}

void LinkEdits::switchProject()
{
    const Node *current = tree_->child(QStringView(kCurrent));
    Node *told = told_.child(QStringView(kCurrent));
    if (!current || !told || *current == *told)
        return;
    *told = *current; // what else differs was changed before and belongs to the old project
    collect();
    append(Kind::Write, kCurrentPath, *current);
}

void LinkEdits::tookOver()
{
    told_ = *tree_;
}

// ---------------------------------------------------------------- sending

std::vector<const LinkEdits::Edit *> LinkEdits::unsent() const
{
    std::vector<const Edit *> list;
    for (const Edit &edit : edits_)
        if (edit.number > sent_)
            list.push_back(&edit);
    return list;
}

bool LinkEdits::noteTaken(std::uint64_t taken)
{
    taken = std::min(taken, last_); // nobody can have taken what was never made
    if (taken <= taken_)
        return false;
    taken_ = taken;
    sent_ = std::max(sent_, taken_);
    return true;
}

void LinkEdits::forget(std::uint64_t taken)
{
    while (!edits_.empty() && edits_.front().number <= taken)
        edits_.pop_front();
}

// ---------------------------------------------------------------- states from the controller

bool LinkEdits::putOnTop(const QString &path, Node *state) const
{
    for (const Edit &edit : edits_) {
        if (edit.kind != Kind::Write)
            continue;
        const bool isSwitch = edit.path == kCurrentPath;
        if (isAtOrBelow(path, edit.path) || (isSwitch && belongsToProject(path)))
            return false;
        if (!isAtOrBelow(edit.path, path))
            continue;
        Node payload(edit.payload);
        applyWrite(*state, below(edit.path, path), payload);
        if (isSwitch)
            emptyProjectLists(path, state);
    }
    return true;
}

} // namespace host

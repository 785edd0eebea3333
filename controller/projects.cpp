#include "controller/projects.h"

#include <algorithm>

namespace controller {

using orba::Node;

Projects::Projects(Node *project, const std::vector<KeptRecord> &kept) : project_(project), records_(kept) {}

/// A list below "quill.project". Whatever a panel made of it, it is a list again.
Node &Projects::list(QStringView path)
{
    Node *node = project_->ensure(path);
    if (!node) { // a scalar stands in the way
        project_->ensure(path.left(path.indexOf(QLatin1Char('.'))))->reset(Node::Kind::Map);
        node = project_->ensure(path);
    }
    if (node->kind() != Node::Kind::List)
        node->reset(Node::Kind::List);
    return *node;
}

KeptRecord *Projects::find(const QString &key)
{
    const auto found =
        std::find_if(records_.begin(), records_.end(), [&key](const auto &r) { return r.key == key; });
    return found == records_.end() ? nullptr : &*found;
}

void Projects::drop(const QString &key)
{
    records_.erase(std::remove_if(records_.begin(), records_.end(),
                                  [&key](const auto &record) { return record.key == key; }),
                   records_.end());
}

void Projects::keepLists()
{
    auto lists = std::make_shared<Node>();
    bool isEmpty = true;
    for (const QStringView path : kLists) {
        const Node &shown = list(path);
        isEmpty = isEmpty && shown.size() == 0;
        lists->add()->assign(path == kLists[1] ? variables_.kept(shown) : shown);
    }
    KeptRecord *record = find(current_);
    if (!record && !isEmpty)
        records_.push_back({current_, lists});
    else if (record && *record->data != *lists)
        record->data = lists;
}

void Projects::showLists()
{
    const KeptRecord *record = find(current_);
    for (int i = 0; i < 3; ++i) {
        Node &shown = list(kLists[i]);
        const Node *kept = record ? record->data->at(i) : nullptr;
        if (kept && kept->kind() == Node::Kind::List)
            shown.assign(*kept);
        else
            shown.reset(Node::Kind::List);
    }
    variables_.exchange(variableList());
}

void Projects::exchange()
{
    const QString next = project_->getString(u"cur_project");
    keepLists();
    if (next != current_)
        dropIfRemoved();
    current_ = next;
    showLists();
}

/// A project whose tasks were removed and that is then left was deleted: a new one of its name starts afresh.
void Projects::dropIfRemoved()
{
    if (currentRemoved_ && list(kLists[0]).size() == 0)
        drop(current_);
    currentRemoved_ = false;
}

void Projects::follow()
{
    current_ = project_->getString(u"cur_project"); // a write of the whole tree may have brought another
    variables_.follow(variableList());
}

void Projects::removeTasks(const QString &key)
{
    if (key == current_) {
        list(kLists[0]).reset(Node::Kind::List);
        currentRemoved_ = true;
        return;
    }
    drop(key);
}

std::vector<KeptRecord> Projects::snapshot()
{
    keepLists();
    return records_;
}

} // namespace controller

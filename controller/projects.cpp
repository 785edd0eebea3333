#include "controller/projects.h"

#include <algorithm>

namespace controller {

using orba::Node;

namespace {

// Places in a record, behind the lists.
constexpr int kMark = 3;
constexpr int kBefore = 4;

QString markOf(const Node &data)
{
    return data.size() > kMark ? data.at(kMark)->toString() : QString();
}

} // namespace

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
    Node data;
    bool isEmpty = true;
    for (const QStringView path : kLists) {
        const Node &shown = list(path);
        isEmpty = isEmpty && shown.size() == 0;
        data.add()->assign(path == kLists[1] ? variables_.kept(shown) : shown);
    }
    const KeptRecord *record = find(current_);
    for (int i = data.size(); record && i < record->data->size(); ++i)
        data.add()->assign(*record->data->at(i));
    if (record || !isEmpty)
        keep(data);
}

/// As the record of the current project.
void Projects::keep(const Node &data)
{
    KeptRecord *record = find(current_);
    if (!record)
        records_.push_back({current_, std::make_shared<Node>(data)});
    else if (*record->data != data)
        record->data = std::make_shared<Node>(data);
}

bool Projects::isReplaced(const ProjectFolder &folder)
{
    const QString mark = folder.mark();
    const KeptRecord *record = find(current_);
    return !mark.isEmpty() && !(record && markOf(*record->data) == mark);
}

/// From the folder, when its lists count.
QString Projects::takeFrom(const ProjectFolder &folder)
{
    if (!isReplaced(folder))
        return {};
    const QString mark = folder.mark();
    const KeptRecord *record = find(current_);
    Node data, before;
    if (record)
        before.assign(*record->data);
    const Node *beforeThat = before.size() > kBefore ? before.at(kBefore) : nullptr;
    if (beforeThat && markOf(*beforeThat) == mark) {
        data.assign(*beforeThat);
    } else {
        QString why;
        Node *lists[] = {data.add(), data.add(), data.add()};
        for (int i = 0; i < kMark; ++i) {
            lists[i]->reset(Node::Kind::List);
            if (i < before.size())
                lists[i]->assign(*before.at(i));
        }
        if (!folder.read(lists[0], lists[1], lists[2], &why))
            return why;
        data.add()->setString(mark);
    }
    if (beforeThat)
        before.removeAt(kBefore);
    if (before.size() == kBefore) // else no folder has it
        data.add()->assign(before);
    keep(data);
    return {};
}

QString Projects::writeTo(const ProjectFolder &folder)
{
    QString why;
    keepLists();
    const Node &variables = list(kLists[1]);
    if (!folder.write(current_.section(QLatin1Char('/'), 1), list(kLists[0]), variables_.kept(variables),
                      &why))
        return why;
    Node data;
    if (const KeptRecord *record = find(current_))
        data.assign(*record->data);
    while (data.size() < kMark)
        data.add()->reset(Node::Kind::List);
    Node *mark = data.size() > kMark ? data.at(kMark) : data.add();
    mark->setString(folder.mark());
    keep(data);
    return {};
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

QString Projects::exchange(const ProjectFolder &folder)
{
    const QString next = project_->getString(u"cur_project");
    keepLists();
    if (next != current_)
        dropIfRemoved();
    current_ = next;
    if (folder.isBlank())
        drop(current_);
    const QString why = takeFrom(folder);
    showLists();
    return why;
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
